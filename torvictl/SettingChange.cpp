// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/SettingChange.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <stdexcept>
#include <string>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

[[noreturn]] void reject(const QString &message)
{
    throw std::invalid_argument(message.toStdString());
}

SettingChange launchAtLogin(const QString &value)
{
    if (value != u"true" && value != u"false") {
        reject(QCoreApplication::translate("SettingChange",
                                           "launchAtLogin is true or false, not \"%1\"")
                   .arg(value));
    }
    return [on = value == u"true"](SettingsStoring &store) { store.setLaunchAtLogin(on); };
}

SettingChange menubarDisplayFormat(const QString &value)
{
    const auto format = fromRawValue<MenubarDisplayFormat>(value);
    if (!format) {
        QStringList formats;
        for (const MenubarDisplayFormat known : allCases<MenubarDisplayFormat>()) {
            formats.append(rawValue(known));
        }
        reject(QCoreApplication::translate("SettingChange",
                                           "menubarDisplayFormat is one of %1, not \"%2\"")
                   .arg(formats.join(u", "), value));
    }
    return [format](SettingsStoring &store) { store.setMenubarDisplayFormat(*format); };
}

SettingChange gcloudPathOverride(const QString &value)
{
    const auto path = value.isEmpty() ? std::nullopt : std::optional(value);
    return [path](SettingsStoring &store) { store.setGcloudPathOverride(path); };
}

SettingChange refreshIntervalMinutes(const QString &value)
{
    static const QRegularExpression wholeNumber(u"\\A[+-]?[0-9]+\\z"_s);
    bool fits = false;
    const qint64 minutes = value.toLongLong(&fits);
    if (!fits || !wholeNumber.match(value).hasMatch()) {
        reject(QCoreApplication::translate("SettingChange",
                                           "refreshIntervalMinutes is a whole number, not \"%1\"")
                   .arg(value));
    }
    return [minutes](SettingsStoring &store) { store.setRefreshIntervalMinutes(minutes); };
}

} // namespace

SettingChange settingChange(const QString &name, const QString &value)
{
    if (name == u"launchAtLogin") {
        return launchAtLogin(value);
    }
    if (name == u"menubarDisplayFormat") {
        return menubarDisplayFormat(value);
    }
    if (name == u"gcloudPathOverride") {
        return gcloudPathOverride(value);
    }
    if (name == u"refreshIntervalMinutes") {
        return refreshIntervalMinutes(value);
    }
    reject(QCoreApplication::translate(
               "SettingChange",
               "There is no setting \"%1\"; the settings are launchAtLogin, menubarDisplayFormat, "
               "gcloudPathOverride and refreshIntervalMinutes")
               .arg(name));
}

} // namespace torvi
