// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/SettingsStoring.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace torvi {

/// The settings as QML sees them; each is stored at once when it is set. Main thread only.
class SettingsState final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Taken from AuthState.settings")
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(int menubarDisplayFormat READ menubarDisplayFormat WRITE setMenubarDisplayFormat
                   NOTIFY changed)
    Q_PROPERTY(QStringList menubarDisplayFormatTexts READ menubarDisplayFormatTexts CONSTANT)
    Q_PROPERTY(int refreshIntervalMinutes READ refreshIntervalMinutes WRITE
                   setRefreshIntervalMinutes NOTIFY changed)
    Q_PROPERTY(QString gcloudPathOverride READ gcloudPathOverride WRITE setGcloudPathOverride NOTIFY
                   changed)

public:
    /// `store` must outlive this.
    explicit SettingsState(SettingsStoring &store, QObject *parent = nullptr);

    [[nodiscard]] bool launchAtLogin() const;
    void setLaunchAtLogin(bool launchAtLogin);
    /// The place of the format among menubarDisplayFormatTexts().
    [[nodiscard]] int menubarDisplayFormat() const;
    void setMenubarDisplayFormat(int place);
    [[nodiscard]] QStringList menubarDisplayFormatTexts() const;
    [[nodiscard]] int refreshIntervalMinutes() const;
    void setRefreshIntervalMinutes(int minutes);
    /// Empty when there is none; setting it to the empty text removes it.
    [[nodiscard]] QString gcloudPathOverride() const;
    void setGcloudPathOverride(const QString &path);

Q_SIGNALS:
    void changed();

private:
    SettingsStoring &m_store;
};

} // namespace torvi
