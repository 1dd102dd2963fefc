#pragma once

#include <UserLogical/IUserManager.h>

/// The server that the user is signed in to.
struct Server : UserLogical::IServer {
    UserLogical::ServerConnection address;
    std::string token;

    void GetConnection(UserLogical::ServerConnection& connection) override { connection = address; }
    std::string GetToken() override { return token; }
};

/// The user manager, which the library queries for every call. Before the user signs in, calls end with NotPacked.
struct Session : UserLogical::IUserManager {
    std::shared_ptr<Server> server;

    int GetCurrentServerId() override { return 1; }
    std::shared_ptr<UserLogical::IServer> GetServer(int /*nServerId*/) override { return server; }
};
