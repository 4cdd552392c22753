// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace torvi {

/// Path of `name` below tests/data/.
[[nodiscard]] inline QString testDataPath(const QString &name)
{
    return QStringLiteral(TORVI_TEST_DATA "/") + name;
}

/// The bytes of the file `name` below tests/data/; fails the test when it cannot be read.
[[nodiscard]] inline QByteArray testData(const QString &name)
{
    QFile file(testDataPath(name));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    EXPECT_TRUE(isOpen) << file.fileName().toStdString();
    return isOpen ? file.readAll() : QByteArray();
}

} // namespace torvi
