#include "Clients.h"

#include "../Bench.h"

#include <curl/curl.h>
#include <httplib.h>

#include <array>
#include <map>
#include <string>

namespace bench {
namespace {

// The headers of a call, as name and value.
constexpr std::array<std::array<const char*, 2>, 4> kHeaders = {{{"Content-Type", "application/json;charset=UTF-8"},
                                                                 {"Accept-Language", "en"},
                                                                 {"Time-Zone", "Europe/Berlin"},
                                                                 {"X-Subject-Token", "token-of-the-session"}}};

std::string Origin(const Exchange& exchange)
{
    return (exchange.bHttps ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(exchange.nPort);
}

class Curl : public Client {
public:
    Curl()
    {
        for (const auto& header : kHeaders) {
            m_pHeaders = curl_slist_append(m_pHeaders, (std::string(header[0]) + ": " + header[1]).c_str());
        }
        curl_easy_setopt(m_pCurl, CURLOPT_HTTPHEADER, m_pHeaders);
        curl_easy_setopt(m_pCurl, CURLOPT_WRITEFUNCTION, &Curl::Take);
        curl_easy_setopt(m_pCurl, CURLOPT_SSL_VERIFYPEER, 0L);
        curl_easy_setopt(m_pCurl, CURLOPT_SSL_VERIFYHOST, 0L);
    }
    ~Curl() override
    {
        curl_easy_cleanup(m_pCurl);
        curl_slist_free_all(m_pHeaders);
    }
    Curl(const Curl&) = delete;
    Curl& operator=(const Curl&) = delete;

    Reply Run(const Exchange& exchange) override
    {
        Reply reply;
        const bool bPost = exchange.eMethod == APIModule::Method_Post;
        curl_easy_setopt(m_pCurl, CURLOPT_URL, (Origin(exchange) + exchange.path.toStdString()).c_str());
        curl_easy_setopt(m_pCurl, bPost ? CURLOPT_POST : CURLOPT_HTTPGET, 1L);
        if (bPost) {
            curl_easy_setopt(m_pCurl, CURLOPT_POSTFIELDSIZE, long(exchange.body.size()));
            curl_easy_setopt(m_pCurl, CURLOPT_POSTFIELDS, exchange.body.constData());
        }
        curl_easy_setopt(m_pCurl, CURLOPT_WRITEDATA, &reply.text);
        Require(curl_easy_perform(m_pCurl) == CURLE_OK, "a call of libcurl succeeds");
        return reply;
    }

private:
    static std::size_t Take(const char* pData, std::size_t nSize, std::size_t nCount, void* pText)
    {
        static_cast<QByteArray*>(pText)->append(pData, int(nSize * nCount));
        return nSize * nCount;
    }

    CURL* const m_pCurl = curl_easy_init();
    curl_slist* m_pHeaders = nullptr;
};

class Httplib : public Client {
public:
    Reply Run(const Exchange& exchange) override
    {
        Reply reply;
        httplib::Request request;
        request.method = exchange.eMethod == APIModule::Method_Post ? "POST" : "GET";
        request.path = exchange.path.toStdString();
        for (const auto& header : kHeaders) {
            request.headers.emplace(header[0], header[1]);
        }
        request.body = exchange.body.toStdString();
        request.content_receiver = [&](const char* pData, std::size_t nSize, uint64_t /*nOffset*/, uint64_t /*nAll*/) {
            reply.text.append(pData, int(nSize));
            return true;
        };
        Require(bool(To(exchange).send(request)), "a call of cpp-httplib succeeds");
        return reply;
    }

private:
    httplib::Client& To(const Exchange& exchange)
    {
        std::unique_ptr<httplib::Client>& pClient = m_clients[exchange.nPort];
        if (!pClient) {
            pClient = std::make_unique<httplib::Client>(Origin(exchange));
            pClient->set_keep_alive(true);
            pClient->set_tcp_nodelay(true);
            pClient->enable_server_certificate_verification(false);
        }
        return *pClient;
    }

    std::map<int, std::unique_ptr<httplib::Client>> m_clients;
};

}  // namespace

std::unique_ptr<Client> MakeCurl()
{
    return std::make_unique<Curl>();
}

std::unique_ptr<Client> MakeHttplib()
{
    return std::make_unique<Httplib>();
}

}  // namespace bench
