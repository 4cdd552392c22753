// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/RowChanges.h"

#include <QHash>

#include <functional>
#include <iterator>
#include <vector>

namespace torvi {

/// Where each record stands in the next list, or kGone: records are the same when their identities
/// are, and among records of one identity the first stays the first.
template <typename Records, typename NextRecords, typename Identity>
[[nodiscard]] std::vector<int> nextRowsByIdentity(const Records &records, const NextRecords &next,
                                                  Identity identity)
{
    if (std::empty(records)) {
        return {}; // a list's first content: nothing to find in it
    }
    QMultiHash<QString, int> places;
    places.reserve(static_cast<qsizetype>(next.size()));
    for (int row = static_cast<int>(next.size()); row-- > 0;) {
        places.insert(std::invoke(identity, next[row]),
                      row); // the last one inserted is found first
    }
    std::vector<int> nextRows;
    nextRows.reserve(static_cast<std::size_t>(records.size()));
    for (const auto &record : records) {
        const auto place = places.constFind(std::invoke(identity, record));
        nextRows.push_back(place == places.cend() ? kGone : *place);
        if (place != places.cend()) {
            places.erase(place);
        }
    }
    return nextRows;
}

} // namespace torvi
