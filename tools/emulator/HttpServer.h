#pragma once

#include "HttpMessage.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>

struct ssl_ctx_st;

namespace emulator {

/// What a handler waits for before it answers.
struct HttpWait {
    std::optional<std::chrono::milliseconds> time;  ///< none: as long as the client stays
    /// Called once, with whether the client went, or the server stopped, before the time was over.
    std::function<HttpResponse(bool isGone)> then;
};

using HttpReply = std::variant<HttpResponse, HttpWait>;

/// Answers a request or says what it waits for. Called on one of the server's few threads, which it must not hold up.
/// The request stays until it is answered.
using HttpHandler = std::function<HttpReply(const HttpRequest&)>;

/// A certificate signed by itself, made anew and never written to disk.
std::shared_ptr<ssl_ctx_st> MakeServerTls();

/// "127.0.0.1:80", "[::1]:80"
std::string ShownAddress(const std::string& address, int port);

/// Serves HTTP and HTTPS on any number of ports; a few threads do it for however many connections, which are kept
/// alive.
class HttpServer {
public:
    /// @param readTimeout how long a connection may wait for the first byte of a request, and from there for the last
    HttpServer(HttpHandler handler, std::chrono::milliseconds readTimeout);
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;
    HttpServer(HttpServer&&) = delete;
    HttpServer& operator=(HttpServer&&) = delete;

    /// Listens from here on, until the server stops.
    /// @param port 0 for any free one
    /// @param tls null for plain HTTP
    /// @return the port
    /// @throws std::runtime_error that says why not.
    int listen(const std::string& address, int port, const std::shared_ptr<ssl_ctx_st>& tls = nullptr);

    /// Ends all connections, also those whose request still waits, and returns when all is at rest.
    void stop();

    /// @return how many connections were accepted so far
    [[nodiscard]] std::size_t connections() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
