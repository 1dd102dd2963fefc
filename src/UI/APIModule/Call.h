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
/// Runs typed calls: Run() waits for the outcome, Start() has it delivered, Preview() sends nothing.

namespace APIModule {

/// @cond
namespace detail {

/// Reads the data of the reply into what it holds. It may run on another thread than the application object's.
using ReadData = std::function<int(const QJsonObject&)>;
using Finished = std::function<void(const std::shared_ptr<const CallResult>&)>;

}  // namespace detail
/// @endcond

/// A call that Start() began. Copies name the same call; destroying them does not end it.
///
/// To be used on the thread of the application object.
class APIMODULE_EXPORT CallHandle {
public:
    /// Names no call.
    CallHandle() = default;
    /// Made by Start().
    /// @param pCall what the handle names
    explicit CallHandle(QObject* pCall) : m_pCall(pCall) {}

    /// Ends the call, whose function is not called any more, and closes its connection. Does nothing when the call has
    /// ended. It can be called at any time, from the function of this or another call, too.
    ///
    /// The function is not called with an outcome: who cancels knows, and what the function uses may be going away.
    void Cancel();

    /// @return whether the function of the call is still to be called
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

/// Reads into a record that it shares.
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
/// notifies nothing: CAPIModule::NotifyOutcome() does so when the host wants it.
///
/// Behind a parent, user input to all windows is discarded from the start, except that windows can be closed; the wait
/// dialog appears when the call takes longer than CAPIModule::SetWaitDialogDelay(). JSON of more than 256 KiB, and the
/// record, are read on a thread of Qt's global thread pool while the event loop goes on.
///
/// Only the thread of the application object may call it; on another one the outcome is CallEnd::NotPacked.
///
/// @param request what a Call makes from its arguments
/// @param pParent widget under the wait dialog, or null to wait in a local event loop
/// @return the record, or why there is none
template <typename Record>
Outcome<Record> Run(const FixedRequest<Record>& request, QWidget* pParent = nullptr)
{
    const auto pRecord = std::make_shared<Record>();
    return Outcome<Record>(detail::RunCall(request.Parts(), detail::Into(pRecord, request.GetParse()), pParent),
                           pRecord);
}

/// Begins a call and returns at once. The request is packed now; its outcome is delivered later, from the event loop.
///
/// Of the calls begun so, five to a server are on their way at a time; the others stand in line, and their time-outs
/// begin with their turn. UnInit() ends calls as CallEnd::Cancelled, the end of the application as
/// CallEnd::ApplicationEnding. Large replies are read as by Run().
///
/// Only the thread of the application object may call it; on another one it writes a log line and calls nothing.
///
/// @param request what a Call makes from its arguments
/// @param pContext an object of the application object's thread. When it is destroyed the call ends, and the function
///        is not called.
/// @param finished called once with the outcome, on the thread of the application object, never from inside Start()
/// @return names the call
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

/// Makes the request of a call without sending it.
///
/// The headers are those of a request without a proxy. The Pack runs; its log lines are dropped unless it fails.
///
/// Only the thread of the application object may call it; on another one it writes a log line and returns nothing.
///
/// @param request what a Call makes from its arguments
/// @return method, masked URL, headers and body of the request, all else as by default; nothing when the call cannot
///         be packed or its request cannot be sent
template <typename Record>
std::optional<ObservedExchange> Preview(const FixedRequest<Record>& request)
{
    return detail::PreviewCall(request.Parts());
}

}  // namespace APIModule
