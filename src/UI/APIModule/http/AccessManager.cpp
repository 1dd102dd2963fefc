#include "AccessManager.h"

#include "Reply.h"

#include <algorithm>

namespace APIModule::http {

AccessManager::AccessManager(int nMostConnections) : m_nMostConnections(nMostConnections) {}

AccessManager::~AccessManager()
{
    // Replies release their connections when they are deleted, which must happen before the connections are.
    qDeleteAll(findChildren<Reply*>(QString(), Qt::FindDirectChildrenOnly));
}

bool AccessManager::HasReplies() const
{
    return findChild<Reply*>(QString(), Qt::FindDirectChildrenOnly);
}

QNetworkReply* AccessManager::createRequest(Operation operation, const QNetworkRequest& request, QIODevice* pBody)
{
    auto* const pReply = new Reply(*this, operation, request, pBody);
    if (!Start(*pReply)) {
        m_line.push_back(pReply);
    }
    return pReply;
}

bool AccessManager::Start(Reply& reply)
{
    Connection* const pConnection = Choose(reply);
    if (pConnection) {
        pConnection->Carry(reply);
    }
    return pConnection;
}

Connection* AccessManager::Choose(const Reply& reply)
{
    const Origin origin = Origin::Of(reply.url());
    int nOpen = 0;
    for (const std::unique_ptr<Connection>& pConnection : m_connections) {
        if (pConnection->GetOrigin() == origin) {
            if (pConnection->IsFitFor(reply)) {
                return pConnection.get();
            }
            nOpen += pConnection->IsClosed() ? 0 : 1;
        }
    }
    if (nOpen == m_nMostConnections) {
        return nullptr;
    }
    const auto& pConnection = m_connections.emplace_back(
        std::make_unique<Connection>(*this, reply.url(), reply.request().sslConfiguration()));
    connect(pConnection.get(), &Connection::Freed, this, [this] { Later(&AccessManager::StartNext); });
    connect(pConnection.get(), &Connection::Closed, this, [this] { Later(&AccessManager::StartNext); });
    return pConnection.get();
}

// Called from the event loop, never inside a signal of a socket.
void AccessManager::Later(void (AccessManager::*pWork)())
{
    QMetaObject::invokeMethod(
        this, [this, pWork] { (this->*pWork)(); }, Qt::QueuedConnection);
}

void AccessManager::StartNext()
{
    Purge();
    std::vector<Reply*> waiting = std::exchange(m_line, {});
    for (Reply* const pReply : waiting) {
        if (!Start(*pReply)) {
            m_line.push_back(pReply);
        }
    }
}

void AccessManager::Purge()
{
    m_connections.erase(std::remove_if(m_connections.begin(), m_connections.end(),
                                       [](const auto& pConnection) { return pConnection->IsClosed(); }),
                        m_connections.end());
}

void AccessManager::Repeat(Reply& reply)
{
    reply.SetRepeated();
    m_line.insert(m_line.begin(), &reply);
    Later(&AccessManager::StartNext);
}

void AccessManager::Forget(const Reply& reply)
{
    m_line.erase(std::remove(m_line.begin(), m_line.end(), &reply), m_line.end());
    for (const std::unique_ptr<Connection>& pConnection : m_connections) {
        if (pConnection->Carried() == &reply) {
            pConnection->Close();
        }
    }
}

void AccessManager::CloseIdleConnections()
{
    for (const std::unique_ptr<Connection>& pConnection : m_connections) {
        if (pConnection->IsFree()) {
            pConnection->Close();
        }
    }
}

}  // namespace APIModule::http
