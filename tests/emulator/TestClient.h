#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

using Json = nlohmann::json;

/// The reply to a request.
struct Reply {
    bool arrived = false;  ///< false when the connection ended before the complete reply arrived
    int status = 0;
    std::string body;
    std::multimap<std::string, std::string> headers;

    /// The body as JSON; a discarded value if it is not JSON.
    [[nodiscard]] Json json() const { return Json::parse(body, nullptr, false); }
    [[nodiscard]] int code() const { return json().value("code", -1); }
    [[nodiscard]] std::string desc() const { return json().value("desc", ""); }
    [[nodiscard]] Json data() const { return json().value("data", Json()); }
};

/// An HTTP or HTTPS client that keeps one connection open. It sends targets unchanged, without encoding them.
class TestClient {
public:
    enum class Scheme {
        Http,
        Https
    };

    /// @param token sent with every request unless it is empty
    TestClient(Scheme scheme, int port, std::string token);
    ~TestClient();
    TestClient(const TestClient&) = delete;
    TestClient& operator=(const TestClient&) = delete;
    TestClient(TestClient&&) = delete;
    TestClient& operator=(TestClient&&) = delete;

    Reply get(const std::string& target) { return request("GET", target); }
    Reply put(const std::string& target, const Json& body) { return request("PUT", target, body.dump()); }
    Reply post(const std::string& target, const std::optional<Json>& body = std::nullopt)
    {
        return request("POST", target, body ? body->dump() : std::string());
    }
    Reply remove(const std::string& target) { return request("DELETE", target); }
    Reply request(const std::string& method, const std::string& target, const std::string& body = {});

    /// Aborts a request that is waiting in another thread.
    void abort();

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

/// A TCP connection over which a test sends any bytes.
class RawConnection {
public:
    /// Connects and sends the text.
    explicit RawConnection(int port, std::string_view text = {});
    ~RawConnection();
    RawConnection(const RawConnection&) = delete;
    RawConnection& operator=(const RawConnection&) = delete;
    RawConnection(RawConnection&&) = delete;
    RawConnection& operator=(RawConnection&&) = delete;

    /// @return false when the peer accepts no more data
    bool send(std::string_view text);
    void shutdownSending();
    /// Waits for the next bytes; returns an empty string when the peer has closed.
    std::string receive();
    /// Reads until the text arrives or the peer closes; with an empty text, until the peer closes.
    std::string receiveUntil(const std::string& text);
    [[nodiscard]] bool isReset() const { return m_isReset; }

private:
    int m_socket;
    bool m_isOpen = false;
    bool m_isReset = false;
};

/// Sends the text over a new TCP connection and returns everything received until the peer closes. With halfClose, the
/// client shuts down its sending side after the text.
std::string SendRaw(int port, const std::string& text, bool halfClose = false);
