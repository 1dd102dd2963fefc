#pragma once

#include "APIModuleGlobal.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <utility>

/// @file
/// How typed calls end.

namespace APIModule {

/// Why a call has ended.
enum class CallEnd {
    Success,            ///< the record is there
    NotPacked,          ///< the Pack refused, or the calling thread is not the application object's; code -1
    InvalidRequest,     ///< what the Pack made cannot be sent; code -4
    NoConnection,       ///< no complete answer came; code -18
    ServerNotTrusted,   ///< the server is not known to CAPIModule::SetServerTrust(); code -18
    TimedOut,           ///< no answer came in time; code -101
    Cancelled,          ///< by UnInit(), or because the wait dialog or its parent went away; code -101
    NotAuthenticated,   ///< the session is not valid; code 7000
    HttpStatus,         ///< the server answered with another status than 200, which is the code
    Refused,            ///< the server answered with another code than 1000, which is the code; 0 without a number
    ReplyTooLarge,      ///< the reply is larger than CAPIModule::SetMaximumReplySize() allows; code -18
    UnreadableReply,    ///< the reply is no JSON, code -1, or a value that the record needs is missing, code 3101
    ApplicationEnding,  ///< the application quits; code -101
};

/// @cond
namespace detail {
struct CallResult;
}
/// @endcond

/// How a call ended, apart from its record. Copies share what they hold.
class APIMODULE_EXPORT OutcomeBase {
public:
    /// The outcome of no call: not packed.
    OutcomeBase();
    /// Made by the library.
    /// @param pResult what came of the call
    explicit OutcomeBase(std::shared_ptr<const detail::CallResult> pResult);

    /// @return whether the call succeeded
    explicit operator bool() const { return End() == CallEnd::Success; }

    /// @return why the call ended
    CallEnd End() const;

    /// An envelope code can be 0, as the code of a success is: operator bool() says whether the call succeeded.
    /// @return the code that CAPIModule::ExecuteFuncs() would notify for this end; 0 for a success
    int Code() const;

    /// Says a failure in the user's words. Writes no log line.
    /// @return the text of Code() in the language of the error texts, or "Operation failed" with the number of a code
    /// that
    ///         they do not know; empty for a success
    QString Text() const;

    /// @return the "desc" of the server's envelope, in the server's words; empty where no envelope came
    QString ServerText() const;

    /// @return the key at which the reading of the record ended; empty unless it ended at one
    QString UnreadableKey() const;

    /// @return the "data" of the reply, for what the record does not hold; empty where none came
    const QJsonObject& Data() const;

private:
    std::shared_ptr<const detail::CallResult> m_pResult;
};

/// The record of a call whose reply carries no data for the caller.
struct NoRecord {};

/// How a call ended, with its record.
///
/// Converts to true for a success, whatever the record is: `Outcome<bool>` does not convert to its record.
template <typename Record>
class Outcome : public OutcomeBase {
public:
    /// The outcome of no call: not packed.
    Outcome() = default;
    /// Made by the library.
    /// @param pResult what came of the call
    /// @param pRecord what was read
    Outcome(std::shared_ptr<const detail::CallResult> pResult, std::shared_ptr<const Record> pRecord)
        : OutcomeBase(std::move(pResult)), m_pRecord(std::move(pRecord))
    {}

    /// @return the record of a success, as made by default where the reply carried no data; after a failure a record as
    ///         made by default
    const Record& operator*() const { return *this ? Incomplete() : None(); }
    /// @return the same
    const Record* operator->() const { return &**this; }

    /// @return the record as far as it was read before the call failed
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
