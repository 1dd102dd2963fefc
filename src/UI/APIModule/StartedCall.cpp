#include "StartedCall_p.h"

#include "APIModule_p.h"
#include "Exchange_p.h"
#include "http/Reply.h"
#include "RunHosted_p.h"

#include <utility>

namespace APIModule {

using namespace detail;

namespace {

constexpr const char* kStart = "APIModule::Start";

}  // namespace

StartedCall::StartedCall(CAPIModulePrivate& module, CallSteps steps, QObject* pContext, Finished finished)
    : QObject(&module), m_module(module), m_steps(std::move(steps)), m_finished(std::move(finished))
{
    connect(pContext, &QObject::destroyed, this, &StartedCall::Drop);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &StartedCall::OnTimeOut);
}

StartedCall::~StartedCall()
{
    m_pExchange.reset();
    m_module.RetireManagers();
}

void StartedCall::Prepare()
{
    const QPointer<StartedCall> self(this);
    CallResult result;
    const bool bPrepared = m_module.Prepare(m_steps, m_request, result);
    if (!self || m_state != State::InLine) {
        return;  // ended by the Pack
    }
    if (!bPrepared) {
        EndWith(result.eEnd);
        return;
    }
    const QUrl url = m_request.url();
    m_origin = url.scheme() + url.authority();
    m_pExchange = std::make_unique<Exchange>(m_request, kStart);
    m_module.SetUp(*m_pExchange, m_steps);
}

void StartedCall::Begin()
{
    m_state = State::OnItsWay;
    connect(m_pExchange.get(), &Exchange::ReplyArrived, &m_timer, &QTimer::stop);
    connect(m_pExchange.get(), &Exchange::Ended, this, &StartedCall::OnEnded);
    m_timer.start(m_module.TimeoutOf(m_request, m_steps));
    m_pExchange->Begin(m_module.Send(m_request));
}

void StartedCall::OnEnded()
{
    if (m_state != State::OnItsWay) {
        return;
    }
    if (!m_pExchange->HasReply()) {
        EndWith(CallEnd::ApplicationEnding);
        return;
    }
    m_result.reply = std::move(m_pExchange->Reply());
    const QPointer<StartedCall> self(this);
    CAPIModulePrivate::Conclude(m_steps.read, m_result);
    if (self && m_state == State::OnItsWay) {
        Leave(State::Ended);
        CallFunction();
    }
}

void StartedCall::OnTimeOut()
{
    m_pExchange->LogTimeOut();
    Deliver(CallEnd::TimedOut);
}

void StartedCall::EndWith(CallEnd eEnd)
{
    m_result.eEnd = eEnd;
    m_result.nCode = CodeOf(eEnd);
    Leave(State::Ended);
    QMetaObject::invokeMethod(this, &StartedCall::CallFunction, Qt::QueuedConnection);
}

void StartedCall::End(CallEnd eEnd)
{
    if (m_state == State::InLine || m_state == State::OnItsWay) {
        EndWith(eEnd);
    }
}

void StartedCall::Deliver(CallEnd eEnd)
{
    const QPointer<StartedCall> self(this);
    End(eEnd);
    if (self) {
        CallFunction();
    }
}

void StartedCall::Drop()
{
    if (m_state != State::Finished) {
        const Finished released = std::exchange(m_finished, nullptr);
        Leave(State::Finished);
        deleteLater();
    }
}

void StartedCall::Leave(State state)
{
    m_timer.stop();
    const State before = std::exchange(m_state, state);
    if (m_pExchange) {
        m_pExchange->Close(m_result.eEnd);
    }
    if (before == State::OnItsWay) {
        m_module.OnLeft(m_origin);
    }
}

void StartedCall::CallFunction()
{
    if (m_state != State::Ended) {
        return;
    }
    m_state = State::Finished;
    deleteLater();
    const Finished finished = std::exchange(m_finished, nullptr);
    const std::shared_ptr<const CallResult> pResult = Shared(std::move(m_result));
    RunHosted({kModuleFile, kStart}, QStringLiteral("finished"), [&] {
        finished(pResult);
        return 0;
    });
}

}  // namespace APIModule
