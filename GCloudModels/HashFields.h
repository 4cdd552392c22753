// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHashFunctions>

#include <optional>
#include <type_traits>

namespace torvi {

template <typename T>
[[nodiscard]] size_t hashField(size_t seed, const T &field)
{
    if constexpr (std::is_enum_v<T>) {
        return qHashMulti(seed, static_cast<std::underlying_type_t<T>>(field));
    } else {
        return qHashMulti(seed, field);
    }
}

/// An optional contributes a presence flag and then its value, so that absent and empty differ.
template <typename T>
[[nodiscard]] size_t hashField(size_t seed, const std::optional<T> &field)
{
    seed = qHashMulti(seed, field.has_value());
    return field ? hashField(seed, *field) : seed;
}

/// Combines the fields of a record into its hash, in order.
template <typename... Fields>
[[nodiscard]] size_t hashFields(size_t seed, const Fields &...fields)
{
    ((seed = hashField(seed, fields)), ...);
    return seed;
}

} // namespace torvi
