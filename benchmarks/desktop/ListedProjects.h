// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudExecutor.h"

#include <utility>

namespace torvi {

/// A gcloud that lists the same projects each time, at once.
class ListedProjects final : public GCloudExecutor
{
public:
    explicit ListedProjects(QString json)
        : m_result{ 0, std::move(json), {} }
    {
    }

    QCoro::Task<GCloudResult> execute(GCloudCommand /*command*/) override
    {
        co_return m_result;
    }

private:
    GCloudResult m_result;
};

} // namespace torvi
