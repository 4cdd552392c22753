// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/FileWatcher.h"

#include "GCloudStateManager/Debouncer.h"
#include "GCloudStateManager/FileEventStream.h"

#include <mutex>
#include <utility>
#include <vector>

namespace torvi {

/// What is running; apart from the watcher, so that a cancelled stream may outlive that.
class FileWatcher::Watching
{
public:
    void add(std::unique_ptr<FileEventStream> stream)
    {
        const std::lock_guard guard(m_lock);
        if (m_current) {
            m_replaced.push_back(std::move(m_current));
        }
        m_current = std::move(stream);
    }

    void stop()
    {
        const std::lock_guard guard(m_lock);
        m_current.reset();
    }

private:
    std::mutex m_lock;
    std::unique_ptr<FileEventStream> m_current;
    std::vector<std::unique_ptr<FileEventStream>> m_replaced; // they run on: see start()
};

FileWatcher::FileWatcher(QStringList paths, std::chrono::milliseconds debounceInterval)
    : m_paths(std::move(paths))
    , m_debounceInterval(debounceInterval)
    , m_watching(std::make_shared<Watching>())
{
}

FileWatcher::~FileWatcher() = default;

ChangeStream FileWatcher::start()
{
    ChangeStream changes;
    const auto debouncer = std::make_shared<Debouncer>(m_debounceInterval);
    auto stream
        = FileEventStream::create(m_paths, m_debounceInterval, [changes, debouncer]() mutable {
              if (debouncer->shouldFire()) {
                  changes.yield();
              }
          });
    if (!stream) {
        changes.finish();
        return changes;
    }
    m_watching->add(std::move(stream));
    changes.onCancel([watching = std::weak_ptr(m_watching)] {
        if (const auto alive = watching.lock()) {
            alive->stop();
        }
    });
    return changes;
}

void FileWatcher::stop()
{
    m_watching->stop();
}

} // namespace torvi
