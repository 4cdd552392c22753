// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Scenes.h"
#include "Stage.h"

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Act = std::function<void(Stage &)>;

struct ManagerScene
{
    QString name;
    QString page; ///< as in "adc"
    Act prepare;
    Act act; ///< on the open page
    QSize size{ 600, 450 };
};

const QString kProject = u"atlas-prod-7421"_s;

QString accountOf(const QString &name)
{
    return name + u"@atlas-prod-7421.iam.gserviceaccount.com"_s;
}

QString listing(const QStringList &names)
{
    QStringList elements;
    for (const QString &name : names) {
        elements.append(
            uR"({"email": "%1", "displayName": "%2"})"_s.arg(accountOf(name), name.toUpper()));
    }
    return u'[' + elements.join(u',') + u']';
}

void nothing(Stage & /*stage*/) { }

void setConfigurations(Stage &stage)
{
    stage.world.setConfigurations({ QVariantMap{ { u"name"_s, u"default"_s },
                                                 { u"project"_s, kProject },
                                                 { u"account"_s, u"ada@example.com"_s },
                                                 { u"region"_s, u"europe-west1"_s } },
                                    QVariantMap{ { u"name"_s, u"sandbox"_s } },
                                    QVariantMap{ { u"name"_s, u"staging"_s },
                                                 { u"project"_s, u"atlas-staging"_s },
                                                 { u"account"_s, u"grace@example.com"_s } } },
                                  u"default"_s);
}

void setManyConfigurations(Stage &stage)
{
    QVariantList configurations;
    for (int number = 1; number <= 200; ++number) {
        configurations.append(QVariantMap{ { u"name"_s, u"configuration-%1"_s.arg(number) },
                                           { u"project"_s, u"project-%1"_s.arg(number) } });
    }
    stage.world.setConfigurations(configurations, u"configuration-2"_s);
}

void setOddConfigurations(Stage &stage)
{
    const QString name = u"a-configuration-whose-name-is-much-longer-than-the-window-of-the-manager"
                         u"-is-wide-at-any-sensible-size"_s;
    stage.world.setConfigurations(
        { QVariantMap{ { u"name"_s, name },
                       { u"project"_s, u"a-project-"_s + name },
                       { u"account"_s, u"somebody."_s + name + u"@example.com"_s },
                       { u"region"_s, u"northamerica-northeast1"_s } },
          QVariantMap{ { u"name"_s, u"second-"_s + name }, { u"project"_s, name } },
          QVariantMap{ { u"name"_s, u"設定 本番"_s }, { u"project"_s, u"tokyo-billing"_s } },
          QVariantMap{ { u"name"_s, u"إعدادات"_s }, { u"account"_s, u"ada@example.com"_s } },
          QVariantMap{ { u"name"_s, u"Ρυθμίσεις  με  κενά"_s } } },
        name);
}

void setAccounts(Stage &stage, const QStringList &saved, const QStringList &discovered)
{
    setConfigurations(stage);
    stage.world.list({ kProject, u"atlas-staging"_s, u"billing-export"_s });
    for (const QString &name : saved) {
        stage.world.saveAccount(kProject, accountOf(name),
                                name == u"deployer"_s ? QVariant(u"Deployer"_s) : QVariant());
    }
    stage.world.expect(u"listServiceAccounts"_s, kProject);
    stage.world.finish(listing(discovered));
}

Act accounts(const QStringList &saved, const QStringList &discovered)
{
    return [=](Stage &stage) { setAccounts(stage, saved, discovered); };
}

const Act kUsualAccounts
    = accounts({ u"deployer"_s, u"reader"_s }, { u"backup"_s, u"billing"_s, u"deployer"_s });

Act adc(const QString &type, const QVariant &quotaProject = {}, const QVariant &email = {},
        bool isValid = true)
{
    return [=](Stage &stage) {
        setConfigurations(stage);
        stage.world.setADC(type, quotaProject, email, isValid);
    };
}

