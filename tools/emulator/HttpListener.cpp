#include "HttpListener.h"

#include "Text.h"
#include "Texts.h"

#include <httplib.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <future>
#include <list>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

namespace emulator {
namespace {

constexpr int kIdleMilliseconds = 10 * 60 * 1000;
constexpr time_t kTransferSeconds = 120;
constexpr std::size_t kReadSize = 16UL * 1024;
constexpr const char* kContentType = "application/json;charset=UTF-8";

/// One accepted connection; the HTTP engine reads and writes through it.
class Connection final : public httplib::Stream, public Peer {
public:
    Connection(int socket, std::size_t number, SSL_CTX* tls) : m_socket(socket), m_number(number)
    {
        const int on = 1;
        ::setsockopt(m_socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        if (tls != nullptr) {
            m_tls.reset(SSL_new(tls));
            SSL_set_fd(m_tls.get(), m_socket);
        }
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&&) = delete;
    Connection& operator=(Connection&&) = delete;
    ~Connection() override
    {
        if (m_tls && !m_aborted) {
            SSL_shutdown(m_tls.get());
        }
        m_tls.reset();
        ::close(m_socket);
    }

    bool handshake() { return !m_tls || SSL_accept(m_tls.get()) == 1; }

    /// Waits for the next request and looks at its first line.
    bool awaitRequest()
    {
        m_input.erase(0, m_used);
        m_used = 0;
        while (m_input.find("\r\n") == std::string::npos) {
            const bool atStart = m_input.empty();
            pollfd idle{m_socket, POLLIN, 0};
            const bool pending = m_tls && SSL_pending(m_tls.get()) > 0;
            if (atStart && !pending && ::poll(&idle, 1, kIdleMilliseconds) <= 0) {
                return false;
            }
            if (m_input.size() > CPPHTTPLIB_REQUEST_URI_MAX_LENGTH || !fill()) {
                return !m_input.empty();
            }
        }
        noteTarget();
        return true;
    }

    [[nodiscard]] std::size_t number() const { return m_number; }
    [[nodiscard]] const std::string& target() const { return m_target; }

    /// Ends the connection from any thread; whoever reads or writes returns.
    void abort()
    {
        m_aborted = true;
        ::shutdown(m_socket, SHUT_RDWR);
    }

    bool waitGone(std::chrono::milliseconds time) override { return pollGone(static_cast<int>(time.count())); }
    void waitGone() override { pollGone(-1); }

    [[nodiscard]] bool is_readable() const override { return !m_aborted; }
    [[nodiscard]] bool is_writable() const override { return !m_aborted; }

    ssize_t read(char* data, size_t size) override
    {
        if (m_input.empty() && !fill()) {
            return m_aborted ? -1 : 0;
        }
        const std::size_t count = std::min(size, m_input.size() - m_used);
        std::copy_n(m_input.data() + m_used, count, data);
        m_used += count;
        if (m_used == m_input.size()) {
            m_input.clear();
            m_used = 0;
        }
        return static_cast<ssize_t>(count);
    }

    ssize_t write(const char* data, size_t size) override
    {
        for (std::size_t done = 0; done < size;) {
            const ssize_t count = writeSome(data + done, size - done);
            if (count <= 0) {
                m_aborted = true;
                return -1;
            }
            done += static_cast<std::size_t>(count);
        }
        return static_cast<ssize_t>(size);
    }

    void get_remote_ip_and_port(std::string& ip, int& port) const override { nameEnd(::getpeername, ip, port); }
    void get_local_ip_and_port(std::string& ip, int& port) const override { nameEnd(::getsockname, ip, port); }
    [[nodiscard]] socket_t socket() const override { return m_socket; }

private:
    struct FreeTls {
        void operator()(SSL* tls) const { SSL_free(tls); }
    };

    bool fill()
    {
        std::array<char, kReadSize> buffer{};
        const ssize_t count = m_tls ? SSL_read(m_tls.get(), buffer.data(), static_cast<int>(buffer.size()))
                                    : ::recv(m_socket, buffer.data(), buffer.size(), 0);
        if (count > 0) {
            m_input.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return count > 0;
    }

    ssize_t writeSome(const char* data, std::size_t size)
    {
        return m_tls ? SSL_write(m_tls.get(), data, static_cast<int>(std::min<std::size_t>(size, INT_MAX)))
                     : ::send(m_socket, data, size, MSG_NOSIGNAL);
    }

    /// Keeps the target as it came. The HTTP engine takes no second '?' although a query may hold one: it gets it
    /// encoded.
    void noteTarget()
    {
        const std::size_t end = m_input.find("\r\n");
        const std::size_t begin = std::min(m_input.find(' '), end);
        const std::size_t last = std::max(begin, std::min(m_input.rfind(' ', end), end));
        m_target = begin < last ? m_input.substr(begin + 1, last - begin - 1) : std::string();
        const std::size_t query = m_target.find('?');
        if (query == std::string::npos) {
            return;
        }
        std::string encoded = m_target.substr(0, query + 1);
        for (const char c : m_target.substr(query + 1)) {
            encoded += c == '?' ? "%3F" : std::string(1, c);
        }
        m_input.replace(begin + 1, m_target.size(), encoded);
    }

    bool pollGone(int milliseconds)
    {
        pollfd peer{m_socket, POLLRDHUP, 0};
        return ::poll(&peer, 1, milliseconds) != 0;
    }

    template <typename NameOf>
    void nameEnd(NameOf nameOf, std::string& ip, int& port) const
    {
        sockaddr_storage address{};
        socklen_t length = sizeof address;
        std::array<char, NI_MAXHOST> host{};
        std::array<char, NI_MAXSERV> service{};
        auto* const name = reinterpret_cast<sockaddr*>(&address);
        if (nameOf(m_socket, name, &length) == 0 &&
            ::getnameinfo(name, length, host.data(), host.size(), service.data(), service.size(),
                          NI_NUMERICHOST | NI_NUMERICSERV) == 0) {
            ip = host.data();
            port = std::stoi(service.data());
        }
    }

    const int m_socket;
    const std::size_t m_number;
    std::unique_ptr<SSL, FreeTls> m_tls;
    std::atomic<bool> m_aborted = false;
    std::string m_input;
    std::size_t m_used = 0;
    std::string m_target;
};

/// The connections that are open, so that stopping can end them.
class Connections {
public:
    void add(Connection& connection)
    {
        const std::lock_guard lock(m_mutex);
        m_open.insert(&connection);
        if (m_stopped) {
            connection.abort();
        }
    }
    void remove(Connection& connection)
    {
        const std::lock_guard lock(m_mutex);
        m_open.erase(&connection);
    }
    void abortAll()
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        for (Connection* connection : m_open) {
            connection->abort();
        }
    }

private:
    std::mutex m_mutex;
    std::set<Connection*> m_open;
    bool m_stopped = false;
};

/// A thread for each connection: however many requests hang, the next one is served.
class ConnectionThreads final : public httplib::TaskQueue {
public:
    explicit ConnectionThreads(std::function<void()> abortAll) : m_abortAll(std::move(abortAll)) {}

