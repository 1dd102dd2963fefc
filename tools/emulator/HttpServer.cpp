#include "HttpServer.h"

#include "Json.h"
#include "RequestReader.h"
#include "Texts.h"

#include <boost/asio/basic_waitable_timer.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ip/v6_only.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/strand.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/http/status.hpp>
#include <openssl/ssl.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <list>
#include <mutex>
#include <set>
#include <stdexcept>
#include <strings.h>
#include <thread>
#include <type_traits>
#include <vector>

namespace emulator {
namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;
using Clock = std::chrono::steady_clock;

using Strand = asio::strand<asio::io_context::executor_type>;
using Socket = asio::basic_stream_socket<tcp, Strand>;
using TlsStream = asio::ssl::stream<Socket>;
using Acceptor = asio::basic_socket_acceptor<tcp, Strand>;
using Resolver = asio::ip::basic_resolver<tcp, Strand>;
using Timer = asio::basic_waitable_timer<Clock, asio::wait_traits<Clock>, Strand>;

constexpr unsigned kLeastThreads = 2;
constexpr unsigned kMostThreads = 4;
constexpr std::size_t kReadSize = 16UL * 1024;
constexpr std::size_t kWriteSize = 1024UL * 1024;
/// Number of pieces that a slow reply sends each second.
constexpr std::size_t kPiecesPerSecond = 10;
/// Time-out for a client that does not read the reply.
constexpr std::chrono::seconds kWriteTimeout(120);
/// How long to keep reading after the last reply. Closing the connection with unread data would reset it, and the
/// client might lose the reply.
constexpr std::chrono::seconds kLingerTime(5);
/// Pause after a failure to accept a connection, which is usually a lack of file descriptors.
constexpr std::chrono::milliseconds kAcceptPause(50);
constexpr const char* kContentType = "application/json;charset=UTF-8";
constexpr const char* kContinue = "HTTP/1.1 100 Continue\r\n\r\n";
constexpr int kInternalError = 500;
constexpr int kNoContent = 204;
constexpr int kNotModified = 304;

/// The server's interface to a connection.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&&) = delete;
    Connection& operator=(Connection&&) = delete;
    virtual ~Connection() = default;

    virtual void start() = 0;
    /// Closes the connection; callable from any thread.
    virtual void abort() = 0;
};

/// The open connections, which the server closes when it stops, and their settings.
class Connections {
public:
    Connections(HttpHandler&& requestHandler, std::chrono::milliseconds timeout)
        : handler(std::move(requestHandler)), readTimeout(timeout)
    {}

    void add(const std::shared_ptr<Connection>& connection)
    {
        const std::lock_guard lock(m_mutex);
        m_open.insert(connection);
        if (m_stopped) {
            connection->abort();
        }
    }
    void remove(const std::shared_ptr<Connection>& connection)
    {
        const std::lock_guard lock(m_mutex);
        m_open.erase(connection);
    }
    void abortAll()
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        for (const std::shared_ptr<Connection>& connection : m_open) {
            connection->abort();
        }
    }

    const HttpHandler handler;
    const std::chrono::milliseconds readTimeout;

private:
    std::mutex m_mutex;
    std::set<std::shared_ptr<Connection>> m_open;
    bool m_stopped = false;
};

HttpResponse ErrorResponse(int status, const std::string& reason)
{
    return {status, {}, Json{{"error", reason}}.dump(-1, ' ', false, Json::error_handler_t::replace)};
}

const std::string* HeaderOf(const HttpResponse& response, const char* name)
{
    const auto found = std::find_if(response.headers.begin(), response.headers.end(), [name](const auto& header) {
        return ::strcasecmp(header.first.c_str(), name) == 0;
    });
    return found == response.headers.end() ? nullptr : &found->second;
}

bool HasBody(int status)
{
    return status != kNoContent && status != kNotModified;
}

/// A line end inside a header would start a second header.
bool IsOneLine(const std::string& text)
{
    return text.find_first_of("\r\n") == std::string::npos;
}

