// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/JSONMember.h"

#include "GCloudCLI/JSONObject.h"

#include <stdexcept>

namespace torvi {

JSONMember::JSONMember(const JSONObject &object, std::string_view key)
    : m_object(&object)
    , m_key(key)
{
}

QString JSONMember::string() const
{
    std::string_view text;
    if (!m_value || m_value->get(text) != simdjson::SUCCESS) {
        fail("must be a string");
    }
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool JSONMember::boolean() const
{
    bool value = false;
    if (!m_value || m_value->get(value) != simdjson::SUCCESS) {
        fail("must be true or false");
    }
    return value;
}

std::optional<QString> JSONMember::optionalString() const
{
    return isAbsent() ? std::nullopt : std::optional(string());
}

std::optional<JSONObject> JSONMember::optionalObject() const
{
    return isAbsent() ? std::nullopt : std::optional(JSONObject(*m_value, *this));
}

std::optional<QString> JSONMember::stringOrNothing() const
{
    return m_value && m_value->is_string() ? std::optional(string()) : std::nullopt;
}

std::string JSONMember::where() const
{
    return m_object->where(m_key);
}

bool JSONMember::isAbsent() const
{
    return !m_value || m_value->is_null();
}

void JSONMember::fail(std::string_view expected) const
{
    throw std::runtime_error(where() + ' ' + std::string(m_value ? expected : "is missing"));
}

} // namespace torvi