    void enqueue(std::function<void()> serve) override
    {
        m_workers.remove_if([](Worker& worker) {
            const bool done = worker.done;
            if (done) {
                worker.thread.join();
            }
            return done;
        });
        Worker& worker = m_workers.emplace_back();
        worker.thread = std::thread([&worker, serve = std::move(serve)] {
            serve();
            worker.done = true;
        });
    }

    void shutdown() override
    {
        m_abortAll();
        for (Worker& worker : m_workers) {
            worker.thread.join();
        }
        m_workers.clear();
    }

private:
    struct Worker {
        std::thread thread;
        std::atomic<bool> done = false;
    };

    std::function<void()> m_abortAll;
    std::list<Worker> m_workers;
};

bool CarriesBody(const std::string& method)
{
    return method == "POST" || method == "PUT" || method == "PATCH" || method == "DELETE";
}

/// The HTTP engine on sockets of our own.
class Engine final : public httplib::Server {
public:
    Engine(HttpHandler handler, std::function<std::size_t()> nextConnection, SSL_CTX* tls)
        : m_handler(std::move(handler)), m_nextConnection(std::move(nextConnection)), m_tls(tls)
    {
        new_task_queue = [this] {
            m_listening.set_value();
            return new ConnectionThreads([this] { m_connections.abortAll(); });
        };
        // Two emulators must not share a port, so no SO_REUSEPORT.
        set_socket_options([](socket_t socket) {
            const int on = 1;
            ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        });
        set_read_timeout(kTransferSeconds);
        set_write_timeout(kTransferSeconds);
        set_keep_alive_timeout(kIdleMilliseconds / 1000);
        set_keep_alive_max_count(1000000);
        const auto answer = [this](const httplib::Request& request, httplib::Response& response) {
            this->answer(request, response);
        };
        const std::string anything = "[\\s\\S]*";
        Get(anything, answer);
        Put(anything, answer);
        Post(anything, answer);
        Delete(anything, answer);
        Patch(anything, answer);
        Options(anything, answer);
    }

    /// The engine's own backlog is five, too few for many clients at once.
    void widenBacklog() { ::listen(svr_sock_, SOMAXCONN); }

    std::future<void> listening() { return m_listening.get_future(); }

private:
    /// The exchange that a connection's thread works on.
    struct Exchange {
        Connection& connection;
        httplib::Headers headers;
        std::string body;
    };

    bool process_and_close_socket(socket_t socket) override
    {
        Connection connection(socket, m_nextConnection(), m_tls);
        m_connections.add(connection);
        if (connection.handshake()) {
            serve(connection);
        }
        m_connections.remove(connection);
        return true;
    }