/// Status line and headers.
std::string HeadOf(const HttpResponse& response, bool isLast, bool isOldVersion)
{
    const boost::beast::string_view reason =
        boost::beast::http::obsolete_reason(static_cast<boost::beast::http::status>(response.status));
    std::string head = "HTTP/1.1 " + std::to_string(response.status) + " ";
    head.append(reason.front() == '<' ? std::string_view() : std::string_view(reason.data(), reason.size()));
    const auto add = [&head](const std::string& name, const std::string& value) {
        head.append("\r\n").append(name).append(": ").append(value);
    };
    for (const auto& [name, value] : response.headers) {
        if (IsOneLine(name) && IsOneLine(value)) {
            add(name, value);
        }
    }
    if (HasBody(response.status)) {
        if (HeaderOf(response, "Content-Type") == nullptr) {
            add("Content-Type", kContentType);
        }
        if (HeaderOf(response, "Content-Length") == nullptr && HeaderOf(response, "Transfer-Encoding") == nullptr) {
            add("Content-Length", std::to_string(response.body.size()));
        }
    }
    if (HeaderOf(response, "Connection") == nullptr && (isLast || isOldVersion)) {
        add("Connection", isLast ? "close" : "keep-alive");
    }
    return head + "\r\n\r\n";
}

/// Serves one connection. All members run on the socket's strand.
template <typename Stream>
class ConnectionOn final : public Connection, public std::enable_shared_from_this<ConnectionOn<Stream>> {
public:
    ConnectionOn(Stream stream, std::size_t number, Connections& connections)
        : m_stream(std::move(stream)), m_number(number), m_connections(connections), m_timer(m_stream.get_executor()),
          m_waitTimer(m_stream.get_executor())
    {}

    void start() override
    {
        asio::post(m_stream.get_executor(), [self = this->shared_from_this()] { self->begin(); });
    }

    void abort() override
    {
        asio::post(m_stream.get_executor(), [self = this->shared_from_this()] {
            self->stopWaiting(true);
            self->close();
        });
    }

private:
    static constexpr bool kIsTls = std::is_same_v<Stream, TlsStream>;

    enum class State {
        Handshake,
        Reading,  ///< a request
        Waiting,  ///< as the handler asked
        Writing,  ///< a reply
        Ending,   ///< the last reply was sent; reading until the client closes its side
        Closed
    };

    auto& socket()
    {
        if constexpr (kIsTls) {
            return m_stream.next_layer();
        } else {
            return m_stream;
        }
    }

    void begin()
    {
        if (m_state == State::Closed) {
            return;
        }
        error_code ignored;
        socket().set_option(tcp::no_delay(true), ignored);
        setTimeout(m_connections.readTimeout);
        startTimer();
        if constexpr (kIsTls) {
            m_stream.async_handshake(asio::ssl::stream_base::server,
                                     [self = this->shared_from_this()](const error_code& error) {
                                         error ? self->close() : self->awaitRequest();
                                     });
        } else {
            awaitRequest();
        }
    }

    void setTimeout(Clock::duration time)
    {
        m_deadline = Clock::now() + time;
        if (m_timer.expiry() > m_deadline) {
            startTimer();
        }
    }

    /// Checks the deadline when it may have passed. Extending the deadline does not restart the timer.
    void startTimer()
    {
        m_timer.expires_at(m_deadline);
        m_timer.async_wait([self = this->shared_from_this()](const error_code& error) {
            if (!error && self->m_state != State::Closed) {
                self->checkDeadline();
            }
        });
    }

    void checkDeadline()
    {
        if (m_state == State::Waiting) {
            setTimeout(m_connections.readTimeout);
        } else if (Clock::now() >= m_deadline) {
            if (m_state != State::Reading) {
                close();
                return;
            }
            end();
        }
        startTimer();
    }

    void awaitRequest()
    {
        if (m_state == State::Closed) {
            return;
        }
        m_state = State::Reading;
        m_hasBegun = false;
        setTimeout(m_connections.readTimeout);
        serve();
    }

    void serve()
    {
        switch (m_reader.read()) {
        case RequestReader::Progress::NeedsMore:
            if (!m_hasBegun && m_reader.hasBegun()) {
                m_hasBegun = true;
                setTimeout(m_connections.readTimeout);
            }
            receive();
            break;
        case RequestReader::Progress::ExpectsContinue:
            write(kContinue, {}, &ConnectionOn::awaitBody);
            break;
        case RequestReader::Progress::Complete:
            handle();
            break;
        case RequestReader::Progress::Refused:
            refuse();
            break;
        }
    }

    void awaitBody()
    {
        m_state = State::Reading;
        setTimeout(m_connections.readTimeout);
        serve();
    }

    /// Starts reading unless a read is already in progress.
    void receive()
    {
        if (m_isReceiving) {
            return;
        }
        m_isReceiving = true;
        m_stream.async_read_some(asio::buffer(m_block),
                                 [self = this->shared_from_this()](const error_code& error, std::size_t count) {
                                     self->m_isReceiving = false;
                                     self->received(error, count);
                                 });
    }

