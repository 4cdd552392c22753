// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/JSONMember.h"

#include <simdjson.h>

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace torvi {

/// An object of a JSONDocument, and where in it, for messages. A borrowed view: valid as long as
/// the document and, for a nested object, the member that holds it.
class JSONObject
{
public:
    /// The object `value`.
    ///
    /// `position` counts from 1 and tells which element of the array at the top level it is; absent
    /// for the top level itself.
    /// Errors: throws std::runtime_error when `value` is no object.
    explicit JSONObject(simdjson::dom::element value,
                        std::optional<std::size_t> position = std::nullopt);
    /// The object that `owner` holds. Errors: as above.
    JSONObject(simdjson::dom::element value, const JSONMember &owner);

    /// The members with these keys, in this order, whether present or not, found in one pass: an
    /// answer can hold thousands of objects. Of a repeated key the last one counts.
    template <typename... Keys>
    [[nodiscard]] std::array<JSONMember, sizeof...(Keys)> members(Keys... keys) const
    {
        std::array result{ JSONMember(*this, keys)... };
        find(result);
        return result;
    }

    /// Where the member `key` of this object is, as in `element 3: "parent"."id"`.
    [[nodiscard]] std::string where(std::string_view key) const;

private:
    void find(std::span<JSONMember> members) const;

    simdjson::dom::object m_object;
    std::optional<std::size_t> m_position;
    const JSONMember *m_owner = nullptr;
};

} // namespace torvi
