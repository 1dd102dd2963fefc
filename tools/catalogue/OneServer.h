#pragma once

#include <UserLogical/IUserManager.h>

#include <memory>
#include <string>
#include <utility>

namespace catalogue {

/// A user manager with one server at a time, which has the server identifiers -1, 0 and 1.
class OneServer : public UserLogical::IUserManager {
public:
    /// Sends later calls to this server; calls in progress keep the server they were packed for.
    void Use(const std::string& host, int port, const std::string& token)
    {
        m_server = std::make_shared<Connection>(host, port, token);
    }

    int GetCurrentServerId() override { return 1; }

    std::shared_ptr<UserLogical::IServer> GetServer(int nServerId) override
    {
        return nServerId >= -1 && nServerId <= 1 ? m_server : nullptr;
    }

private:
    class Connection : public UserLogical::IServer {
    public:
        Connection(std::string host, int port, std::string token)
            : m_host(std::move(host)), m_port(port), m_token(std::move(token))
        {}

        void GetConnection(UserLogical::ServerConnection& connection) override
        {
            connection.strHost = m_host;
            connection.nPort = m_port;
        }

        std::string GetToken() override { return m_token; }

    private:
        const std::string m_host;
        const int m_port;
        const std::string m_token;
    };

    std::shared_ptr<Connection> m_server;
};

}  // namespace catalogue
