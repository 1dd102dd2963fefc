#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

using Json = nlohmann::json;

/// What came back for a request.
struct Answer {
    bool arrived = false;  ///< false when the connection ended before the whole answer was there
    int status = 0;
    std::string body;
    std::multimap<std::string, std::string> headers;

    /// The body as JSON; discarded when it is none.
    [[nodiscard]] Json json() const { return Json::parse(body, nullptr, false); }
    [[nodiscard]] int code() const { return json().value("code", -1); }
    [[nodiscard]] std::string desc() const { return json().value("desc", ""); }
    [[nodiscard]] Json data() const { return json().value("data", Json()); }
};

/// An HTTP or HTTPS client on one connection, kept alive. Targets go out as they are, nothing is encoded.
class TestClient {
public:
    enum class Scheme {
        Http,
        Https
    };

    /// @param token an empty text sends no token
    TestClient(Scheme scheme, int port, std::string token);
    ~TestClient();
    TestClient(const TestClient&) = delete;
    TestClient& operator=(const TestClient&) = delete;
    TestClient(TestClient&&) = delete;
    TestClient& operator=(TestClient&&) = delete;

    Answer get(const std::string& target) { return request("GET", target); }
    Answer put(const std::string& target, const Json& body) { return request("PUT", target, body.dump()); }
    Answer post(const std::string& target, const std::optional<Json>& body = std::nullopt)
    {
        return request("POST", target, body ? body->dump() : std::string());
    }
    Answer remove(const std::string& target) { return request("DELETE", target); }
    Answer request(const std::string& method, const std::string& target, const std::string& body = {});

    /// Ends a request that waits in another thread.
    void abort();

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

/// A TCP connection over which a test sends what it likes.
class RawConnection {
public:
    explicit RawConnection(int port);
    ~RawConnection();
    RawConnection(const RawConnection&) = delete;
    RawConnection& operator=(const RawConnection&) = delete;
    RawConnection(RawConnection&&) = delete;
    RawConnection& operator=(RawConnection&&) = delete;

    /// @return false when the peer takes no more
    bool send(std::string_view text);
    void endOwnSide();
    /// Waits for the next bytes; empty when the peer has closed.
    std::string receive();
    /// Reads until the text was there or the peer closes; without a text, until the peer closes.
    std::string receiveUntil(const std::string& text);
    [[nodiscard]] bool isReset() const { return m_isReset; }

private:
    int m_socket;
    bool m_isOpen = false;
    bool m_isReset = false;
};

/// Sends the text over a TCP connection of its own and returns all that comes until the peer closes, after which the
/// client asks it to by closing its side where closeOwnSide is set.
std::string SendRaw(int port, const std::string& text, bool closeOwnSide = false);
