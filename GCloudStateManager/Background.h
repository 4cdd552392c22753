// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QPromise>

#include <stop_token>
#include <thread>
#include <type_traits>
#include <utility>

namespace torvi {

/// Runs `work` on a thread of its own, for what would block the event loop. It is asked to stop,
/// and waited for, when the program ends: a search that Ctrl-C interrupts ends the shell that it
/// asked. Called once for each type of work. Errors: what `work` throws is the future's.
template <typename Work>
auto inBackground(Work work) -> QFuture<std::invoke_result_t<Work, std::stop_token>>
{
    using Result = std::invoke_result_t<Work, std::stop_token>;
    QPromise<Result> promise;
    QFuture<Result> future = promise.future();
    static std::jthread thread;
    thread = std::jthread(
        [work = std::move(work)](std::stop_token stop, QPromise<Result> result) {
            result.start();
            try {
                result.addResult(work(stop));
            } catch (...) {
                result.setException(std::current_exception());
            }
            result.finish();
        },
        std::move(promise));
    return future;
}

} // namespace torvi
