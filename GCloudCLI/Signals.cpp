// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/Signals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace torvi {

namespace {

bool isIgnored(int signal)
{
    struct sigaction action
    {
    };
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

sigset_t endingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    if (!isIgnored(SIGHUP)) {
        sigaddset(&signals, SIGHUP);
    }
    return signals;
}

int blockedAsDescriptor()
{
    Signals::block();
    const sigset_t signals = endingSignals();
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

void Signals::block()
{
    const sigset_t signals = endingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

Signals::Signals(std::function<void(int)> handler)
    : m_handler(std::move(handler))
    , m_descriptor(blockedAsDescriptor())
    , m_notifier(m_descriptor, QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { takeOne(); });
}

Signals::~Signals()
{
    m_notifier.setEnabled(false);
    close(m_descriptor);
}

void Signals::takeOne()
{
    signalfd_siginfo info{};
    if (read(m_descriptor, &info, sizeof(info)) == sizeof(info)) {
        m_handler(static_cast<int>(info.ssi_signo));
    }
}

} // namespace torvi
