// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// A module that fits Qt, but not this program.

#include <QObject>

class OtherVersionPlugin final : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.veldra.Torvi.Views/0.0.1")
};

#include "OtherVersionPlugin.moc"
