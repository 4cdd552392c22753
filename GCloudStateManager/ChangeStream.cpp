// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/ChangeStream.h"

#include <QMetaObject>
#include <QObject>

#include <mutex>
#include <utility>

namespace torvi {

/// `waker` lives on the consumer's thread: posting to it is what moves a wake-up there.
class ChangeStream::State : public std::enable_shared_from_this<State>
{
public:
    /// Suspends the consumer until there is an element or the end.
    struct Next
    {
        std::shared_ptr<State> state;

        [[nodiscard]] bool await_ready() const
        {
            return false;
        }

        [[nodiscard]] bool await_suspend(std::coroutine_handle<> consumer) const
        {
            return state->suspend(consumer);
        }

        [[nodiscard]] bool await_resume() const
        {
            return state->take();
        }
    };

    void yield()
    {
        const std::lock_guard guard(m_lock);
        if (!m_ended) {
            ++m_buffered;
            wakeLater();
        }
    }

    void end(bool dropBuffered)
    {
        const std::lock_guard guard(m_lock);
        m_ended = true;
        if (dropBuffered) {
            m_buffered = 0;
        }
        wakeLater();
    }

    void onCancel(std::function<void()> callback)
    {
        {
            const std::lock_guard guard(m_lock);
            if (!m_cancelled) {
                m_onCancel = std::move(callback);
                return;
            }
        }
        callback();
    }

    void cancel()
    {
        std::function<void()> callback;
        {
            const std::lock_guard guard(m_lock);
            m_cancelled = true;
            callback = std::exchange(m_onCancel, nullptr);
        }
        end(true);
        if (callback) {
            callback();
        }
    }

    [[nodiscard]] bool suspend(std::coroutine_handle<> consumer)
    {
        const std::lock_guard guard(m_lock);
        if (m_buffered > 0 || m_ended) {
            return false;
        }
        m_consumer = consumer;
        return true;
    }

    [[nodiscard]] bool take()
    {
        const std::lock_guard guard(m_lock);
        if (m_buffered == 0) {
            return false;
        }
        --m_buffered;
        return true;
    }

private:
    void wakeLater()
    {
        QMetaObject::invokeMethod(
            &m_waker, [self = shared_from_this()] { self->wake(); }, Qt::QueuedConnection);
    }

    void wake()
    {
        std::coroutine_handle<> consumer;
        {
            const std::lock_guard guard(m_lock);
            if (m_buffered == 0 && !m_ended) {
                return; // the consumer took the element before it came to suspend
            }
            consumer = std::exchange(m_consumer, nullptr);
        }
        if (consumer) {
            consumer.resume();
        }
    }

    std::mutex m_lock;
    std::size_t m_buffered = 0;
    bool m_ended = false;
    bool m_cancelled = false;
    std::coroutine_handle<> m_consumer;
    std::function<void()> m_onCancel;
    QObject m_waker;
};

ChangeStream::ChangeStream()
    : m_state(std::make_shared<State>())
{
}

void ChangeStream::yield()
{
    m_state->yield();
}

void ChangeStream::finish()
{
    m_state->end(false);
}

void ChangeStream::onCancel(std::function<void()> callback)
{
    m_state->onCancel(std::move(callback));
}

QCoro::Task<bool> ChangeStream::next()
{
    State::Next next{ m_state }; // a local: g++ 12 does not keep the temporary alive
    co_return co_await next;
}

void ChangeStream::cancel()
{
    m_state->cancel();
}

} // namespace torvi