    void received(const error_code& error, std::size_t count)
    {
        if (m_state == State::Closed || m_state == State::Ending) {
            return;
        }
        m_reader.add({m_block.data(), count});
        switch (m_state) {
        case State::Reading:
            if (!error) {
                serve();
            } else if (error == asio::error::eof && m_reader.readEnd() == RequestReader::Progress::Refused) {
                refuse();
            } else {
                close();
            }
            break;
        case State::Waiting:
            if (error || m_reader.pending() > kLargestBody) {
                stopWaiting(true);
            } else {
                receive();
            }
            break;
        default:
            break;
        }
    }

    void handle()
    {
        HttpRequest& request = m_reader.request();
        request.connection = m_number;
        m_isLast = !m_reader.keepsAlive();
        m_isOldVersion = m_reader.isOldVersion();
        m_isHead = request.method == "HEAD";
        try {
            HttpReply reply = m_connections.handler(request);
            if (auto* const response = std::get_if<HttpResponse>(&reply)) {
                answer(std::move(*response));
            } else {
                wait(std::move(std::get<HttpWait>(reply)));
            }
        } catch (const std::exception& error) {
            answer(ErrorResponse(kInternalError, error.what()));
        }
    }

    void refuse()
    {
        m_isLast = true;
        m_isOldVersion = false;
        m_isHead = false;
        answer(ErrorResponse(m_reader.fault().status, m_reader.fault().reason));
    }

    /// Keeps reading, to detect that the client disconnects.
    void wait(HttpWait&& request)
    {
        m_state = State::Waiting;
        m_then = std::move(request.then);
        if (request.time) {
            m_waitTimer.expires_after(*request.time);
            m_waitTimer.async_wait([self = this->shared_from_this(), turn = m_turn](const error_code& error) {
                if (!error && turn == self->m_turn) {
                    self->stopWaiting(false);
                }
            });
        }
        receive();
    }

    void stopWaiting(bool isGone)
    {
        if (m_state != State::Waiting) {
            return;
        }
        ++m_turn;
        m_waitTimer.cancel();
        try {
            answer(std::exchange(m_then, nullptr)(isGone));
        } catch (const std::exception& error) {
            answer(ErrorResponse(kInternalError, error.what()));
        }
    }

    void answer(HttpResponse&& response)
    {
        if (response.ending == HttpResponse::Ending::CloseBefore) {
            close();
            return;
        }
        if (response.ending == HttpResponse::Ending::Reset) {
            error_code ignored;
            socket().set_option(asio::socket_base::linger(true, 0), ignored);
            close();
            return;
        }
        if (!HasBody(response.status)) {
            response.body.clear();
        }
        const std::string* const connection = HeaderOf(response, "Connection");
        m_isLast = m_isLast || response.ending == HttpResponse::Ending::CloseMiddle ||
                   (connection != nullptr && ::strcasecmp(connection->c_str(), "close") == 0) ||
                   HeaderOf(response, "Content-Length") != nullptr ||
                   HeaderOf(response, "Transfer-Encoding") != nullptr;
        std::string head = HeadOf(response, m_isLast, m_isOldVersion);
        if (m_isHead) {
            response.body.clear();
        } else if (response.ending == HttpResponse::Ending::CloseMiddle) {
            response.body.resize(response.body.size() / 2);
        }
        if (response.bytesPerSecond > 0) {
            m_bytesPerSecond = response.bytesPerSecond;
            m_unsent = std::move(response.body);
            write(std::move(head), {}, &ConnectionOn::sendSlowly);
        } else {
            write(std::move(head), std::move(response.body), &ConnectionOn::finishReply);
        }
    }

    /// Sends the rest of a slow body in pieces, each after a pause that yields the requested rate.
    void sendSlowly()
    {
        if (m_unsent.empty()) {
            finishReply();
            return;
        }
        const std::size_t size =
            std::min(std::max<std::size_t>(m_bytesPerSecond / kPiecesPerSecond, 1), m_unsent.size());
        m_waitTimer.expires_after(std::chrono::nanoseconds(std::chrono::seconds(size)) / m_bytesPerSecond);
        m_waitTimer.async_wait([self = this->shared_from_this(), size](const error_code& error) {
            if (!error && self->m_state != State::Closed) {
                std::string piece = self->m_unsent.substr(0, size);
                self->m_unsent.erase(0, size);
                self->write(std::move(piece), {}, &ConnectionOn::sendSlowly);
            }
        });
    }

