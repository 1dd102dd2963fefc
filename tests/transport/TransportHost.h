#pragma once

#include "faults/FaultHost.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace testing_support {

/// What came of a call.
struct Ended {
    int code = 0;  ///< result, or the code that was notified
    bool parsed = false;
    int tag = -1;  ///< "n" of the data that the Parse was given
};

/// Whether something on the other side of a thread has happened.
class Happening {
public:
    /// The event happens when the last copy of the returned pointer is destroyed.
    std::shared_ptr<void> Handle() const;
    bool HasHappened() const { return *m_pHappened; }

private:
    std::shared_ptr<std::atomic<bool>> m_pHappened = std::make_shared<std::atomic<bool>>(false);
};

/// A host whose calls meet servers that treat their connections badly.
class TransportHost : public FaultHost {
protected:
    /// Runs a call that is notified when it fails without an answer.
    Ended Run(APIModule::Method method, const QString& url, const QString& body = {}, int nTimeout = 20);
    Ended Get(const QString& url) { return Run(APIModule::Method_Get, url); }
};

/// How many times the usual number of calls the program makes: APIMODULE_TIMES in the environment, otherwise 1.
int Times();

/// A success with the number of its request as data.
RawAnswer TaggedAnswer(int nTag);
/// The number behind the last slash of a target.
int TagOf(const QByteArray& target);

}  // namespace testing_support
