#include "Outcome.h"

#include "CallResult_p.h"
#include "Exchange_p.h"

#include <ErrorLexicon/ErrorLexicon.h>

#include "APIModule.h"

#include <string>

namespace APIModule {

namespace {

/// The result, or an empty one if there is none.
const detail::CallResult& ResultIn(const std::shared_ptr<const detail::CallResult>& pResult)
{
    static const detail::CallResult none;
    return pResult ? *pResult : none;
}

}  // namespace

namespace detail {

int CodeOf(CallEnd eEnd)
{
    switch (eEnd) {
    case CallEnd::Success:
        return 0;
    case CallEnd::InvalidRequest:
        return -4;
    case CallEnd::NoConnection:
    case CallEnd::ServerNotTrusted:
    case CallEnd::ReplyTooLarge:
        return -18;
    case CallEnd::TimedOut:
    case CallEnd::Cancelled:
    case CallEnd::ApplicationEnding:
        return -101;
    case CallEnd::NotAuthenticated:
        return 7000;
    case CallEnd::NotPacked:
    case CallEnd::HttpStatus:
    case CallEnd::Refused:
    case CallEnd::UnreadableReply:
        break;
    }
    return -1;
}

std::shared_ptr<const CallResult> Shared(CallResult&& result)
{
    if (!result.reply.bLarge) {
        return std::make_shared<const CallResult>(std::move(result));
    }
    return {new CallResult(std::move(result)),
            [](const CallResult* pResult) { RunInPool([pResult] { delete pResult; }); }};
}

}  // namespace detail

OutcomeBase::OutcomeBase() = default;

OutcomeBase::OutcomeBase(std::shared_ptr<const detail::CallResult> pResult) : m_pResult(std::move(pResult)) {}

CallEnd OutcomeBase::End() const
{
    return ResultIn(m_pResult).eEnd;
}

int OutcomeBase::Code() const
{
    return ResultIn(m_pResult).nCode;
}

QString OutcomeBase::Text() const
{
    if (*this) {
        return {};
    }
    std::string text;
    if (ErrorLexicon::ErrorLexiconQuery(Code(), text) == 0) {
        return QString::fromStdString(text);
    }
    return CAPIModule::tr("Operation failed") + QStringLiteral(" (%1)").arg(Code());
}

QString OutcomeBase::ServerText() const
{
    return ResultIn(m_pResult).reply.strDesc;
}

QString OutcomeBase::UnreadableKey() const
{
    return ResultIn(m_pResult).reply.strUnreadableKey;
}

const QJsonObject& OutcomeBase::Data() const
{
    return ResultIn(m_pResult).reply.jsonData;
}

}  // namespace APIModule
