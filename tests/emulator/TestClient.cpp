#include "TestClient.h"

#include <arpa/inet.h>
#include <boost/asio/connect.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <mutex>
#include <optional>
#include <utility>

namespace {

namespace asio = boost::asio;
namespace http = boost::beast::http;
using asio::ip::tcp;
using boost::system::error_code;

constexpr unsigned kHttp11 = 11;

}  // namespace

class TestClient::Private {
public:
    Private(Scheme scheme, int port, std::string token)
        : m_isSecure(scheme == Scheme::Https),
          m_server(asio::ip::address_v4::loopback(), static_cast<std::uint16_t>(port)), m_token(std::move(token))
    {}

    Reply exchange(const http::request<http::string_body>& request)
    {
        error_code error;
        if (!m_stream) {
            connect(error);
        }
        Reply reply;
        if (!error) {
            reply = m_isSecure ? exchangeOn(*m_stream, request) : exchangeOn(m_stream->next_layer(), request);
        }
        if (!reply.arrived || m_isLast) {
            const std::lock_guard lock(m_mutex);
            m_stream.reset();
        }
        return reply;
    }

    void abort()
    {
        const std::lock_guard lock(m_mutex);
        error_code ignored;
        if (m_stream) {
            m_stream->next_layer().shutdown(tcp::socket::shutdown_both, ignored);
        }
    }

    const bool m_isSecure;
    const tcp::endpoint m_server;
    const std::string m_token;

private:
    void connect(error_code& error)
    {
        m_buffer.clear();
        {
            const std::lock_guard lock(m_mutex);
            m_stream.emplace(m_context, m_tls);
            m_stream->next_layer().connect(m_server, error);
        }
        if (!error) {
            m_stream->next_layer().set_option(tcp::no_delay(true), error);
        }
        if (!error && m_isSecure) {
            m_stream->handshake(asio::ssl::stream_base::client, error);
        }
    }

    template <typename Stream>
    Reply exchangeOn(Stream& stream, const http::request<http::string_body>& request)
    {
        error_code error;
        http::write(stream, request, error);
        http::response_parser<http::string_body> parser;
        parser.body_limit(boost::none);
        parser.skip(request.method() == http::verb::head);
        if (!error) {
            http::read(stream, m_buffer, parser, error);
        }
        if (error) {
            return {};
        }
        const auto& response = parser.get();
        m_isLast = !response.keep_alive();
        Reply reply{true, static_cast<int>(response.result_int()), response.body(), {}};
        for (const auto& field : response) {
            reply.headers.emplace(std::string(field.name_string()), std::string(field.value()));
        }
        return reply;
    }

    asio::io_context m_context;
    asio::ssl::context m_tls{asio::ssl::context::tls_client};
    std::mutex m_mutex;
    std::optional<asio::ssl::stream<tcp::socket>> m_stream;
    boost::beast::flat_buffer m_buffer;
    bool m_isLast = false;
};

TestClient::TestClient(Scheme scheme, int port, std::string token)
    : m_private(std::make_unique<Private>(scheme, port, std::move(token)))
{}

TestClient::~TestClient() = default;

Reply TestClient::request(const std::string& method, const std::string& target, const std::string& body)
{
    http::request<http::string_body> request;
    request.version(kHttp11);
    request.method_string(method);
    request.target(target);
    request.set(http::field::host, "127.0.0.1");
    request.set(http::field::content_type, "application/json;charset=UTF-8");
    if (!m_private->m_token.empty()) {
        request.set("X-Subject-Token", m_private->m_token);
    }
    request.body() = body;
    if (!body.empty() || method != "GET") {
        request.content_length(body.size());
    }
    return m_private->exchange(request);
}

void TestClient::abort()
{
    m_private->abort();
}

RawConnection::RawConnection(int port, std::string_view text) : m_socket(::socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    m_isOpen = ::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    send(text);
}

RawConnection::~RawConnection()
{
    ::close(m_socket);
}

bool RawConnection::send(std::string_view text)
{
    while (m_isOpen && !text.empty()) {
        const ssize_t count = ::send(m_socket, text.data(), text.size(), MSG_NOSIGNAL);
        m_isOpen = count > 0;
        text.remove_prefix(m_isOpen ? static_cast<std::size_t>(count) : 0);
    }
    return m_isOpen;
}

void RawConnection::shutdownSending()
{
    ::shutdown(m_socket, SHUT_WR);
}

std::string RawConnection::receive()
{
    std::array<char, 4096> buffer{};
    const ssize_t count = m_isOpen ? ::recv(m_socket, buffer.data(), buffer.size(), 0) : 0;
    m_isReset = count < 0 && errno == ECONNRESET;
    m_isOpen = count > 0;
    return {buffer.data(), m_isOpen ? static_cast<std::size_t>(count) : 0};
}

std::string RawConnection::receiveUntil(const std::string& text)
{
    std::string received;
    while (m_isOpen && (text.empty() || received.find(text) == std::string::npos)) {
        received += receive();
    }
    return received;
}

std::string SendRaw(int port, const std::string& text, bool halfClose)
{
    RawConnection connection(port, text);
    if (halfClose) {
        connection.shutdownSending();
    }
    return connection.receiveUntil({});
}
