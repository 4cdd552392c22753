// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudConfigReader.h"

#include "GCloudCLI/ADCFileParser.h"
#include "GCloudCLI/CredentialsDatabase.h"
#include "GCloudCLI/GCloudFile.h"
#include "GCloudCLI/HomeDirectory.h"
#include "GCloudCLI/INIParser.h"
#include "GCloudCLI/Utf8.h"
#include "GCloudCLI/WhiteSpace.h"
#include "GCloudModels/AppError.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudFile::FileKind;

namespace {

QString defaultDirectory()
{
    const char *variable = "CLOUDSDK_CONFIG";
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariable(variable)
                                               : homeDirectory() + u"/.config/gcloud"_s;
}

/// Absent when there is no such file; AppError when there is one that cannot be read.
std::optional<QByteArray> readExisting(const QString &path)
{
    std::optional<QByteArray> bytes = GCloudFile::readFile(path);
    if (!bytes && GCloudFile::fileKind(path) != FileKind::missing) {
        throw AppError::configFileUnreadable(path);
    }
    return bytes;
}

std::optional<QString> valueOf(const INIParser::Sections &sections, const QString &section,
                               const QString &key)
{
    const auto keys = sections.constFind(section);
    if (keys == sections.constEnd()) {
        return std::nullopt;
    }
    const auto value = keys->constFind(key);
    return value == keys->constEnd() ? std::nullopt : std::optional(*value);
}

ConfigProperties propertiesIn(const QString &text)
{
    const INIParser::Sections sections = INIParser::parse(text);
    return { valueOf(sections, u"core"_s, u"project"_s), valueOf(sections, u"core"_s, u"account"_s),
             valueOf(sections, u"compute"_s, u"region"_s),
             valueOf(sections, u"compute"_s, u"zone"_s),
             valueOf(sections, u"auth"_s, u"impersonate_service_account"_s) };
}

} // namespace

GCloudConfigReader::GCloudConfigReader(std::optional<QString> configDirectory)
    : m_configDirectory(configDirectory ? *std::move(configDirectory) : defaultDirectory())
{
}

QString GCloudConfigReader::readActiveConfigName() const
{
    const std::optional<QByteArray> bytes = GCloudFile::readFile(path(u"active_config"_s));
    const std::optional<QString> text = bytes ? decodeUtf8(*bytes) : std::nullopt;
    return text ? trimmedWhiteSpaceAndLineBreaks(*text).toString() : u"default"_s;
}

ConfigProperties GCloudConfigReader::readConfigProperties(const QString &name) const
{
    QString file = path(u"configurations/config_"_s + name);
    std::optional<QByteArray> bytes = readExisting(file);
    if (!bytes) {
        file = path(u"properties"_s);
        bytes = readExisting(file);
    }
    if (!bytes) {
        return {};
    }
    const std::optional<QString> text = decodeUtf8(*bytes);
    if (!text) {
        throw AppError::configFileUnreadable(file);
    }
    return propertiesIn(*text);
}

QStringList GCloudConfigReader::readAllConfigNames() const
{
    const QString folder = path(u"configurations"_s);
    const std::optional<QStringList> entries = GCloudFile::entryNames(folder);
    if (!entries && GCloudFile::fileKind(folder) != FileKind::missing) {
        throw AppError::configFileUnreadable(folder);
    }
    const QString prefix = u"config_"_s;
    QStringList names;
    for (const QString &entry : entries.value_or(QStringList())) {
        if (entry.startsWith(prefix)) {
            names.append(entry.sliced(prefix.size()));
        }
    }
    std::ranges::sort(names);
    return names;
}

ADCState GCloudConfigReader::readADCState() const
{
    const QString file = path(u"application_default_credentials.json"_s);
    const std::optional<QByteArray> bytes = readExisting(file);
    if (!bytes) {
        return {};
    }
    try {
        return ADCFileParser::parse(*bytes);
    } catch (const std::runtime_error &) { // the prescribed error tells the path alone
        throw AppError::configFileUnreadable(file);
    }
}

QStringList GCloudConfigReader::readAuthenticatedAccounts() const
{
    const QString file = path(u"credentials.db"_s);
    if (GCloudFile::fileKind(file) == FileKind::missing) {
        return {};
    }
    QStringList accounts = CredentialsDatabase::readAccounts(file);
    std::ranges::sort(accounts);
    return accounts;
}

QString GCloudConfigReader::configDirectory() const
{
    return m_configDirectory;
}

/// An empty directory is the current one, as it is for gcloud.
QString GCloudConfigReader::path(const QString &name) const
{
    const bool needsNoSeparator = m_configDirectory.isEmpty() || m_configDirectory.endsWith(u'/');
    return needsNoSeparator ? m_configDirectory + name : m_configDirectory + u'/' + name;
}

} // namespace torvi
