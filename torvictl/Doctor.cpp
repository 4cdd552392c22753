// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/AppError.h"
#include "GCloudStateManager/Diagnosis.h"
#include "torvictl/Operations.h"
#include "torvictl/Terminal.h"

using namespace Qt::StringLiterals;

namespace torvi {

QCoro::Task<int> Operations::doctor(DependencyContainer &container)
{
    const Row program{ u"torvictl"_s, QStringLiteral(TORVI_VERSION) };
    const Diagnosis diagnosis = co_await Diagnosis::ofThisMachine(program, container);
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
