// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/ApplicationAdaptor.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>

namespace torvi {

/// One running program a session: the first start owns a name on the bus, later ones pass on what
/// they ask for. Main thread only.
class SingleInstance final
{
public:
    enum class Outcome {
        isFirst, ///< this process owns the name and answers under it
        passedOn, ///< the running program has taken the request
        noAnswer, ///< a program owns the name but does not answer
        noBus, ///< there is no session bus, so nothing is known of other starts
    };

    /// A program that has just started answers once its event loop runs.
    static constexpr std::chrono::seconds kPatience{ 10 };

    [[nodiscard]] static QString name();

    explicit SingleInstance(QDBusConnection connection);
    /// Gives the name up.
    ~SingleInstance();
    Q_DISABLE_COPY_MOVE(SingleInstance)

    /// Owns the name, or passes `request` on; blocks for that. `handler` gets what later starts ask
    /// for.
    [[nodiscard]] Outcome claimOrPassOn(CommandLine::Request request,
                                        ApplicationAdaptor::Handler handler,
                                        std::chrono::milliseconds patience = kPatience);

    /// Passes `request` on without ever owning the name: passedOn, noAnswer, noBus, or, when
    /// nothing runs, isFirst.
    [[nodiscard]] Outcome passOn(CommandLine::Request request,
                                 std::chrono::milliseconds patience = kPatience);

private:
    QDBusConnection m_connection;
    QObject m_object; ///< what is on the bus; owns the adaptor
    bool m_isOwner = false;
};

} // namespace torvi
