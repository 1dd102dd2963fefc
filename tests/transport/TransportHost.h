#pragma once

#include "faults/FaultHost.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace testing_support {

/// The outcome of a call.
struct CallResult {
    int code = 0;  ///< the result, or the notified code
    bool parsed = false;
    int tag = -1;  ///< "n" in the data that the Parse received
};

/// Reports whether an event in another thread has occurred.
class Signal {
public:
    /// The event occurs when the last copy of the returned pointer is destroyed.
    std::shared_ptr<void> Handle() const;
    bool WasRaised() const { return *m_pRaised; }

private:
    std::shared_ptr<std::atomic<bool>> m_pRaised = std::make_shared<std::atomic<bool>>(false);
};

/// A host that calls servers with connection faults.
class TransportHost : public FaultHost {
protected:
    /// Runs a call whose failure is notified only if no reply arrives.
    CallResult Run(APIModule::Method method, const QString& url, const QString& body = {}, int nTimeout = 20);
    CallResult Get(const QString& url) { return Run(APIModule::Method_Get, url); }
};

/// The factor by which the program multiplies its number of calls: APIMODULE_TIMES in the environment, otherwise 1.
int Times();

/// A successful reply whose data is the number of its request.
RawReply TaggedReply(int nTag);
/// The number after the last slash of a target.
int TagOf(const QByteArray& target);

}  // namespace testing_support
