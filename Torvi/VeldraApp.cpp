// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/VeldraApp.h"

#include "GCloudCLI/Signals.h"
#include "Torvi/AppBrowserAuthHandler.h"
#include "Torvi/AppDelegate.h"
#include "Torvi/Doctor.h"
#include "Torvi/Linux/LinuxDesktop.h"
#include "Torvi/Linux/Session.h"
#include "Torvi/Linux/SingleInstance.h"

#include <QGuiApplication>

#include <iostream>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using CommandLine::Request;
using Outcome = SingleInstance::Outcome;

void printError(const QString &message)
{
    std::cerr << "torvi: " << message.toStdString() << std::endl;
}

void carryOut(Request request, AppDelegate &delegate)
{
    switch (request) {
    case Request::start:
        delegate.showPopover();
        break;
    case Request::toggle:
        delegate.togglePopover();
        break;
    case Request::manager:
        delegate.openManagerWindow();
        break;
    case Request::quit:
        QCoreApplication::quit();
        break;
    }
}

/// For what needs no display: another program has the windows.
int passOn(Request request, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    switch (SingleInstance(QDBusConnection::sessionBus()).passOn(request)) {
    case Outcome::passedOn:
        return 0;
    case Outcome::isFirst:
        if (request == Request::quit) {
            return 0;
        }
        printError(
            QCoreApplication::translate("VeldraApp", "There is no display to show anything on."));
        return 1;
    case Outcome::noAnswer:
        printError(
            QCoreApplication::translate("VeldraApp", "Torvi is running, but it does not answer."));
        return 1;
    case Outcome::noBus:
        printError(QCoreApplication::translate(
            "VeldraApp", "There is no session bus by which to reach a running Torvi."));
        return 1;
    }
    Q_UNREACHABLE();
}

/// The application object of a program that lives in the panel.
class Application final : public QGuiApplication
{
public:
    Application(int &argc, char **argv)
        : QGuiApplication(argc, argv)
    {
        setApplicationName(u"Torvi"_s);
        setApplicationVersion(QStringLiteral(TORVI_VERSION));
        setDesktopFileName(u"com.veldra.Torvi"_s);
        setQuitOnLastWindowClosed(false);
    }
};

/// Runs the one instance of the session.
int runDelegate(const CommandLine::Options &options, Outcome outcome, AppDelegate &delegate)
{
    QObject::connect(qGuiApp, &QCoreApplication::aboutToQuit, &delegate,
                     &AppDelegate::applicationWillTerminate);
    delegate.applicationDidFinishLaunching();
    if (outcome == Outcome::noBus) {
        // Neither an item nor another start could ever open anything.
        printError(QCoreApplication::translate(
            "VeldraApp",
            "There is no session bus, so there is no status item; the manager window is "
            "opened, and Torvi ends with it."));
        QGuiApplication::setQuitOnLastWindowClosed(true);
        delegate.openManagerWindow();
    } else if (options.request != Request::start) {
        QMetaObject::invokeMethod(
            &delegate, [&delegate, request = options.request] { carryOut(request, delegate); },
            Qt::QueuedConnection);
    }
    return QGuiApplication::exec();
}

int runApplication(const CommandLine::Options &options, int argc, char **argv)
{
    Signals::block();
    Session::preferX11();
    Application application(argc, argv);
    Session::forgetPreference();
    const Signals signals([](int /*number*/) { QCoreApplication::quit(); });

    const QDBusConnection bus = QDBusConnection::sessionBus();
    LinuxDesktop desktop(bus, &printError);
    AppDelegate delegate(
        desktop,
        [&desktop] {
            return std::make_unique<DependencyContainer>(
                std::make_shared<AppBrowserAuthHandler>(desktop.clipboard()));
        },
        options.isTitleLive ? AppDelegate::TitleUpdates::live
                            : AppDelegate::TitleUpdates::atOpening);
    SingleInstance instance(bus);
    const Outcome outcome = instance.claimOrPassOn(
        options.request, [&delegate](Request request) { carryOut(request, delegate); });
    switch (outcome) {
    case Outcome::passedOn:
        return 0;
    case Outcome::noAnswer:
        printError(
            QCoreApplication::translate("VeldraApp", "Torvi is running, but it does not answer."));
        return 1;
    case Outcome::isFirst:
    case Outcome::noBus:
        return runDelegate(options, outcome, delegate);
    }
    Q_UNREACHABLE();
}

int diagnose(int argc, char **argv)
{
    Signals::block();
    if (!Session::hasDisplay()) {
        const QCoreApplication application(argc, argv);
        const Signals signals([](int number) { QCoreApplication::exit(128 + number); });
        return Doctor::run();
    }
    Session::preferX11();
    const Application application(argc, argv);
    Session::forgetPreference();
    const Signals signals([](int number) { QCoreApplication::exit(128 + number); });
    return Doctor::run();
}

} // namespace

int VeldraApp::run(int argc, char **argv)
{
    const auto parsed = CommandLine::parse(argc, argv);
    if (const int *exitCode = std::get_if<int>(&parsed)) {
        return *exitCode;
    }
    const auto &options = std::get<CommandLine::Options>(parsed);
    if (options.wantsDiagnosis) {
        return diagnose(argc, argv);
    }
    if (options.request == Request::quit || !Session::hasDisplay()) {
        return passOn(options.request, argc, argv);
    }
    return runApplication(options, argc, argv);
}

} // namespace torvi
