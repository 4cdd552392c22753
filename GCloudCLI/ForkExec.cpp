// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ForkExec.h"

#include "GCloudCLI/FileDescriptor.h"
#include "GCloudCLI/Pipe.h"

#include <cerrno>
#include <csignal>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>

namespace torvi {

namespace {

/// What execve() takes, pointing into `texts`. Made before the fork: the child must not allocate.
std::vector<char *> pointers(std::vector<std::string> &texts)
{
    std::vector<char *> result;
    result.reserve(texts.size() + 1);
    for (std::string &text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

struct Prepared
{
    const ForkExec &order;
    char *const *arguments;
    char *const *environment;
    int errorPipe;
    pid_t parent;
};

/// Handlers die with exec, but what is ignored or blocked would stay so: a child that inherits an
/// ignored SIGPIPE, say, misses that its reader has gone.
void restoreSignals()
{
    struct sigaction standard
    {
    };
    standard.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal) {
        ::sigaction(signal, &standard, nullptr); // fails for those that nobody can change
    }
    sigset_t none;
    ::sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

bool replaceStreams(const std::array<int, 3> &streams)
{
    for (int stream = 0; stream < 3; ++stream) {
        if (::dup2(streams[static_cast<std::size_t>(stream)], stream) < 0) {
            return false;
        }
    }
    // All of ours are close-on-exec already; this is for what a library opened without.
    ::close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
    return true;
}

/// The child's side. Other threads may have held any lock at the fork: only async-signal-safe
/// calls up to the exec.
[[noreturn]] void becomeProgram(const Prepared &prepared)
{
    if (prepared.order.newSession) {
        ::setsid();
    } else {
        ::setpgid(0, 0);
    }
    ::prctl(PR_SET_PDEATHSIG, prepared.order.deathSignal);
    if (::getppid() != prepared.parent) {
        ::_exit(127); // the parent was gone before it could be watched
    }
    if (replaceStreams(prepared.order.streams)) {
        restoreSignals();
        ::execve(prepared.arguments[0], prepared.arguments, prepared.environment);
    }
    const int error = errno;
    [[maybe_unused]] const auto written = ::write(prepared.errorPipe, &error, sizeof error);
    ::_exit(127);
}

/// Forks with all signals blocked, lest a handler of ours runs in the child.
pid_t forkInto(const Prepared &prepared)
{
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t pid = ::fork();
    if (pid == 0) {
        becomeProgram(prepared);
    }
    const int error = errno;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = error;
    return pid;
}

/// The child's error number, or 0 once its exec has closed the pipe.
int readError(const FileDescriptor &errorPipe)
{
    int error = 0;
    while (::read(errorPipe.get(), &error, sizeof error) < 0 && errno == EINTR) { }
    return error;
}

void reap(pid_t pid)
{
    while (::waitpid(pid, nullptr, 0) < 0 && errno == EINTR) { }
}

/// Whoever started us may have left SIGCHLD ignored, and the kernel then throws exit codes away.
void ensureExitCodesAreKept()
{
    struct sigaction current
    {
    };
    if (::sigaction(SIGCHLD, nullptr, &current) == 0 && current.sa_handler == SIG_IGN) {
        ::signal(SIGCHLD, SIG_DFL);
    }
}

} // namespace

pid_t forkExec(ForkExec order)
{
    ensureExitCodesAreKept();
    Pipe errorPipe = Pipe::open();
    const auto arguments = pointers(order.arguments);
    const auto environment
        = order.environment.has_value() ? pointers(*order.environment) : std::vector<char *>();
    const pid_t pid
        = forkInto({ .order = order,
                     .arguments = arguments.data(),
                     .environment = order.environment.has_value() ? environment.data() : environ,
                     .errorPipe = errorPipe.writingEnd.get(),
                     .parent = ::getpid() });
    if (pid < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    errorPipe.writingEnd = FileDescriptor();
    if (const int error = readError(errorPipe.readingEnd); error != 0) {
        reap(pid);
        throw std::system_error(error, std::generic_category());
    }
    return pid;
}

} // namespace torvi