Act keys(const QList<int> &presses)
{
    return [presses](Stage &stage) {
        for (const int press : presses) {
            stage.key(press);
        }
    };
}

Act hover(const QString &path)
{
    return [path](Stage &stage) { stage.hover(path); };
}

Act press(const QString &path)
{
    return [path](Stage &stage) { stage.press(path); };
}

Act typed(const QString &field, const QString &text)
{
    return [=](Stage &stage) {
        stage.click(field);
        stage.type(text);
    };
}

const Act kOpenSheet = [](Stage &stage) { stage.click(u"createButton"_s); };
constexpr QSize kSmallest{ 480, 360 };
constexpr QSize kLarge{ 1600, 900 };

std::vector<ManagerScene> configurationScenes()
{
    const QString page = u"configurations"_s;
    return {
        { u"configurations"_s, page, setConfigurations, nothing },
        { u"configurations-none"_s, page, nothing, nothing },
        { u"configurations-200"_s, page, setManyConfigurations,
          [](Stage &stage) { stage.scroll(u"list"_s, 1000); } },
        { u"configurations-odd"_s, page, setOddConfigurations, nothing },
        { u"configurations-hover"_s, page, setConfigurations, hover(u"sandbox/activateButton"_s) },
        { u"configurations-pressed"_s, page, setConfigurations, press(u"sandbox/deleteButton"_s) },
        { u"configurations-focus"_s, page, setConfigurations, keys({ Qt::Key_Tab, Qt::Key_Down }) },
        { u"configurations-focus-button"_s, page, setConfigurations,
          keys({ Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab }) },
        { u"configurations-focus-tab"_s, page, setConfigurations,
          keys({ Qt::Key_Tab, Qt::Key_Backtab }) },
        { u"sheet"_s, page, setConfigurations, kOpenSheet },
        { u"sheet-typed"_s, page, setConfigurations,
          [](Stage &stage) {
              kOpenSheet(stage);
              stage.type(u"production"_s);
          } },
        { u"configurations-smallest"_s, page, setConfigurations, nothing, kSmallest },
        { u"sheet-smallest"_s, page, setConfigurations, kOpenSheet, kSmallest },
        { u"configurations-large"_s, page, setConfigurations, nothing, kLarge },
    };
}

std::vector<ManagerScene> accountScenes()
{
    const QString page = u"serviceAccounts"_s;
    const auto many = [](Stage &stage) {
        QStringList names;
        for (int number = 1; number <= 500; ++number) {
            names.append(u"account-%1"_s.arg(number));
        }
        setAccounts(stage, { u"deployer"_s }, names);
    };
    const auto lengthy = [](Stage &stage) {
        const QString name = u"a-service-account-whose-name-is-longer-than-its-column-is-wide"_s;
        setAccounts(stage, { name }, { u"another-"_s + name });
    };
    return {
        { u"accounts"_s, page, kUsualAccounts, nothing },
        { u"accounts-no-project"_s, page, nothing, nothing },
        { u"accounts-loading"_s, page,
          [](Stage &stage) {
              setConfigurations(stage);
              stage.world.expect(u"listServiceAccounts"_s, kProject);
          },
          nothing },
        { u"accounts-none"_s, page, accounts({}, {}), nothing },
        { u"accounts-saved-only"_s, page, accounts({ u"deployer"_s }, {}), nothing },
        { u"accounts-discovered-only"_s, page, accounts({}, { u"deployer"_s }), nothing },
        { u"accounts-500"_s, page, many, [](Stage &stage) { stage.scroll(u"list"_s, 900); } },
        { u"accounts-long"_s, page, lengthy, nothing },
        { u"accounts-picker"_s, page, kUsualAccounts,
          [](Stage &stage) { stage.click(u"projectPicker"_s); } },
        { u"accounts-star"_s, page, kUsualAccounts,
          hover(accountOf(u"billing"_s) + u"/saveButton"_s) },
        { u"accounts-focus"_s, page, kUsualAccounts,
          keys({ Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Down }) },
        { u"accounts-typed"_s, page, kUsualAccounts, typed(u"emailField"_s, u"robot@p1"_s) },
        { u"accounts-smallest"_s, page, lengthy, nothing, kSmallest },
        { u"accounts-none-smallest"_s, page, accounts({}, {}), nothing, kSmallest },
        { u"accounts-large"_s, page, kUsualAccounts, nothing, kLarge },
    };
}

