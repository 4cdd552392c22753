// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/AuthStateManager.h"

#include <QTemporaryDir>

#include <memory>

namespace torvi {

/// A real state manager over 5 configurations, 5 accounts and so many projects, read already.
class SampleState final
{
public:
    explicit SampleState(int projectCount);

    [[nodiscard]] AuthStateManager &manager() const;

private:
    QTemporaryDir m_directory;
    std::unique_ptr<AuthStateManager> m_manager;
};

} // namespace torvi
