#pragma once

#include "APIModuleGlobal.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <utility>

/// @file
/// The outcome of a typed call: the record, or the reason why there is none.

namespace APIModule {

/// Why a call has ended.
enum class CallEnd {
    Success,           ///< the call succeeded
    NotPacked,         ///< the Pack failed, or the calling thread is not the application object's; code -1
    InvalidRequest,    ///< the Pack's request cannot be sent; code -4
    NoConnection,      ///< no complete reply arrived; code -18
    ServerNotTrusted,  ///< CAPIModule::SetServerTrust() does not accept the server; code -18
    TimedOut,          ///< no reply arrived in time; code -101
    Cancelled,         ///< by UnInit(), or because the wait dialog was stopped or it or its parent destroyed; code -101
    NotAuthenticated,  ///< the session is not valid; code 7000
    HttpStatus,        ///< the server replied with a status other than 200; the code is that status
    Refused,           ///< the envelope's code is not 1000; the code is that code, 0 if it is not a number
    ReplyTooLarge,     ///< the reply is larger than CAPIModule::SetMaximumReplySize() allows; code -18
    UnreadableReply,   ///< the reply is not JSON, code -1, or a required key is missing, code 3101
    ApplicationEnding,  ///< the application quits; code -101
};

/// @cond
namespace detail {
struct CallResult;
}
/// @endcond

/// How a call ended, without its record. Copies share their data.
class APIMODULE_EXPORT OutcomeBase {
public:
    /// The outcome of no call: not packed.
    OutcomeBase();
    /// Made by the library.
    /// @param pResult the result of the call
    explicit OutcomeBase(std::shared_ptr<const detail::CallResult> pResult);

    /// @return whether the call succeeded
    explicit operator bool() const { return End() == CallEnd::Success; }

    /// @return why the call ended
    CallEnd End() const;

    /// An envelope code can be 0, like that of a success; use operator bool() to test for success.
    /// @return the code that CAPIModule::ExecuteFuncs() would notify; 0 for a success
    int Code() const;

    /// Describes a failure to the user. Writes no log line.
    /// @return the text of Code() in the language of the error texts, or "Operation failed" with the number of an
    ///         unknown code; empty for a success
    QString Text() const;

    /// @return the "desc" of the server's envelope; empty without an envelope
    QString ServerText() const;

    /// @return the key at which reading the record stopped; empty otherwise
    QString UnreadableKey() const;

    /// @return the "data" of the reply, including keys that the record does not have; empty without data
    const QJsonObject& Data() const;

private:
    std::shared_ptr<const detail::CallResult> m_pResult;
};

/// The record of a call whose reply has no data for the caller.
struct NoRecord {};

/// How a call ended, with its record.
///
/// Converts to true for a success, whatever the record is; `Outcome<bool>` does not convert to its record:
/// @code
/// if (const auto settings = Run(BRMS::GetTimeSyncConfig())) {
///     Show(settings->interval);
/// } else {
///     Report(settings.Text());
/// }
/// @endcode
template <typename Record>
class Outcome : public OutcomeBase {
public:
    /// The outcome of no call: not packed.
    Outcome() = default;
    /// Made by the library.
    /// @param pResult the result of the call
    /// @param pRecord the fields that were read
    Outcome(std::shared_ptr<const detail::CallResult> pResult, std::shared_ptr<const Record> pRecord)
        : OutcomeBase(std::move(pResult)), m_pRecord(std::move(pRecord))
    {}

    /// @return the record; a default-constructed one after a failure and for a reply without data
    const Record& operator*() const { return *this ? Incomplete() : None(); }
    /// @return the same
    const Record* operator->() const { return &**this; }

    /// @return the record with the fields that were read before the call failed
    const Record& Incomplete() const { return m_pRecord ? *m_pRecord : None(); }

private:
    static const Record& None()
    {
        static const Record none{};
        return none;
    }

    std::shared_ptr<const Record> m_pRecord;
};

}  // namespace APIModule
