// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <QMetaObject>
#include <QThreadPool>

#include <dlfcn.h>

#include <functional>
#include <utility>

// Linked into the tests where the thread sanitizer watches them. It cannot see into Qt, which
// is built without it, and so takes all that one thread hands another through Qt's queues for
// a race. What is handed over here is told to it: the calls stand in the way of Qt's own.
extern "C" void __tsan_acquire(void *); // NOLINT(bugprone-reserved-identifier): the sanitizer's
extern "C" void __tsan_release(void *); // NOLINT(bugprone-reserved-identifier)

namespace
{

using QtPrivate::QSlotObjectBase;

char queue; // stands for all of Qt's

// A call that is handed over, with what is told on both sides of it.
class Handed : public QSlotObjectBase
{
public:
    explicit Handed(QSlotObjectBase *slot) : QSlotObjectBase{&Handed::act}, m_slot{slot} {}

private:
    static void act(int which, QSlotObjectBase *self, QObject *object, void **arguments,
                    bool *result)
    {
        __tsan_acquire(&queue); // before anything of it is looked at
        auto *handed = static_cast<Handed *>(self);
        if (which == Destroy) {
            handed->m_slot->destroyIfLastRef();
            delete handed;
        } else if (which == Call) {
            handed->m_slot->call(object, arguments);
        } else if (which == Compare) {
            *result = false;
        }
        __tsan_release(&queue);
    }

    QSlotObjectBase *m_slot;
};

template <class Function>
Function ofQt(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

bool QMetaObject::invokeMethodImpl(QObject *object, QSlotObjectBase *slot,
                                   Qt::ConnectionType type, void *result)
{
    using Invoke = bool (*)(QObject *, QSlotObjectBase *, Qt::ConnectionType, void *);
    static const auto invoke = ofQt<Invoke>("_ZN11QMetaObject16invokeMethodImplEP7QObject"
                                            "PN9QtPrivate15QSlotObjectBaseEN2Qt14"
                                            "ConnectionTypeEPv");
    auto *handed = new Handed{slot};
    __tsan_release(&queue);
    return invoke(object, handed, type, result);
}

void QThreadPool::start(std::function<void()> function, int priority)
{
    using Start = void (*)(QThreadPool *, std::function<void()>, int);
    static const auto begin = ofQt<Start>("_ZN11QThreadPool5startESt8functionIFvvEEi");
    __tsan_release(&queue);
    begin(
        this,
        [function = std::move(function)] {
            __tsan_acquire(&queue);
            function();
            __tsan_release(&queue);
        },
        priority);
}
