#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <memory>
#include <vector>

namespace testing_support {

/// A listener that accepts no connection and whose queue is full: clients that connect wait.
class SilentListener {
public:
    SilentListener();
    int Port() const { return m_listener.serverPort(); }

private:
    QTcpServer m_listener;
    std::vector<std::unique_ptr<QTcpSocket>> m_queued;
};

}  // namespace testing_support
