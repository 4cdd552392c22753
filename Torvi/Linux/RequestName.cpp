// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/RequestName.h"

using namespace Qt::StringLiterals;

namespace torvi {

using CommandLine::Request;

std::optional<QString> actionName(Request request)
{
    switch (request) {
    case Request::start:
        return std::nullopt;
    case Request::toggle:
        return u"toggle"_s;
    case Request::manager:
        return u"manager"_s;
    case Request::quit:
        return u"quit"_s;
    }
    Q_UNREACHABLE();
}

std::optional<Request> requestNamed(const QString &action)
{
    for (const Request request : { Request::toggle, Request::manager, Request::quit }) {
        if (actionName(request) == action) {
            return request;
        }
    }
    return std::nullopt;
}

} // namespace torvi
