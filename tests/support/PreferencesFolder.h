// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/Preferences.h"
#include "tests/support/ScriptFolder.h"

#include <memory>

namespace torvi {

/// A preferences file in a folder of its own.
class PreferencesFolder final
{
public:
    [[nodiscard]] QString path() const
    {
        return m_folder.path(kName);
    }

    /// The preferences of a file with that content, in the group that Torvi's keys are in.
    [[nodiscard]] std::shared_ptr<Preferences> holding(const QByteArray &content) const
    {
        m_folder.write(kName, "[General]\n" + content + '\n');
        return open();
    }

    [[nodiscard]] std::shared_ptr<Preferences> open() const
    {
        return std::make_shared<Preferences>(path());
    }

    /// What another process would read: QSettings keeps what it knows of a path.
    [[nodiscard]] std::shared_ptr<Preferences> reopened() const
    {
        const QString copy = QString::fromLatin1("copy-%1.ini").arg(++m_copies);
        m_folder.write(copy, m_folder.read(kName));
        return std::make_shared<Preferences>(m_folder.path(copy));
    }

    /// The line of `key` as it stands in the file, without the key; null when there is none.
    [[nodiscard]] QByteArray stored(const QByteArray &key) const
    {
        const QList<QByteArray> lines = m_folder.read(kName).split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith(key + '=')) {
                return line.sliced(key.size() + 1);
            }
        }
        return {};
    }

    /// Lets a test see that the file is written again.
    void discard() const
    {
        EXPECT_TRUE(QFile::remove(path()));
    }

private:
    static constexpr auto kName = QLatin1String("preferences.ini");

    ScriptFolder m_folder;
    mutable int m_copies = 0;
};

} // namespace torvi
