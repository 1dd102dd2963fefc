#pragma once

#include <netinet/in.h>

namespace testing_support {

/// A TCP socket as the system has it, closed when it goes.
class Descriptor {
public:
    Descriptor();
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    int Number() const { return m_nNumber; }

private:
    int m_nNumber;
};

/// A socket with a port of its own on loopback; whoever connects to it is refused.
Descriptor BoundToLoopback();
sockaddr_in AddressOf(const Descriptor& socket);
int PortOf(const Descriptor& socket);

}  // namespace testing_support
