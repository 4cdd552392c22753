// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <utility>

namespace torvi {

/// The texts of an enum's cases, in declaration order: what is stored, printed and read back.
/// An enum opts in by specialising this with an array of {case, text}.
template <typename Enum>
inline constexpr std::array<std::pair<Enum, QStringView>, 0> kRawValues{};

/// The text of `value`.
template <typename Enum>
[[nodiscard]] QString rawValue(Enum value)
{
    for (const auto &[candidate, text] : kRawValues<Enum>) {
        if (candidate == value) {
            return text.toString();
        }
    }
    Q_UNREACHABLE();
}

/// The case whose text is exactly `text` (case-sensitive), or nothing.
template <typename Enum>
[[nodiscard]] std::optional<Enum> fromRawValue(QStringView text)
{
    for (const auto &[value, candidate] : kRawValues<Enum>) {
        if (candidate == text) {
            return value;
        }
    }
    return std::nullopt;
}

/// All cases in declaration order.
template <typename Enum>
[[nodiscard]] constexpr auto allCases()
{
    std::array<Enum, kRawValues<Enum>.size()> cases{};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        cases[i] = kRawValues<Enum>[i].first;
    }
    return cases;
}

} // namespace torvi
