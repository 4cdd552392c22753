// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <simdjson.h>

#include <optional>
#include <string>
#include <string_view>

namespace torvi {

class JSONObject;

/// One member of a JSONObject by its key, whether the object has it or not. A borrowed view, valid
/// as long as that object.
///
/// Errors: unless it says otherwise, each call throws std::runtime_error, whose text names the
/// member and its place, for a value of another type; an optional one may be missing or null.
class JSONMember
{
public:
    JSONMember(const JSONObject &object, std::string_view key);

    [[nodiscard]] QString string() const;
    [[nodiscard]] bool boolean() const;
    [[nodiscard]] std::optional<QString> optionalString() const;
    [[nodiscard]] std::optional<JSONObject> optionalObject() const;

    /// The string, or nothing when the member is missing or anything else. Never throws.
    [[nodiscard]] std::optional<QString> stringOrNothing() const;

    [[nodiscard]] std::string_view key() const
    {
        return m_key;
    }

    /// Where it is, as in `element 3: "parent"."id"`.
    [[nodiscard]] std::string where() const;

    void setValue(simdjson::dom::element value)
    {
        m_value = value;
    }

private:
    [[nodiscard]] bool isAbsent() const;
    [[noreturn]] void fail(std::string_view expected) const;

    const JSONObject *m_object;
    std::string_view m_key;
    std::optional<simdjson::dom::element> m_value;
};

} // namespace torvi
