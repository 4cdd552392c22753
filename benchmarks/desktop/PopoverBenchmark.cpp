// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// PopoverBenchmark PROJECTS: prints, as one JSON object, what the popover costs with so many
// projects: times in milliseconds, memory in kilobytes.

#include "VeldraUI/AuthState.h"
#include "VeldraUI/ProjectListModel.h"
#include "benchmarks/desktop/PopoverStage.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr int kRounds = 30;
const QString kFilter = u"orchid-service-104"_s; // of 10,000 projects 100 stay

/// The memory that is this process's alone, or its share of what is not.
double proportionalKilobytes()
{
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QRegularExpression line(u"\nPss:\\s+(\\d+)"_s);
    return line.match(QString::fromLatin1(file.readAll())).captured(1).toDouble();
}

QJsonObject summary(std::vector<double> times)
{
    std::ranges::sort(times);
    return { { u"median"_s, times[times.size() / 2] }, { u"max"_s, times.back() } };
}

QJsonObject opening(PopoverStage &stage)
{
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
        stage.close();
        times.push_back(stage.timeToShow());
        stage.settle();
    }
    return summary(times);
}

/// From a key to its frame, with the filter's text growing and shrinking again.
QJsonObject typing(PopoverStage &stage)
{
    stage.item(u"projects/filter"_s)->property("field").value<QQuickItem *>()->forceActiveFocus();
    std::vector<double> times;
    for (const QChar character : kFilter) {
        times.push_back(
            stage.timeToFrame([&] { stage.type(Qt::Key_unknown, QString(character)); }));
        stage.settle();
    }
    for (qsizetype i = 0; i < kFilter.size(); ++i) {
        times.push_back(stage.timeToFrame([&] { stage.type(Qt::Key_Backspace, u"\b"_s); }));
        stage.settle();
    }
    return summary(times);
}

/// What each key costs the model alone.
QJsonObject filtering(AuthStateManager &manager)
{
    SystemClipboard clipboard;
    AuthState state(manager, clipboard);
    ProjectListModel model;
    model.setStateManager(&state);
    std::vector<double> times;
    const auto filter = [&](qsizetype length) {
        QElapsedTimer timer;
        timer.start();
        model.setFilterText(kFilter.left(length));
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    };
    for (int round = 0; round < kRounds; ++round) {
        for (qsizetype length = 1; length <= kFilter.size(); ++length) {
            filter(length);
        }
        for (qsizetype length = kFilter.size(); length-- > 0;) {
            filter(length);
        }
    }
    return summary(times);
}

QJsonObject jumping(PopoverStage &stage)
{
    QQuickItem *area = stage.item(u"scrollArea"_s);
    const double far = area->property("contentHeight").toDouble() - area->height();
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
        const double place = i % 2 == 0 ? far / 2 + i * 97 : 0;
        times.push_back(stage.timeToFrame([&] { area->setProperty("contentY", place); }));
    }
    return summary(times);
}

QJsonObject measure(int projectCount)
{
    PopoverStage stage(projectCount);
    static_cast<void>(stage.timeToShow());
    stage.settle();
    QJsonObject results{ { u"memory"_s, proportionalKilobytes() } };
    const auto [alive, onScreen] = stage.delegates();
    results[u"alive"_s] = alive;
    results[u"onScreen"_s] = onScreen;
    results[u"warm"_s] = opening(stage);
    if (projectCount > 0) {
        results[u"jump"_s] = jumping(stage);
        results[u"typing"_s] = typing(stage);
        results[u"filtering"_s] = filtering(stage.manager());
    }
    return results;
}

} // namespace

} // namespace torvi

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const int projectCount = QCoreApplication::arguments().value(1).toInt();
    std::puts(QJsonDocument(torvi::measure(projectCount)).toJson(QJsonDocument::Compact).data());
    return 0;
}
