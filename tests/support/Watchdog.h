#pragma once

#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace testing_support {

/// Ends the process when a test hangs, before the time-out of the test program.
class Watchdog {
public:
    Watchdog()
    {
        std::signal(SIGALRM, [](int) {
            constexpr char kText[] = "A wait did not end.\n";
            (void)!write(STDERR_FILENO, kText, sizeof(kText) - 1);
            std::abort();
        });
        constexpr unsigned kSeconds = 120;
        alarm(kSeconds);
    }
    ~Watchdog() { alarm(0); }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
};

}  // namespace testing_support
