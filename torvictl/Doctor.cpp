// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/HomeDirectory.h"
#include "GCloudCLI/ProcessExecutor.h"
#include "GCloudModels/AppError.h"
#include "GCloudStateManager/Preferences.h"
#include "torvictl/Background.h"
#include "torvictl/Diagnosis.h"
#include "torvictl/Operations.h"
#include "torvictl/Terminal.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <qcoro/qcorofuture.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QCoro::Task<std::optional<QString>> versionOf(QString gcloud)
{
    ProcessExecutor executor(
        std::make_shared<GCloudPathResolver>(gcloud)); // searches no second time
    const GCloudResult result = co_await executor.execute(GCloudCommand::version());
    const QString version
        = QJsonDocument::fromJson(result.stdout.toUtf8())[u"Google Cloud SDK"_s].toString();
    co_return result.isSuccess() && !version.isEmpty() ? std::optional(version) : std::nullopt;
}

} // namespace

QCoro::Task<int> Operations::doctor(DependencyContainer &container)
{
    Diagnosis diagnosis;
    diagnosis.pathSetting = container.settingsStore().gcloudPathOverride();
    diagnosis.configDirectory = container.stateManager().configReader().configDirectory();
    diagnosis.preferencesFile = Preferences::defaultPath();
    diagnosis.homeDirectory = homeDirectory();
    diagnosis.environment = QProcessEnvironment::systemEnvironment();

    QElapsedTimer timer;
    timer.start();
    const auto search
        = inBackground([setting = diagnosis.pathSetting](const std::stop_token &stop) {
              return GCloudPathResolver(setting).find(stop);
          });
    diagnosis.gcloud = co_await search;
    diagnosis.searchTime = std::chrono::milliseconds(timer.elapsed());
    if (diagnosis.gcloud) {
        diagnosis.gcloudVersion = co_await versionOf(diagnosis.gcloud->path);
    }
    (void)Terminal::print(aligned(diagnosis.rows(), Terminal::colours()).toUtf8());
    if (!diagnosis.gcloud) {
        throw AppError::gcloudNotFound();
    }
    if (const auto advice = diagnosis.advice()) {
        (void)Terminal::print('\n' + advice->toUtf8() + '\n');
    }
    co_return 0;
}

} // namespace torvi
