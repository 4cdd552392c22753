// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/StandIn.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QString place(const QJsonObject &request)
{
    return request[u"host"].toString() + request[u"path"].toString();
}

} // namespace

StandIn::StandIn(const QString &certificate)
{
    const QString sources = QStringLiteral(TORVI_GCLOUD_TESTS);
    m_program = std::make_unique<Program>(
        u"python3"_s,
        QStringList{ sources + u"/api_standin.py"_s, sources + u"/world.json"_s, certificate },
        QProcessEnvironment::systemEnvironment());
    m_port = ask({})[u"port"].toInt();
}

void StandIn::enter(QProcessEnvironment &environment, const QString &certificateAuthority) const
{
    const QString address = u"http://127.0.0.1:%1"_s.arg(m_port);
    environment.insert(u"HTTPS_PROXY"_s, address);
    environment.insert(u"HTTP_PROXY"_s, address);
    environment.insert(u"NO_PROXY"_s, u"127.0.0.1,localhost"_s);
    environment.insert(u"REQUESTS_CA_BUNDLE"_s, certificateAuthority);
}

void StandIn::goDown()
{
    ask({ { u"do"_s, u"down"_s } });
}

void StandIn::refuse(const QString &pattern, int status)
{
    ask({ { u"do"_s, u"answer"_s }, { u"path"_s, pattern }, { u"status"_s, status } });
}

void StandIn::hold(const QString &pattern)
{
    ask({ { u"do"_s, u"hold"_s }, { u"path"_s, pattern } });
}

bool StandIn::awaitHeld()
{
    return ask({ { u"do"_s, u"awaitHeld"_s } }).contains(u"held");
}

void StandIn::release()
{
    ask({ { u"do"_s, u"release"_s } });
}

QStringList StandIn::requests()
{
    QStringList result;
    for (const QJsonValue &request : log()) {
        result.append(request[u"method"].toString() + u' ' + place(request.toObject()));
    }
    return result;
}

QStringList StandIn::callers(const QString &path)
{
    QStringList result;
    for (const QJsonValue &request : log()) {
        if (request[u"path"] == path) {
            result.append(request[u"caller"].toString());
        }
    }
    return result;
}

QStringList StandIn::unknownRequests()
{
    QStringList result;
    for (const QJsonValue &request : log()) {
        const int status = request[u"status"].toInt();
        if (status == 404 || status == 502) {
            result.append(place(request.toObject()));
        }
    }
    return result;
}

QJsonArray StandIn::log()
{
    return ask({ { u"do"_s, u"requests"_s } })[u"requests"].toArray();
}

QJsonObject StandIn::ask(const QJsonObject &order)
{
    if (!order.isEmpty()) {
        m_program->write(QJsonDocument(order).toJson(QJsonDocument::Compact) + '\n');
    }
    QByteArray answer;
    const bool isAnswered = m_program->waitForOutput([&](const QByteArray &output) {
        const QByteArrayList lines = output.split('\n');
        const bool isWhole = lines.size() > m_linesRead + 1; // the last one is not ended yet
        answer = isWhole ? lines[m_linesRead] : QByteArray();
        return isWhole;
    });
    EXPECT_TRUE(isAnswered) << "The stand-in did not answer";
    ++m_linesRead;
    return QJsonDocument::fromJson(answer).object();
}

} // namespace torvi
