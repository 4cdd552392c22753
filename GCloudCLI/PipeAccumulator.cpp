// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/PipeAccumulator.h"

#include <algorithm>

namespace torvi {

void PipeAccumulator::append(QByteArrayView bytes)
{
    const std::lock_guard guard(m_lock);
    const qsizetype size = m_data.size() + bytes.size();
    if (size > m_data.capacity()) {
        // Unlike append()'s own growth, reserve() lets the system move the pages of a large buffer
        // instead of copying them.
        m_data.reserve(std::max(size, 2 * m_data.capacity()));
    }
    m_data.append(bytes);
}

QByteArray PipeAccumulator::data() const
{
    const std::lock_guard guard(m_lock);
    return m_data;
}

} // namespace torvi
