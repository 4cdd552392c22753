// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/Terminal.h"

#include "GCloudModels/AppError.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// 0, or the number of the error that ended the writing.
int writeAll(int descriptor, const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(descriptor, bytes.constData() + written,
                                      static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        written += std::max<ssize_t>(count, 0);
    }
    return 0;
}

bool readerHasLeft()
{
    pollfd output{ STDOUT_FILENO, 0, 0 };
    return poll(&output, 1, 0) == 1;
}

} // namespace

bool Terminal::print(const QByteArray &bytes)
{
    const int error = writeAll(STDOUT_FILENO, bytes);
    if (error != 0 && error != EPIPE) {
        throw AppError::unknown(
            QCoreApplication::translate("Terminal", "Could not write to standard output: %1")
                .arg(QString::fromLocal8Bit(std::strerror(error))));
    }
    return error == 0;
}

std::unique_ptr<QSocketNotifier> Terminal::notifyWhenReaderLeaves(std::function<void()> callback)
{
    struct stat output
    {
    };
    if (fstat(STDOUT_FILENO, &output) != 0
        || !(S_ISFIFO(output.st_mode) || S_ISSOCK(output.st_mode))) {
        return nullptr;
    }
    // The writing end of a pipe is never readable: all that wakes the notifier is the broken pipe.
    // A socket also wakes it when there is something to read; who sends that is given up watching.
    auto notifier = std::make_unique<QSocketNotifier>(STDOUT_FILENO, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated,
                     [pipe = notifier.get(), callback = std::move(callback)] {
                         pipe->setEnabled(false);
                         if (readerHasLeft()) {
                             callback();
                         }
                     });
    return notifier;
}

void Terminal::printError(const QString &message)
{
    QByteArray line = message.toUtf8();
    if (!line.endsWith('\n')) {
        line += '\n';
    }
    writeAll(STDERR_FILENO, line); // when even this fails there is nobody left to tell
}

Colours Terminal::colours()
{
    const bool wanted = qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
    return wanted && isatty(STDOUT_FILENO) == 1 ? Colours::on : Colours::off;
}

} // namespace torvi
