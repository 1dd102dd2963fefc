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

/// A wait before the reply.
struct HttpWait {
    std::optional<std::chrono::milliseconds> time;  ///< not set: until the client disconnects
    /// Called once when the wait ends. @p isGone: the client disconnected or the server stopped before the time was up.
    std::function<HttpResponse(bool isGone)> then;
};

using HttpReply = std::variant<HttpResponse, HttpWait>;

/// Replies to a request, or asks for a wait before the reply. Runs on one of the server's few threads and must not
/// block. The request remains valid until the reply.
using HttpHandler = std::function<HttpReply(const HttpRequest&)>;

/// Creates a self-signed certificate, which is never written to disk.
std::shared_ptr<ssl_ctx_st> MakeServerTls();

/// Formats an address as "127.0.0.1:80" or "[::1]:80".
std::string ShownAddress(const std::string& address, int port);

/// Serves HTTP and HTTPS on any number of ports. A few threads serve all connections, which are kept alive between
/// requests.
class HttpServer {
public:
    /// @param readTimeout the time-out for the first byte of a request, and again from there to the last
    HttpServer(HttpHandler handler, std::chrono::milliseconds readTimeout);
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;
    HttpServer(HttpServer&&) = delete;
    HttpServer& operator=(HttpServer&&) = delete;

    /// Starts listening on a port, until the server stops.
    /// @param port 0 for any free port
    /// @param tls null for plain HTTP
    /// @return the port
    /// @throws std::runtime_error with the reason when it cannot listen.
    int listen(const std::string& address, int port, const std::shared_ptr<ssl_ctx_st>& tls = nullptr);

    /// Closes all connections, including those with a waiting request, and returns when all threads have ended.
    void stop();

    /// @return the number of connections accepted so far
    [[nodiscard]] std::size_t connections() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
