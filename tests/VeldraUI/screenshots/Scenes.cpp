// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Scenes.h"

#include "Stage.h"

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kDeployer = u"deployer@atlas-prod-7421.iam.gserviceaccount.com"_s;

QVariantList configurations()
{
    return { QVariantMap{ { u"name"_s, u"default"_s },
                          { u"project"_s, u"atlas-prod-7421"_s },
                          { u"account"_s, u"ada@example.com"_s } },
             QVariantMap{ { u"name"_s, u"sandbox"_s } },
             QVariantMap{ { u"name"_s, u"staging"_s }, { u"project"_s, u"atlas-staging"_s } } };
}

void signIn(World &world)
{
    world.setConfigurations(configurations(), u"default"_s);
    world.setAccounts({ u"ada@example.com"_s, u"grace@example.com"_s, kDeployer });
}

void setUsual(World &world)
{
    signIn(world);
    world.setADC(u"authorized_user"_s, u"atlas-prod-7421"_s);
    world.setPinned({ u"atlas-prod-7421"_s, u"billing-export"_s });
    world.setRecents({ u"atlas-staging"_s, u"ml-playground-eu"_s });
    world.list({ u"atlas-dev"_s, u"atlas-prod-7421"_s, u"atlas-staging"_s, u"billing-export"_s,
                 u"data-warehouse"_s, u"ml-playground-eu"_s, u"web-frontend-prod"_s },
               { { u"atlas-prod-7421"_s, u"Atlas production"_s } });
}

/// The usual world, open.
void openUsual(Stage &stage)
{
    setUsual(stage.world);
    stage.open();
}

void openWithError(Stage &stage, const QString &message)
{
    openUsual(stage);
    stage.world.setError(message);
}

QString traceback()
{
    QString text
        = u"gcloud command failed (exit 1): ERROR: gcloud crashed (MetadataServerException)\n"_s
          u"Traceback (most recent call last):\n"_s;
    for (int frame = 1; frame <= 21; ++frame) {
        text
            += u"  File \"/usr/lib/google-cloud-sdk/lib/googlecloudsdk/core/module_%1.py\", line "
               u"%2,"
               u" in Run\n    response = self._connection.request(method, url, headers=headers)\n"_s
                   .arg(frame)
                   .arg(37 * frame);
    }
    return text + u"HTTP Error 404: Not Found"_s;
}

void openLong(Stage &stage)
{
    const QString email
        = u"a-person-with-a-very-long-name.and-department@subsidiary.of.example.com"_s;
    const QString project = u"a-project-whose-name-was-chosen-by-committee-in-2019-prod"_s;
    stage.world.setConfigurations(
        { QVariantMap{
            { u"name"_s, u"a-configuration-name-that-is-longer-than-the-popover-is-wide"_s },
            { u"project"_s, project },
            { u"account"_s, email },
            { u"impersonate"_s, u"robot-"_s + email } } },
        u"a-configuration-name-that-is-longer-than-the-popover-is-wide"_s);
    stage.world.setAccounts({ email, u"second."_s + email });
    stage.world.setADC(u"impersonated_service_account"_s, project, u"robot-"_s + email);
    stage.world.saveAccount(project, u"saved-"_s + email);
    stage.world.setPinned({ project });
    stage.world.list({ project, u"second-"_s + project });
    stage.open();
}

void openNonLatin(Stage &stage)
{
    openUsual(stage);
    stage.world.list({ u"tokyo-billing"_s, u"athens-web"_s, u"moscow-data"_s },
                     { { u"tokyo-billing"_s, u"東京の請求"_s },
                       { u"athens-web"_s, u"Ιστότοπος Αθήνας"_s },
                       { u"moscow-data"_s, u"Данные Москвы"_s } });
    stage.world.saveAccount(u"atlas-prod-7421"_s, u"a@atlas-prod-7421"_s, u"デプロイ担当"_s);
    stage.world.saveAccount(u"atlas-prod-7421"_s, u"b@atlas-prod-7421"_s, u"مشغّل النشر"_s);
    stage.hover(u"projects/rows/tokyo-billing"_s);
}

void impersonate(World &world, bool byCli, bool byADC)
{
    setUsual(world);
    world.saveAccount(u"atlas-prod-7421"_s, kDeployer, u"Deployer"_s);
    world.saveAccount(u"atlas-prod-7421"_s, u"reader@atlas-prod-7421.iam.gserviceaccount.com"_s);
    if (byCli) {
        world.configure({ { u"impersonate"_s, kDeployer } });
    }
    if (byADC) {
        world.setADC(u"impersonated_service_account"_s, {}, kDeployer);
    }
}

