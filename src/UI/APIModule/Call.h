#pragma once

#include "ObservedExchange.h"
#include "Request.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

class QWidget;

/// @file
/// Runs typed calls. Run() waits for the outcome, Start() returns at once and delivers it later, Preview() only shows
/// the request:
/// @code
/// const Outcome<TimeSyncConfig> settings = Run(BRMS::GetTimeSyncConfig(), this);
/// Start(IPMS::GetDetailParkingLots("", "001", 0), this, [this](const auto& lots) { Show(lots); });
/// @endcode
/// Make calls on the thread of the application object only.

namespace APIModule {

/// @cond
namespace detail {

/// Reads the data of the reply into the record. It may run on another thread than the application object's.
using ReadData = std::function<int(const QJsonObject&)>;
using Finished = std::function<void(const std::shared_ptr<const CallResult>&)>;

}  // namespace detail
/// @endcond

/// Handle of a call that Start() began. Copies refer to the same call; destroying them does not cancel it.
///
/// Use it on the thread of the application object only.
class APIMODULE_EXPORT CallHandle {
public:
    /// Refers to no call.
    CallHandle() = default;
    /// Made by Start().
    /// @param pCall the call
    explicit CallHandle(QObject* pCall) : m_pCall(pCall) {}

    /// Cancels the call and closes its connection. Its function is not called, because objects that it uses may be
    /// about to be destroyed. Does nothing after the call has ended. Cancel() may be called at any time, also from the
    /// function of this or another call.
    void Cancel();

    /// @return whether the function of the call has not been called yet
    bool IsRunning() const;

private:
    QPointer<QObject> m_pCall;
};

/// @cond
namespace detail {

APIMODULE_EXPORT std::shared_ptr<const CallResult> RunCall(const RequestParts& parts, const ReadData& read,
                                                           QWidget* pParent);
APIMODULE_EXPORT CallHandle StartCall(const RequestParts& parts, const ReadData& read, QObject* pContext,
                                      const Finished& finished);
APIMODULE_EXPORT std::optional<ObservedExchange> PreviewCall(const RequestParts& parts);

/// Reads into a shared record.
template <typename Record>
ReadData Into(const std::shared_ptr<Record>& pRecord, typename FixedRequest<Record>::Parse parse)
{
    if (!parse) {
        return {};
    }
    return [pRecord, parse](const QJsonObject& data) { return parse(data, *pRecord); };
}

}  // namespace detail
/// @endcond

/// Runs a request and waits for its outcome, with the steps, log lines and waits of CAPIModule::ExecuteFuncs(). It
/// notifies nothing; call CAPIModule::NotifyOutcome() to do so.
///
/// With a parent, user input to all windows is discarded from the start, except for closing a window; the wait dialog
/// appears when the call takes longer than CAPIModule::SetWaitDialogDelay(). JSON of more than 256 KiB, and its record,
/// are read on a thread of Qt's global thread pool while the event loop keeps running.
///
/// Only the thread of the application object may call it; on another one the outcome is CallEnd::NotPacked.
///
/// @param request made by a Call from its arguments
/// @param pParent widget under the wait dialog, or null to wait in a local event loop
/// @return the record, or the reason why there is none
template <typename Record>
Outcome<Record> Run(const FixedRequest<Record>& request, QWidget* pParent = nullptr)
{
    const auto pRecord = std::make_shared<Record>();
    return Outcome<Record>(detail::RunCall(request.Parts(), detail::Into(pRecord, request.GetParse()), pParent),
                           pRecord);
}

/// Starts a call and returns at once. The request is packed now; the outcome is delivered later, from the event loop.
///
/// At most five started calls to a server are in flight; the others queue, and their time-outs begin when they are
/// sent. UnInit() ends calls as CallEnd::Cancelled, the end of the application as CallEnd::ApplicationEnding. Large
/// replies are read as by Run().
///
/// Only the thread of the application object may call it; on another one it only writes a log line.
///
/// @param request made by a Call from its arguments
/// @param pContext an object on the application object's thread. When it is destroyed, the call ends without calling
///        the function.
/// @param finished called once with the outcome, on the thread of the application object, never from inside Start()
/// @return handle to cancel the call
template <typename Record, typename Function>
CallHandle Start(const FixedRequest<Record>& request, QObject* pContext, Function finished)
{
    static_assert(std::is_invocable_v<Function&, const Outcome<Record>&>,
                  "The function of Start() takes the Outcome of the request's record.");
    const auto pRecord = std::make_shared<Record>();
    return detail::StartCall(
        request.Parts(), detail::Into(pRecord, request.GetParse()), pContext,
        [pRecord, finished = std::move(finished)](const std::shared_ptr<const detail::CallResult>& pResult) mutable {
            finished(Outcome<Record>(pResult, pRecord));
        });
}

/// Shows the request of a call without sending it.
///
/// The headers are those of a request without a proxy. The Pack runs; its log lines are dropped unless it fails.
///
/// Only the thread of the application object may call it; on another one it writes a log line and returns nothing.
///
/// @param request made by a Call from its arguments
/// @return method, masked URL, headers and body of the request, with all other members at their defaults; nothing when
///         the call cannot be packed or its request cannot be sent
template <typename Record>
std::optional<ObservedExchange> Preview(const FixedRequest<Record>& request)
{
    return detail::PreviewCall(request.Parts());
}

}  // namespace APIModule
