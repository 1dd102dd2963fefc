#pragma once

#include "CallResult_p.h"
#include "CallSteps_p.h"

#include <QNetworkRequest>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

namespace APIModule {

class CAPIModulePrivate;
class Exchange;

/// A call of Start(). It queues, is sent, and ends; its function is called once, unless the call is dropped before.
class StartedCall final : public QObject {
    Q_OBJECT

public:
    StartedCall(CAPIModulePrivate& module, CallSteps steps, QObject* pContext, detail::Finished finished);
    ~StartedCall() override;

    /// Packs the request. Ends the call if it cannot be sent.
    void Prepare();

    /// Sends the request.
    void Begin();

    /// Ends the call, unless it has ended already. Its function is called from the event loop.
    void EndAsCancelled() { End(CallEnd::Cancelled); }

    /// Calls its function now.
    void DeliverAsApplicationEnding() { Deliver(CallEnd::ApplicationEnding); }

    /// Ends the call without calling its function.
    void Drop();

    enum class State {
        InLine,
        OnItsWay,
        Ended,    ///< the function has not been called yet
        Finished  ///< the function was called
    };

    State GetState() const { return m_state; }
    /// Scheme, host and port, by which connections are shared.
    const QString& Origin() const { return m_origin; }

private:
    void OnEnded();
    void OnTimeOut();
    void End(CallEnd eEnd);
    void Deliver(CallEnd eEnd);
    void EndWith(CallEnd eEnd);
    void Leave(State state);
    void CallFunction();

    CAPIModulePrivate& m_module;
    CallSteps m_steps;
    detail::Finished m_finished;
    QNetworkRequest m_request;
    QString m_origin;
    std::unique_ptr<Exchange> m_pExchange;
    QTimer m_timer;
    detail::CallResult m_result;
    State m_state = State::InLine;
};

}  // namespace APIModule
