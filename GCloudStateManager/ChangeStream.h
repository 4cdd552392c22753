// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <qcoro/qcorotask.h>

#include <functional>
#include <memory>

namespace torvi {

/// An unbounded asynchronous stream of empty elements, from any thread to one consumer on the
/// thread that made the stream. Copies share the stream.
///
/// The producer yields and finishes; the consumer awaits next() in a loop and may cancel. A
/// finished or cancelled stream stays so; buffered elements are still delivered after finish(), not
/// after cancel().
class ChangeStream
{
    class State;

public:
    ChangeStream();

    /// Adds an element. Thread: any.
    void yield();
    /// Ends the stream after its buffered elements. Thread: any.
    void finish();
    /// `callback` runs once, on the consumer's thread, when the stream is cancelled; at once when
    /// it has been already. Set before the stream is handed to its consumer.
    void onCancel(std::function<void()> callback);

    /// `co_await stream.next()`: true for an element, false once the stream has ended. The consumer
    /// resumes from its thread's event loop, never inside yield(). Store the result in a variable
    /// before testing it: g++ 12 destroys the task too early in the condition of a loop.
    [[nodiscard]] QCoro::Task<bool> next();
    /// Ends the stream at once, dropping what is buffered. Thread: the consumer's.
    void cancel();

private:
    std::shared_ptr<State> m_state;
};

} // namespace torvi
