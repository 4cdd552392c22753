// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/VeldraUI/World.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

/// Passes commands on and counts them.
class CountingExecutor final : public GCloudExecutor
{
public:
    explicit CountingExecutor(std::shared_ptr<GCloudExecutor> executor)
        : m_executor(std::move(executor))
    {
    }

    int count = 0;

    QCoro::Task<GCloudResult> execute(GCloudCommand command) override
    {
        ++count;
        return m_executor->execute(std::move(command));
    }

private:
    std::shared_ptr<GCloudExecutor> m_executor;
};

namespace {

int failures()
{
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().total_part_count();
}

std::optional<QString> textOrNothing(const QVariant &value)
{
    return value.isValid() && value.metaType().id() != QMetaType::Nullptr
        ? std::optional(value.toString())
        : std::nullopt;
}

GCloudCommand commandCalled(const QString &name, const QString &argument)
{
    static const QMap<QString, std::function<GCloudCommand(QString)>> commands{
        { u"listProjects"_s, [](auto) { return GCloudCommand::listProjects(); } },
        { u"setProject"_s, [](auto id) { return GCloudCommand::setProject(id); } },
        { u"setAccount"_s, [](auto id) { return GCloudCommand::setAccount(id); } },
        { u"activateConfiguration"_s,
          [](auto id) { return GCloudCommand::activateConfiguration(id); } },
        { u"createConfiguration"_s,
          [](auto id) { return GCloudCommand::createConfiguration(id); } },
        { u"deleteConfiguration"_s,
          [](auto id) { return GCloudCommand::deleteConfiguration(id); } },
        { u"listServiceAccounts"_s,
          [](auto id) { return GCloudCommand::listServiceAccounts(id); } },
        { u"setQuotaProject"_s, [](auto id) { return GCloudCommand::setQuotaProject(id); } },
        { u"applicationDefaultLogin"_s,
          [](auto) { return GCloudCommand::applicationDefaultLogin(); } },
        { u"setImpersonation"_s, [](auto id) { return GCloudCommand::setImpersonation(id); } },
        { u"adcLoginWithImpersonation"_s,
          [](auto id) { return GCloudCommand::adcLoginWithImpersonation(id); } },
        { u"clearImpersonation"_s, [](auto) { return GCloudCommand::clearImpersonation(); } },
        { u"revokeADC"_s, [](auto) { return GCloudCommand::revokeADC(); } },
        { u"printIdentityToken"_s, [](auto) { return GCloudCommand::printIdentityToken(); } },
    };
    const auto command = commands.constFind(name);
    if (command == commands.cend()) {
        qFatal("no command is called %s", qPrintable(name));
    }
    return (*command)(argument);
}

} // namespace

World::World(QObject *parent)
    : QObject(parent)
    , m_executor(std::make_shared<FakeExecutor>())
    , m_counter(std::make_shared<CountingExecutor>(m_executor))
    , m_reader(std::make_shared<FakeConfigReader>())
    , m_favorites(std::make_shared<FakeFavoritesStore>())
    , m_recents(std::make_shared<FakeRecentStore>())
    , m_serviceAccounts(std::make_shared<FakeServiceAccountStore>())
    , m_settings(std::make_shared<FakeSettingsStore>())
    , m_manager(std::make_unique<AuthStateManager>(m_counter, m_reader, nullptr, m_favorites,
                                                   m_recents, m_serviceAccounts, m_settings,
                                                   [this] { return m_now; }))
    , m_state(std::make_unique<AuthState>(*m_manager, m_clipboard, m_time.delay()))
    , m_complaintsBefore(failures())
{
    QDesktopServices::setUrlHandler(u"https"_s, this, "visit");
}

World::~World()
{
    QDesktopServices::unsetUrlHandler(u"https"_s);
}

AuthState *World::stateManager() const
{
    return m_state.get();
}

QStringList World::clipboard() const
{
    return m_clipboard.log;
}

QStringList World::recents() const
{
    return m_recents->ids;
}

void World::setRecents(const QStringList &ids)
{
    m_recents->ids = ids;
    Q_EMIT m_recents->changed();
}

QStringList World::pinned() const
{
    QStringList ids = m_favorites->ids.values();
    ids.sort();
    return ids;
}

void World::setPinned(const QStringList &ids)
{
    m_favorites->ids = { ids.begin(), ids.end() };
}

QVariantMap World::settings() const
{
    return { { u"launchAtLogin"_s, m_settings->isLaunchedAtLogin },
             { u"format"_s, rawValue(m_settings->format) },
             { u"interval"_s, m_settings->interval },
             { u"path"_s,
               m_settings->path ? QVariant(*m_settings->path) : QVariant::fromValue(nullptr) } };
}

void World::storeSettings(const QVariantMap &settings)
{
    const QVariantMap now = this->settings();
    const auto setting = [&](const QString &name) { return settings.value(name, now.value(name)); };
    m_settings->setLaunchAtLogin(setting(u"launchAtLogin"_s).toBool());
    m_settings->setMenubarDisplayFormat(
        fromRawValue<MenubarDisplayFormat>(setting(u"format"_s).toString()).value());
    m_settings->setRefreshIntervalMinutes(setting(u"interval"_s).toLongLong());
    m_settings->setGcloudPathOverride(textOrNothing(setting(u"path"_s)));
}

