#include "TestClient.h"

#include <arpa/inet.h>
#include <httplib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <utility>

class TestClient::Private {
public:
    Private(Scheme scheme, int port, std::string token)
        : m_client((scheme == Scheme::Https ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(port)),
          m_token(std::move(token))
    {
        m_client.enable_server_certificate_verification(false);
        m_client.set_url_encode(false);
        m_client.set_keep_alive(true);
        m_client.set_tcp_nodelay(true);
        m_client.set_read_timeout(60);
    }

    httplib::Client m_client;
    std::string m_token;
};

TestClient::TestClient(Scheme scheme, int port, std::string token)
    : m_private(std::make_unique<Private>(scheme, port, std::move(token)))
{}

TestClient::~TestClient() = default;

Answer TestClient::request(const std::string& method, const std::string& target, const std::string& body)
{
    httplib::Request request;
    request.method = method;
    request.path = target;
    request.body = body;
    request.set_header("Content-Type", "application/json;charset=UTF-8");
    if (!m_private->m_token.empty()) {
        request.set_header("X-Subject-Token", m_private->m_token);
    }
    const httplib::Result result = m_private->m_client.send(request);
    if (!result) {
        return {};
    }
    return Answer{true, result->status, result->body, {result->headers.begin(), result->headers.end()}};
}

void TestClient::abort()
{
    m_private->m_client.stop();
}

std::string SendRaw(int port, const std::string& text, bool closeOwnSide)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    std::string received;
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        ::send(socket, text.data(), text.size(), MSG_NOSIGNAL);
        if (closeOwnSide) {
            ::shutdown(socket, SHUT_WR);
        }
        std::array<char, 4096> buffer{};
        for (ssize_t count = 1; count > 0;) {
            count = ::recv(socket, buffer.data(), buffer.size(), 0);
            received.append(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
        }
    }
    ::close(socket);
    return received;
}
