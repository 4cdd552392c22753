// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/PipeAccumulator.h"

namespace torvi {

void PipeAccumulator::append(QByteArrayView bytes)
{
    const std::lock_guard guard(m_lock);
    m_data.append(bytes);
}

QByteArray PipeAccumulator::data() const
{
    const std::lock_guard guard(m_lock);
    return m_data;
}

} // namespace torvi