void openThousands(Stage &stage)
{
    signIn(stage.world);
    stage.world.setPinned({ u"project-00042"_s });
    stage.world.setRecents({ u"project-00007"_s });
    stage.world.listNumbered(10'000);
    stage.open();
}

/// The last sections, in a state that `set` makes.
Scene lastSections(const QString &name, std::function<void(World &)> set)
{
    return { name, [set = std::move(set)](Stage &stage) {
                set(stage.world);
                stage.open();
                stage.scrollTo(stage.world.stateManager()->isImpersonating() ? 340 : 290);
            } };
}

Scene adcOf(const QString &name, const QString &type, const QVariant &quotaProject,
            const QVariant &email = {})
{
    return lastSections(name, [=](World &world) {
        setUsual(world);
        world.setADC(type, quotaProject, email);
    });
}

std::vector<Scene> contextScenes()
{
    return {
        { u"empty"_s,
          [](Stage &stage) {
              stage.world.expect(u"listProjects"_s);
              stage.world.finish(u"[]"_s);
              stage.open();
          } },
        { u"loading"_s,
          [](Stage &stage) {
              signIn(stage.world);
              stage.world.expect(u"listProjects"_s);
              stage.open();
          } },
        { u"usual"_s, openUsual },
        { u"usual-end"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.scrollTo(290);
          } },
        { u"error"_s,
          [](Stage &stage) {
              openWithError(stage, u"gcloud CLI not found. Please install the Google Cloud SDK."_s);
          } },
        { u"error-traceback"_s, [](Stage &stage) { openWithError(stage, traceback()); } },
        { u"no-project"_s,
          [](Stage &stage) {
              setUsual(stage.world);
              stage.world.configure({ { u"project"_s, QVariant() } });
              stage.open();
          } },
        { u"long-names"_s, openLong },
        { u"long-names-end"_s,
          [](Stage &stage) {
              openLong(stage);
              stage.scrollTo(150);
          } },
        { u"non-latin"_s, openNonLatin },
    };
}

std::vector<Scene> identityScenes()
{
    return {
        lastSections(u"impersonating-cli"_s, [](World &world) { impersonate(world, true, false); }),
        lastSections(u"impersonating-adc"_s, [](World &world) { impersonate(world, false, true); }),
        lastSections(u"impersonating-both"_s, [](World &world) { impersonate(world, true, true); }),
        { u"impersonating-card"_s,
          [](Stage &stage) {
              impersonate(stage.world, true, true);
              stage.open();
          } },
        adcOf(u"adc-user"_s, u"authorized_user"_s, u"atlas-prod-7421"_s),
        adcOf(u"adc-key"_s, u"service_account"_s, {}, kDeployer),
        adcOf(u"adc-impersonated"_s, u"impersonated_service_account"_s, u"atlas-prod-7421"_s),
        adcOf(u"adc-none"_s, u"none"_s, {}),
    };
}

std::vector<Scene> projectScenes()
{
    const auto numbered = [](int count) {
        return [count](Stage &stage) {
            signIn(stage.world);
            stage.world.listNumbered(count);
            stage.open();
        };
    };
    return {
        { u"projects-5"_s, numbered(5) },
        { u"projects-6"_s, numbered(6) },
        { u"projects-10000"_s, openThousands },
        { u"projects-10000-middle"_s,
          [](Stage &stage) {
              openThousands(stage);
              stage.scrollTo(140'000);
          } },
        { u"projects-10000-end"_s,
          [](Stage &stage) {
              openThousands(stage);
              stage.key(Qt::Key_Up);
          } },
        { u"filter-hits"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.type(u"prod"_s);
          } },
        { u"filter-none"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.type(u"nowhere"_s);
          } },
    };
}

std::vector<Scene> controlScenes()
{
    return {
        { u"hover"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.hover(u"projects/rows/atlas-prod-7421"_s);
          } },
        { u"focus"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.key(Qt::Key_Down);
              stage.key(Qt::Key_Down);
          } },
        { u"focus-button"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.key(Qt::Key_Tab);
          } },
        { u"pressed"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.press(u"projects/rows/data-warehouse"_s);
          } },
        { u"disabled"_s,
          [](Stage &stage) {
              stage.world.expect(u"listProjects"_s);
              stage.open();
          } },
        { u"menu"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.click(u"projects/rows/web-frontend-prod"_s, Qt::RightButton);
          } },
        { u"copying"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.world.expect(u"printIdentityToken"_s);
              stage.click(u"copyButton"_s);
          } },
        { u"copied"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.world.expect(u"printIdentityToken"_s);
              stage.world.finish(u"token"_s);
              stage.click(u"copyButton"_s);
          } },
        { u"refreshed"_s,
          [](Stage &stage) {
              openUsual(stage);
              stage.key(Qt::Key_F5);
          } },
    };
}

} // namespace

std::vector<Scene> scenes()
{
    std::vector<Scene> all;
    for (std::vector<Scene> part :
         { contextScenes(), identityScenes(), projectScenes(), controlScenes() }) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

} // namespace torvi
