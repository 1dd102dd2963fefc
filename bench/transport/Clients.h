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

/// The result of an exchange: the text, or the "data" object from clients that read the envelope.
struct Reply {
    QByteArray text;
    QJsonObject data;
};

/// The "data" object, read from the text if the client did not read it.
QJsonObject DataOf(const Reply& reply);

/// A client that carries out exchanges and keeps connections open for the next ones.
class Client {
public:
    virtual ~Client() = default;
    virtual Reply Run(const Exchange& exchange) = 0;

    /// Runs the exchange and passes its data to @p parse. @return the result of @p parse
    using Parse = std::function<int(const QJsonObject& data)>;
    virtual int Read(const Exchange& exchange, const Parse& parse);
};

/// A plain exchange through Qt: QNetworkAccessManager and an event loop, with the library's headers and attributes.
std::unique_ptr<Client> MakeQt();
/// The same, and parses the reply's text as JSON.
std::unique_ptr<Client> MakeQtWithJson();
/// The library as a host uses it, including log lines to a file. Waits show a dialog over @p pParent.
std::unique_ptr<Client> MakeLibrary(QWidget* pParent = nullptr);
/// The request of the library's client as a Pack, with the log line of the families' Packs.
int PackExchange(void* pReqParamData, const Exchange& exchange, int nServerId);
/// Sets the exchange's server as the server of the library's calls.
void UseServerOf(const Exchange& exchange);
/// Sends the request of the other clients through the caller's manager.
QNetworkReply* SendByQt(QNetworkAccessManager& manager, const Exchange& exchange);
/// Blocking clients, without an event loop.
std::unique_ptr<Client> MakeCurl();
std::unique_ptr<Client> MakeHttplib();

constexpr const char* kQt = "QNetworkAccessManager";
constexpr const char* kQtWithJson = "QNetworkAccessManager+fromJson";

}  // namespace bench
