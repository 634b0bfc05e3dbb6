// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/StartUp.h"

#include "KestCore/Store/StoreLocation.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Platform/Linux/BusActivation.h"
#include "Velvetnook/Platform/Linux/SessionProbe.h"

#include <QCoreApplication>

#include <cstdio>

namespace Velvetnook
{

namespace
{

int printCapabilities(int argc, char **argv)
{
    const QCoreApplication application{argc, argv};
    SessionProbe probe{QDBusConnection::sessionBus(), QDBusConnection::systemBus()};
    QObject::connect(&probe, &SessionProbe::done, &application, &QCoreApplication::quit);
    probe.begin();
    QCoreApplication::exec();
    std::fputs(describe(capabilitiesOf(probe.facts())).toUtf8().constData(), stdout);
    return 0;
}

} // namespace

QString applicationId() { return fromView(KestCore::bundleIdentifier()); }

std::optional<int> answerWithoutWindow(const Launch &launch, int argc, char **argv)
{
    switch (launch.wish) {
    case Launch::Wish::start:
        return std::nullopt;
    case Launch::Wish::help:
        std::fputs(Launch::helpText(), stdout);
        return 0;
    case Launch::Wish::version:
        std::puts("velvetnook " KEST_VERSION);
        return 0;
    case Launch::Wish::capabilities:
        return printCapabilities(argc, argv);
    case Launch::Wish::misuse:
        break;
    }
    std::fprintf(stderr, "velvetnook: %s. `velvetnook --help` says what there is.\n",
                 qPrintable(launch.problem));
    return 2;
}

std::unique_ptr<BusActivation> makeActivation()
{
    return std::make_unique<BusActivation>(QDBusConnection::sessionBus(), applicationId());
}

std::optional<int> claim(Activation &activation, const Launch &launch)
{
    switch (activation.claim(launch)) {
    case Activation::Start::second:
        return 0;
    case Activation::Start::unanswered:
        std::fputs("velvetnook: Velvetnook runs already, and does not answer.\n", stderr);
        return 1;
    case Activation::Start::first:
    case Activation::Start::undecided:
        break;
    }
    return std::nullopt;
}

} // namespace Velvetnook
