// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Doctor.h"

#include "GCloudModels/AppError.h"
#include "GCloudStateManager/Diagnosis.h"
#include "Torvi/Linux/DesktopDiagnosis.h"

#include <iostream>
#include <optional>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

int print(const Diagnosis &diagnosis)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    std::cout
        << aligned(diagnosis.rows() + DesktopDiagnosis::ofThisSession(bus).rows()).toStdString();
    if (const auto advice = diagnosis.advice()) {
        std::cout << '\n' << advice->toStdString() << '\n';
    }
    std::cout.flush();
    if (!diagnosis.gcloud) {
        std::cerr << AppError::gcloudNotFound().what() << std::endl;
        return 1;
    }
    return 0;
}

QCoro::Task<> examine(const DependencyContainer &container, std::optional<int> &exitCode)
{
    try {
        const Row program{ u"torvi"_s, QStringLiteral(TORVI_VERSION) };
        const Diagnosis diagnosis = co_await Diagnosis::ofThisMachine(program, container);
        exitCode = print(diagnosis);
    } catch (const std::exception &error) {
        std::cerr << error.what() << std::endl;
        exitCode = 1;
    }
    QCoreApplication::exit(*exitCode);
}

} // namespace

int Doctor::run()
{
    const DependencyContainer container(nullptr); // nobody signs in here
    std::optional<int> exitCode;
    examine(container, exitCode);
    return exitCode ? *exitCode : QCoreApplication::exec();
}

} // namespace torvi