std::vector<ManagerScene> otherScenes()
{
    const QString impersonated = u"impersonated_service_account"_s;
    const QString email = accountOf(u"a-service-account-whose-name-is-longer-than-its-column"_s);
    const auto settings = [](Stage &stage) {
        stage.world.storeSettings(
            { { u"launchAtLogin"_s, true }, { u"path"_s, u"/opt/google-cloud-sdk/bin/gcloud"_s } });
    };
    return {
        { u"adc-none"_s, u"adc"_s, adc(u"none"_s, {}, {}, false), nothing },
        { u"adc-user"_s, u"adc"_s, adc(u"authorized_user"_s, kProject), nothing },
        { u"adc-key"_s, u"adc"_s, adc(u"service_account"_s, {}, accountOf(u"deployer"_s)),
          nothing },
        { u"adc-impersonated"_s, u"adc"_s, adc(impersonated, kProject, email), nothing },
        { u"adc-no-project"_s, u"adc"_s, nothing, nothing },
        { u"adc-focus"_s, u"adc"_s, adc(u"authorized_user"_s), keys({ Qt::Key_Tab }) },
        { u"adc-hover"_s, u"adc"_s, adc(u"authorized_user"_s), hover(u"loginButton"_s) },
        { u"adc-pressed"_s, u"adc"_s, adc(u"authorized_user"_s), press(u"loginButton"_s) },
        { u"adc-typed"_s, u"adc"_s, adc(u"authorized_user"_s),
          typed(u"quotaField"_s, u"billing-export"_s) },
        { u"adc-smallest"_s, u"adc"_s, adc(impersonated, kProject, email), nothing, kSmallest },
        { u"adc-large"_s, u"adc"_s, adc(impersonated, kProject, email), nothing, kLarge },
        { u"settings"_s, u"settings"_s, nothing, nothing },
        { u"settings-set"_s, u"settings"_s, settings, nothing },
        { u"settings-picker"_s, u"settings"_s, nothing,
          [](Stage &stage) { stage.click(u"menubarDisplay"_s); } },
        { u"settings-focus"_s, u"settings"_s, nothing,
          keys({ Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab }) },
        { u"settings-smallest"_s, u"settings"_s, settings, nothing, kSmallest },
        { u"settings-large"_s, u"settings"_s, settings, nothing, kLarge },
        { u"about"_s, u"about"_s, nothing, nothing },
        { u"about-hover"_s, u"about"_s, nothing, hover(u"link"_s) },
        { u"about-smallest"_s, u"about"_s, nothing, nothing, kSmallest },
    };
}

Scene sceneOf(const ManagerScene &scene, Stage::Appearance appearance)
{
    const QString look = appearance == Stage::Appearance::dark ? u"dark"_s : u"light"_s;
    return { u"manager-%1-%2"_s.arg(scene.name, look), [scene, appearance](Stage &stage) {
                scene.prepare(stage);
                stage.openManager(scene.page, scene.size, appearance);
                scene.act(stage);
            } };
}

} // namespace

std::vector<Scene> managerScenes()
{
    std::vector<Scene> all;
    for (const auto &part : { configurationScenes(), accountScenes(), otherScenes() }) {
        for (const ManagerScene &scene : part) {
            all.push_back(sceneOf(scene, Stage::Appearance::light));
            all.push_back(sceneOf(scene, Stage::Appearance::dark));
        }
    }
    return all;
}

} // namespace torvi
