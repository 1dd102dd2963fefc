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

/// A call that nobody waits for. It stands in line, is on its way, and ends; its function is called once, unless it is
/// dropped before.
class StartedCall final : public QObject {
    Q_OBJECT

public:
    StartedCall(CAPIModulePrivate& module, CallSteps steps, QObject* pContext, detail::Finished finished);
    ~StartedCall() override;

    /// Packs the request. A call that cannot be sent ends.
    void Prepare();

    /// Its turn has come.
    void Begin();

    /// Ends the call unless it has ended. Its function is called from the event loop.
    void EndAsCancelled() { End(CallEnd::Cancelled); }

    /// Calls its function now.
    void DeliverAsApplicationEnding() { Deliver(CallEnd::ApplicationEnding); }

    /// Ends the call; its function is not called any more.
    void Drop();

    enum class State {
        InLine,
        OnItsWay,
        Ended,    ///< the function is still to be called
        Finished  ///< nothing is left to do
    };

    State GetState() const { return m_state; }
    /// Server, as far as connections are concerned.
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