    void serve(Connection& connection)
    {
        bool open = true;
        while (open && connection.awaitRequest()) {
            Exchange exchange{connection, {}, {}};
            t_exchange = &exchange;
            bool closed = false;
            const bool done = process_request(connection, false, closed,
                                              [&](httplib::Request& request) { prepare(request, exchange); });
            t_exchange = nullptr;
            open = done && !closed;
        }
    }

    /// Has the engine read every body as plain bytes, whatever the headers say of its form.
    static void prepare(httplib::Request& request, Exchange& exchange)
    {
        exchange.headers = request.headers;
        request.headers.erase("Content-Type");
        request.headers.erase("Content-Encoding");
        if (!request.has_header("Content-Length") && !request.has_header("Transfer-Encoding")) {
            request.set_header("Content-Length", "0");
        }
        if (!CarriesBody(request.method)) {
            auto left = request.get_header_value<std::uint64_t>("Content-Length");
            std::array<char, kReadSize> buffer{};
            while (left > 0) {
                const ssize_t count = exchange.connection.read(buffer.data(), std::min(left, buffer.size()));
                if (count <= 0) {
                    return;
                }
                exchange.body.append(buffer.data(), static_cast<std::size_t>(count));
                left -= static_cast<std::size_t>(count);
            }
        }
    }

    void answer(const httplib::Request& request, httplib::Response& response)
    {
        Exchange& exchange = *t_exchange;
        HttpRequest plain;
        plain.method = request.method;
        plain.target = exchange.connection.target();
        plain.headers.assign(exchange.headers.begin(), exchange.headers.end());
        plain.body = CarriesBody(request.method) ? request.body : exchange.body;
        plain.connection = exchange.connection.number();
        send(m_handler(plain, exchange.connection), exchange.connection, response);
    }

    static void send(HttpResponse&& plain, Connection& connection, httplib::Response& response)
    {
        response.status = plain.status;
        for (const auto& [name, value] : plain.headers) {
            response.set_header(name, value);
        }
        switch (plain.ending) {
        case HttpResponse::Ending::Complete:
            response.body = std::move(plain.body);
            response.set_header("Content-Type", kContentType);
            break;
        case HttpResponse::Ending::CloseBefore:
            connection.abort();
            break;
        case HttpResponse::Ending::CloseMiddle:
            const std::size_t size = plain.body.size();
            response.set_content_provider(size, kContentType,
                                          [body = std::move(plain.body)](size_t, size_t, httplib::DataSink& sink) {
                                              sink.write(body.data(), body.size() / 2);
                                              return false;
                                          });
            break;
        }
    }

    static thread_local Exchange* t_exchange;

    HttpHandler m_handler;
    std::function<std::size_t()> m_nextConnection;
    SSL_CTX* m_tls;
    Connections m_connections;
    std::promise<void> m_listening;
};

thread_local Engine::Exchange* Engine::t_exchange = nullptr;

}  // namespace

class HttpListener::Implementation {
public:
    Implementation(HttpHandler handler, std::function<std::size_t()> nextConnection, std::shared_ptr<SSL_CTX> tls)
        : m_tls(std::move(tls)), m_engine(std::move(handler), std::move(nextConnection), m_tls.get())
    {}
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    Implementation(Implementation&&) = delete;
    Implementation& operator=(Implementation&&) = delete;
    ~Implementation() { stop(); }

    void start(const std::string& address, int port)
    {
        const bool any = port == 0;
        m_port = any ? m_engine.bind_to_any_port(address) : port;
        if (m_port <= 0 || (!any && !m_engine.bind_to_port(address, port))) {
            throw std::runtime_error(Filled(Texts::tr("cannot listen on %1"), address + ":" + std::to_string(port)));
        }
        m_engine.widenBacklog();
        std::future<void> listening = m_engine.listening();
        m_thread = std::thread([this] { m_engine.listen_after_bind(); });
        listening.wait();
    }

    void stop()
    {
        if (m_thread.joinable()) {
            m_engine.stop();
            m_thread.join();
        }
    }

    [[nodiscard]] int port() const { return m_port; }

private:
    std::shared_ptr<SSL_CTX> m_tls;
    Engine m_engine;
    std::thread m_thread;
    int m_port = 0;
};

HttpListener::HttpListener(HttpHandler handler, std::function<std::size_t()> nextConnection,
                           std::shared_ptr<ssl_ctx_st> tls)
    : m_implementation(std::make_unique<Implementation>(std::move(handler), std::move(nextConnection), std::move(tls)))
{}

HttpListener::~HttpListener() = default;

void HttpListener::start(const std::string& address, int port)
{
    m_implementation->start(address, port);
}

void HttpListener::stop()
{
    m_implementation->stop();
}

int HttpListener::port() const
{
    return m_implementation->port();
}

}  // namespace emulator
