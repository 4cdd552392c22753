// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <cstdint>
#include <iostream>
#include <random>

namespace torvi {

/// The numbers behind a random test: the same in every run unless TORVI_SEED names others, and
/// named when the test starts so that a failure can be run again.
class Random
{
public:
    Random()
        : m_seed(qEnvironmentVariableIsSet("TORVI_SEED") ? qgetenv("TORVI_SEED").toUInt()
                                                         : 20260101U)
        , m_engine(m_seed)
    {
        std::cout << "TORVI_SEED=" << m_seed << '\n';
    }

    /// From 0 to `bound` - 1.
    int below(int bound)
    {
        return std::uniform_int_distribution(0, bound - 1)(m_engine);
    }

    bool oneIn(int chances)
    {
        return below(chances) == 0;
    }

    template <typename List>
    auto oneOf(const List &list)
    {
        return list[static_cast<decltype(list.size())>(below(static_cast<int>(list.size())))];
    }

private:
    std::uint32_t m_seed;
    std::mt19937 m_engine;
};

/// How often a random test repeats: `usual`, times TORVI_EFFORT where that is set.
inline int repetitions(int usual)
{
    const int effort = qEnvironmentVariableIntValue("TORVI_EFFORT");
    return effort > 0 ? usual * effort : usual;
}

} // namespace torvi
