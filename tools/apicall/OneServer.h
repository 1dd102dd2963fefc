#pragma once

#include "Options.h"

#include <UserLogical/IUserManager.h>

#include <memory>
#include <string>
#include <utility>

namespace apicall {

/// A user manager with one server, which it knows as -1, 0 and 1.
class OneServer : public UserLogical::IUserManager {
public:
    OneServer(Server server, std::string token)
        : m_connection(std::make_shared<Connection>(std::move(server), std::move(token)))
    {}

    int GetCurrentServerId() override { return 1; }

    std::shared_ptr<UserLogical::IServer> GetServer(int nServerId) override
    {
        return nServerId >= -1 && nServerId <= 1 ? m_connection : nullptr;
    }

private:
    class Connection : public UserLogical::IServer {
    public:
        Connection(Server server, std::string token) : m_server(std::move(server)), m_token(std::move(token)) {}

        void GetConnection(UserLogical::ServerConnection& connection) override
        {
            connection.strHost = m_server.host;
            connection.nPort = m_server.port;
        }

        std::string GetToken() override { return m_token; }

    private:
        const Server m_server;
        const std::string m_token;
    };

    const std::shared_ptr<Connection> m_connection;
};

}  // namespace apicall