    /// Ends the connection after its last reply, or reads the next request.
    void finishReply()
    {
        if (m_isLast) {
            end();
        } else {
            m_reader.next();
            awaitRequest();
        }
    }

    void write(std::string head, std::string body, void (ConnectionOn::*then)())
    {
        m_state = State::Writing;
        m_head = std::move(head);
        m_body = std::move(body);
        setTimeout(kWriteTimeout);
        const std::array<asio::const_buffer, 2> both = {asio::buffer(m_head), asio::buffer(m_body)};
        const auto onProgress = [this](const error_code& error, std::size_t count) {
            if (count > 0) {
                setTimeout(kWriteTimeout);
            }
            return error ? 0 : kWriteSize;
        };
        asio::async_write(m_stream, both, onProgress,
                          [self = this->shared_from_this(), then](const error_code& error, std::size_t) {
                              if (self->m_state == State::Closed) {
                                  return;
                              }
                              std::string().swap(self->m_body);
                              error ? self->close() : (*self.*then)();
                          });
    }

    /// Closes the sending side and discards incoming data until the client closes its side.
    void end()
    {
        m_state = State::Ending;
        setTimeout(std::min<Clock::duration>(kLingerTime, m_connections.readTimeout));
        if constexpr (kIsTls) {
            m_stream.async_shutdown([self = this->shared_from_this()](const error_code&) { self->endSocket(); });
        } else {
            endSocket();
        }
    }

    void endSocket()
    {
        if (m_state == State::Closed) {
            return;
        }
        error_code ignored;
        socket().shutdown(Socket::shutdown_send, ignored);
        drain();
    }

    void drain()
    {
        socket().async_read_some(asio::buffer(m_rest),
                                 [self = this->shared_from_this()](const error_code& error, std::size_t) {
                                     if (self->m_state != State::Closed) {
                                         error ? self->close() : self->drain();
                                     }
                                 });
    }

    void close()
    {
        if (m_state == State::Closed) {
            return;
        }
        m_state = State::Closed;
        m_timer.cancel();
        m_waitTimer.cancel();
        error_code ignored;
        socket().close(ignored);
        m_connections.remove(this->shared_from_this());
    }

    Stream m_stream;
    const std::size_t m_number;
    Connections& m_connections;
    Timer m_timer;
    Timer m_waitTimer;
    Clock::time_point m_deadline;
    State m_state = State::Handshake;
    RequestReader m_reader;
    std::array<char, kReadSize> m_block{};
    std::array<char, 1024> m_rest{};
    bool m_isReceiving = false;
    bool m_hasBegun = false;
    bool m_isLast = false;
    bool m_isOldVersion = false;
    bool m_isHead = false;
    std::function<HttpResponse(bool)> m_then;
    std::size_t m_turn = 0;
    std::string m_head;
    std::string m_body;
    std::string m_unsent;
    std::size_t m_bytesPerSecond = 0;
};

std::string ReasonOf(const error_code& error)
{
    if (error == asio::error::address_in_use) {
        return Filled(Texts::tr("the port is in use"));
    }
    if (error == boost::system::errc::address_not_available) {
        return Filled(Texts::tr("this machine has no such address"));
    }
    if (error == asio::error::access_denied) {
        return Filled(Texts::tr("permission denied"));
    }
    if (error.category() == asio::error::get_netdb_category() ||
        error.category() == asio::error::get_addrinfo_category()) {
        return Filled(Texts::tr("unknown address"));
    }
    return error.message();
}

/// A listening port.
class Listener {
public:
    Listener(asio::io_context& context, const std::shared_ptr<ssl_ctx_st>& tls)
        : m_context(context), m_acceptor(asio::make_strand(context)), m_pause(m_acceptor.get_executor())
    {
        if (tls) {
            SSL_CTX_up_ref(tls.get());
            m_tls.emplace(tls.get());
        }
    }

    void open(const std::string& address, int port)
    {
        error_code error;
        Resolver resolver(m_acceptor.get_executor());
        const auto found =
            resolver.resolve(address, std::to_string(port), Resolver::passive | Resolver::numeric_service, error);
        for (const auto& entry : found) {
            error = open(entry.endpoint());
            if (!error) {
                return;
            }
        }
        throw std::runtime_error(
            Filled(Texts::tr("cannot listen on %1: %2"), ShownAddress(address, port), ReasonOf(error)));
    }

