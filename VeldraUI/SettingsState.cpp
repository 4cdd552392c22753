// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/SettingsState.h"

#include <algorithm>

namespace torvi {

namespace {

constexpr std::array kFormats = allCases<MenubarDisplayFormat>();

} // namespace

SettingsState::SettingsState(SettingsStoring &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
{
    connect(&store, &SettingsStoring::changed, this, &SettingsState::changed);
}

bool SettingsState::launchAtLogin() const
{
    return m_store.launchAtLogin();
}

void SettingsState::setLaunchAtLogin(bool launchAtLogin)
{
    m_store.setLaunchAtLogin(launchAtLogin);
}

int SettingsState::menubarDisplayFormat() const
{
    const auto *place = std::find(kFormats.begin(), kFormats.end(), m_store.menubarDisplayFormat());
    return static_cast<int>(place - kFormats.begin());
}

void SettingsState::setMenubarDisplayFormat(int place)
{
    if (place >= 0 && place < static_cast<int>(kFormats.size())) {
        m_store.setMenubarDisplayFormat(kFormats[static_cast<std::size_t>(place)]);
    }
}

QStringList SettingsState::menubarDisplayFormatTexts() const
{
    QStringList texts;
    for (const MenubarDisplayFormat format : kFormats) {
        texts.append(label(format));
    }
    return texts;
}

int SettingsState::refreshIntervalMinutes() const
{
    return static_cast<int>(m_store.refreshIntervalMinutes());
}

void SettingsState::setRefreshIntervalMinutes(int minutes)
{
    m_store.setRefreshIntervalMinutes(minutes);
}

QString SettingsState::gcloudPathOverride() const
{
    return m_store.gcloudPathOverride().value_or(QString());
}

void SettingsState::setGcloudPathOverride(const QString &path)
{
    m_store.setGcloudPathOverride(path.isEmpty() ? std::nullopt : std::optional(path));
}

} // namespace torvi
