#pragma once

#include <cerrno>
#include <csignal>
#include <ctime>

namespace ornl::detail {

/// During its lifetime, a write by this thread to a closed pipe fails instead of ending the process with SIGPIPE.
/// Afterwards the signal mask is restored, and a SIGPIPE that was pending before is still pending.
class WithoutSigpipe {
public:
    WithoutSigpipe()
    {
        sigemptyset(&m_sigpipe);
        sigaddset(&m_sigpipe, SIGPIPE);
        (void)pthread_sigmask(SIG_BLOCK, &m_sigpipe, &m_before);
        if (sigismember(&m_before, SIGPIPE) == 1) {
            sigset_t pending;
            sigemptyset(&pending);
            (void)sigpending(&pending);
            m_bPendingBefore = sigismember(&pending, SIGPIPE) == 1;
        }
    }
    ~WithoutSigpipe()
    {
        constexpr std::timespec kAtOnce{};
        while (!m_bPendingBefore && sigtimedwait(&m_sigpipe, nullptr, &kAtOnce) == -1 && errno == EINTR) {
        }
        (void)pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    WithoutSigpipe(const WithoutSigpipe&) = delete;
    WithoutSigpipe& operator=(const WithoutSigpipe&) = delete;

private:
    sigset_t m_sigpipe{};
    sigset_t m_before{};
    bool m_bPendingBefore = false;
};

}  // namespace ornl::detail
