// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/Clipboard.h"

#include <QStringList>
#include <QThread>

namespace torvi {

/// Keeps what was written, in order, and the threads that wrote.
class FakeClipboard final : public Clipboard
{
public:
    QStringList log;
    QString contents;
    bool isAlwaysOnOneThread = true;

    void setText(const QString &text) override
    {
        note(QStringLiteral("text ") + text);
        contents = text;
    }

    void setSecret(const QString &text) override
    {
        note(QStringLiteral("secret ") + text);
        contents = text;
    }

private:
    void note(const QString &entry)
    {
        log.append(entry);
        isAlwaysOnOneThread = isAlwaysOnOneThread && QThread::currentThread() == m_thread;
    }

    QThread *m_thread = QThread::currentThread();
};

} // namespace torvi
