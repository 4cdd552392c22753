// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/properties/AllStores.h"
#include "tests/properties/Random.h"
#include "tests/support/ForkedProcess.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <ctime>
#include <new>
#include <sys/mman.h>
#include <vector>

namespace torvi {

namespace {

/// A number that a process and its children share.
class SharedNumber
{
public:
    SharedNumber()
        : m_memory(::mmap(nullptr, sizeof(std::atomic_int), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0))
        , m_number(new (m_memory) std::atomic_int(0))
    {
    }
    ~SharedNumber()
    {
        ::munmap(m_memory, sizeof(std::atomic_int));
    }
    Q_DISABLE_COPY_MOVE(SharedNumber)

    std::atomic_int &operator*() const
    {
        return *m_number;
    }

private:
    void *m_memory;
    std::atomic_int *m_number;
};

/// Lets the kernel kill this process that much later, wherever it is then.
bool killMyselfAfter(long microseconds)
{
    sigevent kill{};
    kill.sigev_notify = SIGEV_SIGNAL;
    kill.sigev_signo = SIGKILL;
    timer_t timer{};
    const itimerspec when{ .it_interval = {}, .it_value = { 0, microseconds * 1000 } };
    return ::timer_create(CLOCK_MONOTONIC, &kill, &timer) == 0
        && ::timer_settime(timer, 0, &when, nullptr) == 0;
}

} // namespace

class KilledSaveTest : public testing::Test
{
protected:
    // In memory where possible: a process that mostly waits for the disk is mostly killed there.
    const QTemporaryDir folder{ (QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath())
                                + u"/torvi-kills-XXXXXX"_s };
    const QString path = folder.filePath(u"torvi/preferences.ini"_s);
    const SharedNumber
        begun; ///< the changes of which the killed process has begun to save the last

    /// Saves one change after the other, beginning behind `changes`, until it is killed.
    [[nodiscard]] int exitCodeOfSaving(int changes, int lifeInMicroseconds) const
    {
        *begun = changes;
        return exitCodeOf([&] {
            AllStores stores(path);
            if (!killMyselfAfter(lifeInMicroseconds)) {
                return 1;
            }
            for (int number = changes;; ++number) {
                *begun = number + 1;
                stores.change(number);
            }
        });
    }

    /// What the stores hold after so many changes.
    [[nodiscard]] const Contents &after(int changes)
    {
        while (static_cast<int>(m_after.size()) <= changes) {
            m_model.change(static_cast<int>(m_after.size()) - 1);
            m_after.push_back(m_model.contents());
        }
        return m_after[static_cast<std::size_t>(changes)];
    }

private:
    AllStores m_model{ folder.filePath(u"model.ini"_s) };
    std::vector<Contents> m_after{ {} };
};

TEST_F(KilledSaveTest, LeavesTheOldOrTheNewPreferences)
{
    constexpr int kLongestLife = 5'000; // microseconds
    Random random;
    int changes = 0;
    int lost = 0;
    for (int kills = 0; kills < repetitions(200); ++kills) {
        ASSERT_EQ(exitCodeOfSaving(changes, 1 + random.below(kLongestLife)), 128 + SIGKILL);

        changes = *begun;
        const Contents found = contentsOf(path);
        if (found != after(changes)) {
            ++lost;
            ASSERT_GT(changes, 0);
            ASSERT_EQ(found, after(--changes)) << "kill " << kills;
        }
    }
    std::cout << changes << " changes; " << lost << " kills before the new file was there\n";
}

} // namespace torvi
