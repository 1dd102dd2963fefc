#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

struct ssl_ctx_st;

namespace emulator {

struct HttpRequest {
    std::string method;
    std::string target;  ///< as it came, query included
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    std::size_t connection = 0;  ///< number of the TCP connection, from 1
};

struct HttpResponse {
    enum class Ending {
        Complete,
        CloseBefore,  ///< the connection is closed instead of an answer
        CloseMiddle   ///< half of the body is sent, then the connection is closed
    };

    int status = 200;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    Ending ending = Ending::Complete;
};

/// The client's side of the connection that a request came over.
class Peer {
public:
    virtual ~Peer() = default;

    /// Waits until the client is gone, the listener stops or the time is over.
    /// @return false when the time was over first.
    virtual bool waitGone(std::chrono::milliseconds time) = 0;
    /// The same without an end.
    virtual void waitGone() = 0;
};

using HttpHandler = std::function<HttpResponse(const HttpRequest&, Peer&)>;

/// A certificate signed by itself, made anew and never written to disk.
std::shared_ptr<ssl_ctx_st> MakeServerTls();

/// Serves HTTP, or HTTPS when it is given a TLS context, on one port; a thread for each connection, which is kept
/// alive.
class HttpListener {
public:
    /// @param nextConnection gives each accepted connection its number.
    HttpListener(HttpHandler handler, std::function<std::size_t()> nextConnection,
                 std::shared_ptr<ssl_ctx_st> tls = nullptr);
    ~HttpListener();
    HttpListener(const HttpListener&) = delete;
    HttpListener& operator=(const HttpListener&) = delete;
    HttpListener(HttpListener&&) = delete;
    HttpListener& operator=(HttpListener&&) = delete;

    /// @param port 0 for any free one
    /// @throws std::runtime_error when the address cannot be bound.
    void start(const std::string& address, int port);

    /// Ends all connections, also those whose request still waits, and returns when their threads are done.
    void stop();

    [[nodiscard]] int port() const;

private:
    class Implementation;

    std::unique_ptr<Implementation> m_implementation;
};

}  // namespace emulator
