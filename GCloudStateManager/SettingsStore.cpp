// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/SettingsStore.h"

#include "GCloudStateManager/Preferences.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kLaunchAtLoginKey = u"com.veldra.launchAtLogin"_s;
const QString kDisplayFormatKey = u"com.veldra.displayFormat"_s;
const QString kGcloudPathKey = u"com.veldra.gcloudPath"_s;
const QString kRefreshIntervalKey = u"com.veldra.refreshInterval"_s;

constexpr qint64 kDefaultRefreshInterval = 5;
constexpr qint64 kMinimumRefreshInterval = 1;
constexpr qint64 kMaximumRefreshInterval = 60;

MenubarDisplayFormat storedDisplayFormat(const Preferences &preferences)
{
    const QString stored = preferences.string(kDisplayFormatKey).value_or(QString());
    return fromRawValue<MenubarDisplayFormat>(stored).value_or(
        MenubarDisplayFormat::iconAndProject);
}

qint64 storedRefreshInterval(const Preferences &preferences)
{
    const qint64 stored = preferences.integer(kRefreshIntervalKey);
    return stored == 0 ? kDefaultRefreshInterval
                       : std::clamp(stored, kMinimumRefreshInterval, kMaximumRefreshInterval);
}

} // namespace

SettingsStore::SettingsStore(std::shared_ptr<Preferences> preferences)
    : m_preferences(std::move(preferences))
    , m_launchAtLogin(m_preferences->boolean(kLaunchAtLoginKey))
    , m_menubarDisplayFormat(storedDisplayFormat(*m_preferences))
    , m_gcloudPathOverride(m_preferences->string(kGcloudPathKey))
    , m_refreshIntervalMinutes(storedRefreshInterval(*m_preferences))
{
}

bool SettingsStore::launchAtLogin() const
{
    return m_launchAtLogin;
}

void SettingsStore::setLaunchAtLogin(bool launchAtLogin)
{
    m_preferences->setBoolean(kLaunchAtLoginKey, launchAtLogin);
    assign(m_launchAtLogin, launchAtLogin);
}

MenubarDisplayFormat SettingsStore::menubarDisplayFormat() const
{
    return m_menubarDisplayFormat;
}

void SettingsStore::setMenubarDisplayFormat(MenubarDisplayFormat format)
{
    m_preferences->setString(kDisplayFormatKey, rawValue(format));
    assign(m_menubarDisplayFormat, format);
}

std::optional<QString> SettingsStore::gcloudPathOverride() const
{
    return m_gcloudPathOverride;
}

void SettingsStore::setGcloudPathOverride(const std::optional<QString> &path)
{
    if (path) {
        m_preferences->setString(kGcloudPathKey, *path);
    } else {
        m_preferences->remove(kGcloudPathKey);
    }
    assign(m_gcloudPathOverride, path);
}

qint64 SettingsStore::refreshIntervalMinutes() const
{
    return m_refreshIntervalMinutes;
}

void SettingsStore::setRefreshIntervalMinutes(qint64 minutes)
{
    m_preferences->setInteger(kRefreshIntervalKey, minutes);
    assign(m_refreshIntervalMinutes, minutes);
}

template <typename Value>
void SettingsStore::assign(Value &setting, const Value &value)
{
    if (std::exchange(setting, value) != value) {
        Q_EMIT changed();
    }
}

} // namespace torvi
