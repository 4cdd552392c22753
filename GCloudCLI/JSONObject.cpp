// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/JSONObject.h"

#include <stdexcept>

namespace torvi {

JSONObject::JSONObject(simdjson::dom::element value, std::optional<std::size_t> position)
    : m_position(position)
{
    if (value.get(m_object) != simdjson::SUCCESS) {
        throw std::runtime_error(
            (position ? "element " + std::to_string(*position) : std::string("the top level"))
            + " must be an object");
    }
}

JSONObject::JSONObject(simdjson::dom::element value, const JSONMember &owner)
    : m_owner(&owner)
{
    if (value.get(m_object) != simdjson::SUCCESS) {
        throw std::runtime_error(owner.where() + " must be an object");
    }
}

std::string JSONObject::where(std::string_view key) const
{
    std::string place;
    if (m_owner != nullptr) {
        place = m_owner->where() + '.';
    } else if (m_position) {
        place = "element " + std::to_string(*m_position) + ": ";
    }
    return place + '"' + std::string(key) + '"';
}

void JSONObject::find(std::span<JSONMember> members) const
{
    for (const simdjson::dom::key_value_pair field : m_object) {
        for (JSONMember &member : members) {
            if (field.key == member.key()) {
                member.setValue(field.value);
                break;
            }
        }
    }
}

} // namespace torvi
