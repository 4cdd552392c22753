// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/support/FileEvents.h"

#include <QFile>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace torvi {

namespace {

constexpr std::array kNames{
    std::pair{ IN_OPEN, "OPEN" },         std::pair{ IN_ACCESS, "ACCESS" },
    std::pair{ IN_MODIFY, "MODIFY" },     std::pair{ IN_ATTRIB, "ATTRIB" },
    std::pair{ IN_CREATE, "CREATE" },     std::pair{ IN_DELETE, "DELETE" },
    std::pair{ IN_MOVED_FROM, "MOVED" },  std::pair{ IN_MOVED_TO, "MOVED" },
    std::pair{ IN_CLOSE_WRITE, "CLOSED" }
};

void appendNames(QStringList &result, uint32_t mask, const char *entry)
{
    for (const auto &[bit, name] : kNames) {
        if ((mask & static_cast<uint32_t>(bit)) != 0) {
            result.append(QString::fromUtf8(name) + QChar(u' ') + QFile::decodeName(entry));
        }
    }
}

} // namespace

FileEvents::FileEvents(const QString &directory)
    : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    const int watch = ::inotify_add_watch(m_descriptor, QFile::encodeName(directory).constData(),
                                          IN_ALL_EVENTS);
    EXPECT_GE(watch, 0) << directory.toStdString();
}

FileEvents::~FileEvents()
{
    ::close(m_descriptor);
}

QStringList FileEvents::taken()
{
    QStringList result;
    std::array<char, 65536> buffer{};
    ssize_t size = 0;
    while ((size = ::read(m_descriptor, buffer.data(), buffer.size())) > 0) {
        for (ssize_t offset = 0; offset < size;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + offset, sizeof(event));
            const char *name = buffer.data() + offset + sizeof(event);
            appendNames(result, event.mask, event.len > 0 ? name : "");
            offset += static_cast<ssize_t>(sizeof(event) + event.len);
        }
    }
    return result;
}

QStringList FileEvents::takenChanges()
{
    QStringList result = taken();
    result.removeIf([](const QString &event) {
        return event.startsWith(QStringLiteral("OPEN"))
            || event.startsWith(QStringLiteral("ACCESS"));
    });
    return result;
}

} // namespace torvi