QStringList World::visited() const
{
    return m_visited;
}

void World::visit(const QUrl &address)
{
    m_visited.append(address.toString());
}

int World::commands() const
{
    return m_counter->count;
}

void World::setConfigurations(const QVariantList &configurations, const QString &active)
{
    m_reader->activeName = active;
    m_reader->names.clear();
    m_reader->properties.clear();
    for (const QVariant &configuration : configurations) {
        const QVariantMap fields = configuration.toMap();
        const QString name = fields.value(u"name"_s).toString();
        m_reader->names.append(name);
        ConfigProperties &properties = m_reader->properties[name];
        properties.project = textOrNothing(fields.value(u"project"_s));
        properties.account = textOrNothing(fields.value(u"account"_s));
        properties.region = textOrNothing(fields.value(u"region"_s));
        properties.impersonateServiceAccount = textOrNothing(fields.value(u"impersonate"_s));
    }
    readFiles();
}

void World::configure(const QVariantMap &fields)
{
    ConfigProperties &properties = m_reader->properties[m_reader->activeName];
    const std::pair<QString, std::optional<QString> *> members[]{
        { u"project"_s, &properties.project },
        { u"account"_s, &properties.account },
        { u"impersonate"_s, &properties.impersonateServiceAccount },
    };
    for (const auto &[name, property] : members) {
        if (fields.contains(name)) {
            *property = textOrNothing(fields.value(name));
        }
    }
    readFiles();
}

void World::setAccounts(const QStringList &emails)
{
    m_reader->accounts = emails;
    readFiles();
}

void World::setADC(const QString &type, const QVariant &quotaProject, const QVariant &clientEmail,
                   bool isValid)
{
    m_reader->adcState = { fromRawValue<ADCType>(type).value(), textOrNothing(quotaProject),
                           textOrNothing(clientEmail), isValid };
    readFiles();
}

void World::readFiles()
{
    m_manager->reloadFromFiles();
}

void World::signIn(const QString &email, const QVariant &project)
{
    if (!m_reader->accounts.contains(email)) {
        m_reader->accounts.append(email);
    }
    configure({ { u"account"_s, email }, { u"project"_s, project } });
}

void World::list(const QStringList &ids, const QVariantMap &names)
{
    QJsonArray projects;
    for (const QString &id : ids) {
        projects.append(
            QJsonObject{ { u"projectId"_s, id },
                         { u"name"_s, names.value(id, u"Name of "_s + id).toString() } });
    }
    expire();
    expect(u"listProjects"_s);
    finish(QString::fromUtf8(QJsonDocument(projects).toJson()));
    m_manager->reload();
    readFiles(); // so that the active project has its record
}

void World::expire()
{
    m_now += AuthStateManager::projectCacheTTL;
}

void World::listNumbered(int count)
{
    QStringList ids;
    for (int number = 1; number <= count; ++number) {
        ids.append(u"project-%1"_s.arg(number, 5, 10, QLatin1Char('0')));
    }
    list(ids);
}

void World::saveAccount(const QString &projectId, const QString &email, const QVariant &displayName)
{
    m_serviceAccounts->addServiceAccount({ email, projectId, textOrNothing(displayName) });
}

QVariantList World::saved(const QString &projectId) const
{
    QVariantList accounts;
    for (const ServiceAccount &account : m_serviceAccounts->serviceAccounts(projectId)) {
        accounts.append(QVariantMap{
            { u"email"_s, account.email },
            { u"displayName"_s,
              account.displayName ? QVariant(*account.displayName) : QVariant::fromValue(nullptr) },
        });
    }
    return accounts;
}

void World::setError(const QString &message)
{
    m_manager->setLastError(AppError::unknown(message));
}

void World::expect(const QString &command, const QString &argument)
{
    m_runs.push_back(m_executor->expect(commandCalled(command, argument)));
    ++m_expected;
}

void World::finish(const QString &standardOutput)
{
    const auto run = m_runs.front();
    m_runs.pop_front();
    run->finish({ 0, standardOutput, QString() });
}

void World::finishNewest(const QString &standardOutput)
{
    const auto run = m_runs.back();
    m_runs.pop_back();
    run->finish({ 0, standardOutput, QString() });
}

void World::fail(const QString &standardError)
{
    const auto run = m_runs.front();
    m_runs.pop_front();
    run->finish({ 1, QString(), standardError });
}

void World::failOddly(const QString &what)
{
    const auto run = m_runs.front();
    m_runs.pop_front();
    run->fail(std::make_exception_ptr(std::runtime_error(what.toStdString())));
}

void World::settle()
{
    QCoreApplication::processEvents();
}

void World::advance(int milliseconds)
{
    m_time.advance(std::chrono::milliseconds(milliseconds));
}

int World::complaints() const
{
    return failures() - m_complaintsBefore + m_expected - m_counter->count;
}

} // namespace torvi
