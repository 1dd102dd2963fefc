#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace testing_support {

/// Ends the process when a test hangs, before the time-out of the test program.
class Watchdog {
public:
    Watchdog()
    {
        m_thread = std::thread([this] {
            std::unique_lock<std::mutex> lock(m_mutex);
            if (!m_done.wait_for(lock, std::chrono::seconds(120), [this] { return m_bDone; })) {
                std::fputs("A wait did not end.\n", stderr);
                std::abort();
            }
        });
    }
    ~Watchdog()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_bDone = true;
        }
        m_done.notify_one();
        m_thread.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    std::mutex m_mutex;
    std::condition_variable m_done;
    bool m_bDone = false;
    std::thread m_thread;
};

}  // namespace testing_support
