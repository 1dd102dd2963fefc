#pragma once

#include "faults/FaultHost.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>
#include <string>

namespace testing_support {

/// The outcome of a call.
struct CallResult {
    int code = 0;  ///< the result, or the notified code
    bool parsed = false;
    int tag = -1;  ///< "n" in the data that the Parse received
};

/// How a host waits for an event in another thread: with its event loop running or blocked.
enum class Pause {
    Loop,
    Sleep
};

inline std::string NameOf(Pause pause)
{
    return pause == Pause::Loop ? "loop" : "sleep";
}

/// A handle that increments the counter when its last copy is destroyed.
std::shared_ptr<void> CountedIn(std::atomic<int>& counter);

/// A host that calls servers with connection faults.
class TransportHost : public FaultHost {
protected:
    /// Runs a call whose failure is notified only if no reply arrives.
    CallResult Run(APIModule::Method method, const QString& url, const QString& body = {}, int nTimeout = 20);
    CallResult Get(const QString& url) { return Run(APIModule::Method_Get, url); }

    /// Waits until another thread has counted that far.
    static void AwaitCount(const std::atomic<int>& counter, int nCount, Pause pause);
};

/// The factor by which the program multiplies its number of calls: APIMODULE_TIMES in the environment, otherwise 1.
int Times();

/// A successful reply whose data is the number of its request.
RawReply TaggedReply(int nTag);
/// The number after the last slash of a target.
int TagOf(const QByteArray& target);

}  // namespace testing_support
