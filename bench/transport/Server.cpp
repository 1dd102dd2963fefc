#include "Server.h"

#include "../Bench.h"

namespace bench {

Server::Server()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(TRANSPORT_SERVER), QStringList());
    Require(m_process.waitForReadyRead(), "the server's ports");
    const QList<QByteArray> ports = m_process.readLine().trimmed().split(' ');
    m_nHttpPort = ports.value(0).toInt();
    m_nHttpsPort = ports.value(1).toInt();
}

Server::~Server()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

}  // namespace bench
