#pragma once

#include <UserLogical/IUserManager.h>

#include <map>
#include <memory>
#include <string>

namespace testing_support {

/// A host's user manager with a configurable list of servers.
class UserManager : public UserLogical::IUserManager {
public:
    struct Server {
        std::string host = "127.0.0.1";
        int port = 0;
        std::string token = "token-of-the-session";
    };

    int GetCurrentServerId() override { return currentServerId; }

    std::shared_ptr<UserLogical::IServer> GetServer(int nServerId) override
    {
        const auto found = servers.find(nServerId);
        return found == servers.end() ? nullptr : std::make_shared<Connection>(found->second);
    }

    int currentServerId = 1;
    std::map<int, Server> servers;

private:
    class Connection : public UserLogical::IServer {
    public:
        explicit Connection(const Server& server) : m_server(server) {}
        void GetConnection(UserLogical::ServerConnection& connection) override
        {
            connection.strHost = m_server.host;
            connection.nPort = m_server.port;
        }
        std::string GetToken() override { return m_server.token; }

    private:
        const Server& m_server;
    };
};

}  // namespace testing_support
