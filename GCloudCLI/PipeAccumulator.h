// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <mutex>

namespace torvi {

/// Gathers the bytes of one pipe. Thread: any, guarded by its own lock.
class PipeAccumulator final
{
public:
    void append(QByteArrayView bytes);

    /// Everything so far. Shares the buffer: free unless more is appended while the copy lives.
    [[nodiscard]] QByteArray data() const;

private:
    mutable std::mutex m_lock;
    QByteArray m_data;
};

} // namespace torvi
