#include "Descriptor.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace testing_support {

Descriptor::Descriptor() : m_nNumber(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0))
{
    EXPECT_GE(m_nNumber, 0);
}

Descriptor::~Descriptor()
{
    if (m_nNumber >= 0) {
        close(m_nNumber);
    }
}

Descriptor::Descriptor(Descriptor&& other) noexcept : m_nNumber(std::exchange(other.m_nNumber, -1)) {}

Descriptor BoundToLoopback()
{
    Descriptor bound;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(bind(bound.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    return bound;
}

sockaddr_in AddressOf(const Descriptor& socket)
{
    sockaddr_in address{};
    socklen_t nSize = sizeof(address);
    EXPECT_EQ(getsockname(socket.Number(), reinterpret_cast<sockaddr*>(&address), &nSize), 0);
    return address;
}

int PortOf(const Descriptor& socket)
{
    return ntohs(AddressOf(socket).sin_port);
}

}  // namespace testing_support
