#pragma once

#include <APIModule.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace bench {

/// One exchange with the server.
struct Exchange {
    bool bHttps;
    int nPort;
    APIModule::Method eMethod;
    QByteArray path;
    QByteArray body;
};

/// A GET.
inline Exchange Get(bool bHttps, int nPort, const QByteArray& path = "/small")
{
    return {bHttps, nPort, APIModule::Method_Get, path, {}};
}

/// What an exchange brought: the text, or the "data" object for those who read the envelope.
struct Answer {
    QByteArray text;
    QJsonObject data;
};

/// The "data" object, whoever read it.
QJsonObject DataOf(const Answer& answer);

/// Somebody who can carry out exchanges and keeps connections open for the next ones.
class Client {
public:
    virtual ~Client() = default;
    virtual Answer Run(const Exchange& exchange) = 0;

    /// Runs the exchange and gives its data to whoever reads it. @return the reader's result
    using Parse = std::function<int(const QJsonObject& data)>;
    virtual int Read(const Exchange& exchange, const Parse& parse);
};

/// The exchange that the library has under it: QNetworkAccessManager and an event loop, headers and attributes alike.
std::unique_ptr<Client> MakeQt();
/// The same and the reply's text read as JSON.
std::unique_ptr<Client> MakeQtWithJson();
/// The library as a host uses it, log lines to a file included. The façade waits behind a dialog over @p pParent.
std::unique_ptr<Client> MakeLibrary(QWidget* pParent);
std::unique_ptr<Client> MakeLibrary();
/// The request of the library's client as a Pack, with the log line of the families' Packs.
int PackExchange(void* pReqParamData, const Exchange& exchange, int nServerId);
/// Makes the exchange's server that of the library's calls.
void UseServerOf(const Exchange& exchange);
/// The request of the other clients, for a manager of the caller's own.
QNetworkReply* SendByQt(QNetworkAccessManager& manager, const Exchange& exchange);
/// What others do blocking, without an event loop.
std::unique_ptr<Client> MakeCurl();
std::unique_ptr<Client> MakeHttplib();

constexpr const char* kQt = "QNetworkAccessManager";
constexpr const char* kQtWithJson = "QNetworkAccessManager+fromJson";

}  // namespace bench
