// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Assistants/HookConnections.h"

#include "Assistants/UnifiedDiff.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/QtText.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <QVariantMap>

#include <array>
#include <utility>

namespace Velvetnook
{

namespace
{

using Assistants::HookChange;

constexpr std::array kStates{"connected", "partial", "off", "missing", "error"};

QString kindOf(const QString &line)
{
    if (line.startsWith(u"@@") || line.startsWith(u"---") || line.startsWith(u"+++")) {
        return QStringLiteral("head");
    }
    if (line.startsWith(u'+')) {
        return QStringLiteral("added");
    }
    return line.startsWith(u'-') ? QStringLiteral("removed") : QStringLiteral("same");
}

QVariantList linesOf(const Assistants::PlannedChange &plan)
{
    const std::string file = plan.file.string();
    const std::string diff =
        Assistants::unifiedDiff(plan.before.value_or(""), plan.after,
                                plan.before ? std::string_view{file} : "/dev/null", file);
    QVariantList lines;
    QStringList texts = fromView(diff).split(u'\n');
    texts.removeLast(); // behind the last line's end
    for (const QString &text : texts) {
        lines.push_back(QVariantMap{{QStringLiteral("text"), text},
                                    {QStringLiteral("kind"), kindOf(text)}});
    }
    return lines;
}

} // namespace

HookConnections::HookConnections(std::filesystem::path home, std::filesystem::path kest,
                                 QObject *parent)
    : QObject{parent}, m_places{.home = std::move(home), .kest = std::move(kest)}
{
}

// `take` is called on the main thread, unless something else was begun meanwhile.
template <class Work, class Take>
void HookConnections::inBackground(Work work, Take take)
{
    m_isBusy = true;
    emit changed();
    QThreadPool::globalInstance()->start([guard = QPointer{this}, generation = ++m_generation,
                                          work = std::move(work),
                                          take = std::move(take)]() mutable {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [guard, generation, take = std::move(take), result = work()]() mutable {
                if (guard && guard->m_generation == generation) {
                    guard->m_isBusy = false;
                    take(std::move(result));
                    emit guard->changed();
                }
            },
            Qt::QueuedConnection);
    });
}

HookConnections::Connection HookConnections::connectionOf(const Assistants::HookTool &tool,
                                                          const Places &places)
{
    Connection connection{.tool = &tool, .state = State::error};
    std::error_code error;
    if (!std::filesystem::is_directory(places.home / tool.folder, error)) {
        connection.state = State::missing;
        return connection;
    }
    const std::string command = Assistants::hookCommand(places.kest);
    const auto joining = Assistants::planHooks(tool, HookChange::connect, places.home, command);
    const auto leaving =
        Assistants::planHooks(tool, HookChange::disconnect, places.home, command);
    if (!joining || !leaving) {
        connection.note =
            engineText(joining ? leaving.error().message : joining.error().message);
    } else if (!leaving->isNeeded()) {
        connection.state = State::off;
    } else {
        connection.state = joining->isNeeded() ? State::partial : State::connected;
    }
    return connection;
}

std::vector<HookConnections::Connection> HookConnections::connectionsOf(const Places &places)
{
    std::vector<Connection> connections;
    for (const Assistants::HookTool &tool : Assistants::hookTools()) {
        connections.push_back(connectionOf(tool, places));
    }
    return connections;
}

QVariantList HookConnections::tools() const
{
    QVariantList list;
    for (const Connection &each : m_connections) {
        list.push_back(
            QVariantMap{{QStringLiteral("tool"), fromView(each.tool->name)},
                        {QStringLiteral("title"), fromView(each.tool->title)},
                        {QStringLiteral("state"),
                         QLatin1String{kStates.at(static_cast<std::size_t>(each.state))}},
                        {QStringLiteral("note"), each.note},
                        // By itself in a sentence of any direction.
                        {QStringLiteral("file"),
                         QStringLiteral("\u2066~/%1/%2\u2069")
                             .arg(fromView(each.tool->folder), fromView(each.tool->file))}});
    }
    return list;
}

QString HookConnections::toolTitle() const
{
    const auto *const tool = Assistants::findHookTool(m_tool.toStdString());
    return tool == nullptr ? QString{} : fromView(tool->title);
}

QString HookConnections::file() const
{
    return m_plan ? QString::fromStdString(m_plan->file.string()) : QString{};
}

void HookConnections::open()
{
    m_isOpen = true;
    emit planChanged();
    look();
}

void HookConnections::close()
{
    m_isOpen = false;
    cancel();
}

void HookConnections::look()
{
    inBackground([places = m_places] { return connectionsOf(places); },
                 [this](std::vector<Connection> connections) {
                     m_connections = std::move(connections);
                 });
}

void HookConnections::plan(const QString &tool, bool adds)
{
    const auto *const found = Assistants::findHookTool(tool.toStdString());
    if (found == nullptr || m_isWriting) {
        return;
    }
    cancel();
    m_tool = tool;
    m_change = adds ? HookChange::connect : HookChange::disconnect;
    emit planChanged();
    std::error_code error;
    if (!std::filesystem::exists(m_places.kest, error)) {
        m_problem = tr("The command kest is not where this program is: %1")
                        .arg(QString::fromStdString(m_places.kest.string()));
        emit planChanged();
        return;
    }
    inBackground(
        [places = m_places, found, change = m_change] {
            return Assistants::planHooks(*found, change, places.home,
                                         Assistants::hookCommand(places.kest));
        },
        [this](Base::Result<Assistants::PlannedChange> plan) { show(std::move(plan)); });
}

void HookConnections::show(Base::Result<Assistants::PlannedChange> plan)
{
    if (!plan) {
        m_problem = engineText(plan.error().message);
    } else if (!plan->isNeeded()) {
        m_problem = tr("There is nothing to change in %1")
                        .arg(QString::fromStdString(plan->file.string()));
    } else {
        m_lines = linesOf(*plan);
        m_plan = *std::move(plan);
    }
    emit planChanged();
}

// A file that is being written will be, whoever looks at it: its outcome is always told.
void HookConnections::write()
{
    if (!m_plan || isBusy()) {
        return;
    }
    m_isWriting = true;
    emit changed();
    const QString done = isConnecting() ? tr("%1 is connected.").arg(toolTitle())
                                        : tr("%1 is not connected any more.").arg(toolTitle());
    QThreadPool::globalInstance()->start(
        [guard = QPointer{this}, plan = *m_plan, generation = m_generation, done] {
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [guard, generation, done, copy = Assistants::writeHooks(plan)] {
                    if (guard) {
                        guard->take(copy, guard->m_generation == generation, done);
                    }
                },
                Qt::QueuedConnection);
        });
}

void HookConnections::take(const Written &copy, bool isInFront, const QString &done)
{
    m_isWriting = false;
    emit changed();
    if (!copy && isInFront) {
        m_problem = engineText(copy.error().message);
        m_plan.reset();
        m_lines.clear();
        emit planChanged();
        return;
    }
    if (!copy) {
        emit told(engineText(copy.error().message));
    } else if (const auto &kept = *copy) {
        emit told(tr("%1 The file as it first was: %2")
                      .arg(done, QString::fromStdString(kept->filename().string())));
    } else {
        emit told(done);
    }
    cancel();
    look();
}

void HookConnections::cancel()
{
    ++m_generation;
    m_isBusy = false;
    m_tool.clear();
    m_plan.reset();
    m_lines.clear();
    m_problem.clear();
    emit planChanged();
    emit changed();
}

} // namespace Velvetnook
