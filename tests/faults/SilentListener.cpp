#include "SilentListener.h"

#include <gtest/gtest.h>

#include <sys/socket.h>

namespace testing_support {

SilentListener::SilentListener()
{
    EXPECT_TRUE(m_listener.listen(QHostAddress(QHostAddress::LocalHost)));
    m_listener.pauseAccepting();
    EXPECT_EQ(listen(int(m_listener.socketDescriptor()), 0), 0);
    constexpr int kMostConnections = 32;
    for (int i = 0; i < kMostConnections; ++i) {
        QTcpSocket& socket = *m_queued.emplace_back(std::make_unique<QTcpSocket>());
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_listener.serverPort());
        constexpr int kLongest = 200;
        if (!socket.waitForConnected(kLongest)) {
            return;
        }
    }
    ADD_FAILURE() << "the queue of the listener never fills";
}

}  // namespace testing_support
