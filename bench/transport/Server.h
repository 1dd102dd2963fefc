#pragma once

#include <QProcess>

namespace bench {

/// The server for measured calls, in a separate process.
class Server {
public:
    Server();
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    int Port(bool bHttps) const { return bHttps ? m_nHttpsPort : m_nHttpPort; }

private:
    QProcess m_process;
    int m_nHttpPort = 0;
    int m_nHttpsPort = 0;
};

}  // namespace bench
