// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ADCFileParser.h"

#include "GCloudCLI/JSONDocument.h"
#include "GCloudCLI/JSONObject.h"

using namespace Qt::StringLiterals;

namespace torvi::ADCFileParser {

namespace {

ADCType typeOf(const std::optional<QString> &text)
{
    return text ? fromRawValue<ADCType>(*text).value_or(ADCType::none) : ADCType::none;
}

/// The e-mail in an address that ends in "serviceAccounts/EMAIL:generateAccessToken".
std::optional<QString> impersonatedEmail(const QString &url)
{
    const QString collection = u"serviceAccounts/"_s;
    const qsizetype start = url.indexOf(collection);
    if (start < 0) {
        return std::nullopt;
    }
    const QString rest = url.sliced(start + collection.size());
    const qsizetype end = rest.indexOf(u':');
    return end < 0 ? rest : rest.first(end);
}

} // namespace

ADCState parse(const QByteArray &json)
{
    const JSONDocument document(json);
    if (!document.root().is_object()) {
        return {};
    }
    const JSONObject object(document.root());
    const auto [type, quotaProject, clientEmail, impersonationUrl] = object.members(
        "type", "quota_project_id", "client_email", "service_account_impersonation_url");
    ADCState state{ typeOf(type.stringOrNothing()), quotaProject.stringOrNothing(),
                    clientEmail.stringOrNothing(), true };
    const std::optional<QString> url = impersonationUrl.stringOrNothing();
    if (!state.clientEmail && url) {
        state.clientEmail = impersonatedEmail(*url);
    }
    return state;
}

} // namespace torvi::ADCFileParser
