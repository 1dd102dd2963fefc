#pragma once

#include <netinet/in.h>

namespace testing_support {

/// The descriptor of a TCP socket, closed by the destructor.
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

/// A socket bound to a free port on loopback that does not listen, so that connections are refused.
Descriptor BoundToLoopback();
sockaddr_in AddressOf(const Descriptor& socket);
int PortOf(const Descriptor& socket);

}  // namespace testing_support
