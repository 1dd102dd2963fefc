#pragma once

#include "RawServer.h"
#include "Recorders.h"
#include "UserManager.h"

#include <APIModule.h>

#include <QString>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace testing_support {

constexpr const char* kFacadeFile = "src/UI/APIModule/APIModule";

/// All arguments of a call of ExecuteFuncs, with defaults that suit most tests.
struct HostCall {
    APIModule::Method method = APIModule::Method_Get;
    QString url = QStringLiteral("/path");
    QString body;
    QString sequence;
    int timeout = 5;
    bool compress = false;
    bool excludeUserInput = true;
    boost::function<int(QJsonObject const&)> parse;
    QString uiError;
    QWidget* parent = nullptr;
    QString successTip;
    bool showErrorCode = true;
    bool notifyOnFailure = true;
};

/// Runs the call with a Pack that makes its request.
int Execute(const HostCall& call);

/// A host that has initialised the library and knows one server.
class Host : public testing::Test {
protected:
    Host();
    ~Host() override;

    /// Makes @p server the host's server.
    void Use(const RawServer& server, RawServer::Scheme scheme = RawServer::Http);

    /// Starts a server that becomes the host's.
    RawServer& Serve(const RawServer::Responder& responder, RawServer::Scheme scheme = RawServer::Http);
    RawServer& Serve(const RawReply& reply, RawServer::Scheme scheme = RawServer::Http);

    UserManager users;
    LogRecorder logs;
    NotificationRecorder notifications;
    std::unique_ptr<RawServer> m_pServer;
};

/// Runs the event loop until the condition holds, for a limited time. @return whether it does
bool Await(const std::function<bool()>& condition);

}  // namespace testing_support