    [[nodiscard]] int port() const { return m_acceptor.local_endpoint().port(); }

    /// @param serve called with each connection
    template <typename Serve>
    void accept(Serve serve)
    {
        if (!m_acceptor.is_open()) {
            return;
        }
        m_acceptor.async_accept(asio::make_strand(m_context), [this, serve](const error_code& error, Socket socket) {
            if (error) {
                m_pause.expires_after(kAcceptPause);
                m_pause.async_wait([this, serve](const error_code&) { accept(serve); });
            } else {
                serve(std::move(socket), m_tls ? &*m_tls : nullptr);
                accept(serve);
            }
        });
    }

    /// Callable from any thread.
    void close()
    {
        asio::post(m_acceptor.get_executor(), [this] {
            error_code ignored;
            m_acceptor.close(ignored);
            m_pause.cancel();
        });
    }

private:
    error_code open(const tcp::endpoint& endpoint)
    {
        error_code error;
        const auto attempt = [&error](auto action) {
            if (!error) {
                action();
            }
        };
        m_acceptor.close(error);
        attempt([&] { m_acceptor.open(endpoint.protocol(), error); });
        // Two servers must not share a port, so no SO_REUSEPORT.
        attempt([&] { m_acceptor.set_option(Acceptor::reuse_address(true), error); });
        if (endpoint.address().is_v6()) {
            attempt([&] { m_acceptor.set_option(asio::ip::v6_only(false), error); });
        }
        attempt([&] { m_acceptor.bind(endpoint, error); });
        attempt([&] { m_acceptor.listen(Acceptor::max_listen_connections, error); });
        return error;
    }

    asio::io_context& m_context;
    Acceptor m_acceptor;
    Timer m_pause;
    std::optional<asio::ssl::context> m_tls;
};

}  // namespace

std::string ShownAddress(const std::string& address, int port)
{
    const bool isIpv6 = address.find(':') != std::string::npos;
    return (isIpv6 ? "[" + address + "]" : address) + ":" + std::to_string(port);
}

class HttpServer::Private {
public:
    Private(HttpHandler handler, std::chrono::milliseconds readTimeout) : m_open(std::move(handler), readTimeout) {}

    int listen(const std::string& address, int port, const std::shared_ptr<ssl_ctx_st>& tls)
    {
        Listener& listener = m_listeners.emplace_back(m_context, tls);
        listener.open(address, port);
        listener.accept([this](Socket socket, asio::ssl::context* context) {
            const std::size_t number = ++m_count;
            if (context != nullptr) {
                add(std::make_shared<ConnectionOn<TlsStream>>(TlsStream(std::move(socket), *context), number, m_open));
            } else {
                add(std::make_shared<ConnectionOn<Socket>>(std::move(socket), number, m_open));
            }
        });
        if (m_threads.empty()) {
            const unsigned count = std::clamp(std::thread::hardware_concurrency(), kLeastThreads, kMostThreads);
            for (unsigned i = 0; i < count; ++i) {
                m_threads.emplace_back([this] { m_context.run(); });
            }
        }
        return listener.port();
    }

    void stop()
    {
        const std::lock_guard lock(m_stopping);
        for (Listener& listener : m_listeners) {
            listener.close();
        }
        m_open.abortAll();
        for (std::thread& thread : m_threads) {
            thread.join();
        }
        m_threads.clear();
    }

    [[nodiscard]] std::size_t count() const { return m_count; }

private:
    void add(const std::shared_ptr<Connection>& connection)
    {
        m_open.add(connection);
        connection->start();
    }

    Connections m_open;
    std::atomic<std::size_t> m_count = 0;
    asio::io_context m_context;
    std::list<Listener> m_listeners;
    std::vector<std::thread> m_threads;
    std::mutex m_stopping;
};

HttpServer::HttpServer(HttpHandler handler, std::chrono::milliseconds readTimeout)
    : m_private(std::make_unique<Private>(std::move(handler), readTimeout))
{}

HttpServer::~HttpServer()
{
    stop();
}

int HttpServer::listen(const std::string& address, int port, const std::shared_ptr<ssl_ctx_st>& tls)
{
    return m_private->listen(address, port, tls);
}

void HttpServer::stop()
{
    m_private->stop();
}

std::size_t HttpServer::connections() const
{
    return m_private->count();
}

}  // namespace emulator
