#pragma once

#include <memory>
#include <string>

/// The interface of the client's user management to the libraries that call servers.
namespace UserLogical {

/// The address of a server.
struct ServerConnection {
    std::string strHost;  ///< host name or IP address
    int nPort = 80;       ///< TCP port
};

/// One server that the user is signed in to. Called on the GUI thread.
class IServer {
public:
    virtual ~IServer() = default;

    /// Returns the address of the server.
    /// @param connection receives host and port
    virtual void GetConnection(ServerConnection& connection) = 0;

    /// @return the token of the session, empty when there is none
    virtual std::string GetToken() = 0;
};

/// The servers that the user is signed in to. The host implements and owns it. Called on the GUI thread.
class IUserManager {
public:
    virtual ~IUserManager() = default;

    /// @return the identifier of the server that the user works with
    virtual int GetCurrentServerId() = 0;

    /// Looks up a server.
    /// @param nServerId its identifier
    /// @return the server, or an empty pointer for an unknown identifier
    virtual std::shared_ptr<IServer> GetServer(int nServerId) = 0;
};

}  // namespace UserLogical
