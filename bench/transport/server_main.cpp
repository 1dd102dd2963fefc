// The server for benchmarks of calls. Sends replies of any size over HTTP and HTTPS on loopback, in one write each.
//
// "/small" returns a few settings, "/lots/<n>" n detailed parking lots, "/after/<ms>" the settings after that time, and
// "/connections" the number of connections so far. It prints its two ports and exits when its standard input closes.
#include "../reading/ParkingLots.h"

#include <support/Certificate.h>

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
#include <mutex>
#include <string>
#include <thread>

namespace bench {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::ip::tcp;

constexpr const char* kSettings =
    R"({"code":1000,"desc":"Success","data":{"enable":"1","ip":"192.168.10.2","port":"514","platformId":"1"}})";

class Server {
public:
    Server()
    {
        const testing_support::Certificate certificate = testing_support::MakeCertificate();
        const std::string pem = certificate.certificate.toPem().toStdString();
        const std::string key = certificate.key.toPem().toStdString();
        m_tls.use_certificate(asio::buffer(pem), asio::ssl::context::pem);
        m_tls.use_private_key(asio::buffer(key), asio::ssl::context::pem);
        Accept(m_http, [](tcp::socket socket) { return beast::tcp_stream(std::move(socket)); });
        Accept(m_https, [this](tcp::socket socket) {
            beast::ssl_stream<tcp::socket> stream(std::move(socket), m_tls);
            stream.handshake(asio::ssl::stream_base::server);
            return stream;
        });
    }

    void PrintPorts()
    {
        std::cout << m_http.local_endpoint().port() << ' ' << m_https.local_endpoint().port() << std::endl;
    }

private:
    template <typename Open>
    void Accept(tcp::acceptor& acceptor, Open open)
    {
        std::thread([this, &acceptor, open] {
            for (;;) {
                tcp::socket socket = acceptor.accept();
                socket.set_option(tcp::no_delay(true));
                ++m_nConnections;
                std::thread([this, open, connection = std::move(socket)]() mutable {
                    Serve(std::move(connection), open);
                }).detach();
            }
        }).detach();
    }

    template <typename Open>
    void Serve(tcp::socket socket, const Open& open)
    try {
        auto stream = open(std::move(socket));
        beast::flat_buffer buffer;
        for (;;) {
            http::request<http::string_body> request;
            http::read(stream, buffer, request);
            SendReply(stream, std::string(request.target()));
        }
    } catch (const boost::system::system_error&) {
        // The client has closed the connection.
    }

    template <typename Stream>
    void SendReply(Stream& stream, const std::string& target)
    {
        const std::size_t slash = target.rfind('/');
        const std::string what = target.substr(0, slash);
        if (what == "/lots") {
            Send(stream, Lots(std::stoi(target.substr(slash + 1))));
        } else if (target == "/connections") {
            Send(stream, R"({"code":1000,"desc":"Success","data":{"count":)" + std::to_string(m_nConnections) + "}}");
        } else {
            if (what == "/after") {
                std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(target.substr(slash + 1))));
            }
            Send(stream, kSettings);
        }
    }

    template <typename Stream>
    static void Send(Stream& stream, const std::string& body)
    {
        constexpr unsigned kHttp11 = 11;
        http::response<http::span_body<const char>> response(http::status::ok, kHttp11);
        response.set(http::field::content_type, "application/json;charset=UTF-8");
        response.body() = {body.data(), body.size()};
        response.prepare_payload();
        http::write(stream, response);
    }

    const std::string& Lots(int nCount)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::string& reply = m_lots[nCount];
        if (reply.empty()) {
            ParkingLots lots = MakeParkingLots(nCount);
            reply = ReplyOf(lots).toStdString();
        }
        return reply;
    }

    asio::io_context m_context;
    asio::ssl::context m_tls{asio::ssl::context::tls_server};
    tcp::acceptor m_http{m_context, {asio::ip::address_v4::loopback(), 0}};
    tcp::acceptor m_https{m_context, {asio::ip::address_v4::loopback(), 0}};
    std::atomic<int> m_nConnections = 0;
    std::mutex m_mutex;
    std::map<int, std::string> m_lots;
};

}  // namespace
}  // namespace bench

int main()
{
    static auto* const pServer = new bench::Server;
    pServer->PrintPorts();
    while (std::cin.get() != std::char_traits<char>::eof()) {
    }
    std::_Exit(EXIT_SUCCESS);  // its threads do not end
}
