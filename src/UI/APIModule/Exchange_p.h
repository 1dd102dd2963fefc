#pragma once

#include "Call.h"
#include "Log_p.h"
#include "ReplyInfo_p.h"

#include <QNetworkRequest>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <memory>
#include <vector>

namespace APIModule {

namespace http {
class Reply;
}

// The attributes that carry a request from its description to its execution.
inline constexpr auto kMethodAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 100);
inline constexpr auto kBodyAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 101);
inline constexpr auto kTimeoutAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 102);
inline constexpr auto kExcludeUserInputAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 103);

/// One request on its way: it begins, and ends when its reply has been taken. Whoever began it may wait for that in an
/// event loop or be called, limits the time, and may give it up at any moment by deleting or closing it.
class Exchange final : public QObject {
    Q_OBJECT

public:
    /// @param pFunction where the log lines say that they come from
    Exchange(const QNetworkRequest& request, const char* pFunction);
    ~Exchange() override;

    /// Reads a large reply, and its data by @p read, on a thread of Qt's pool. @p read is released there.
    void ReadInBackground(const detail::ReadData& read);

    /// An observer that is null is ignored.
    void AddObserver(const ExchangeObserver& observer);

    void Begin(http::Reply* pReply);

    /// Ends the exchange without a reply unless it has ended, and closes its connection.
    void Close(CallEnd eEnd);

    /// Whether the reply has been taken, and what it brought.
    bool HasReply() const { return m_bTaken; }
    ReplyInfo& Reply() { return m_reply; }

    const QNetworkRequest& Request() const { return m_request; }

    /// Writes the log line of an exchange that ended without a reply.
    void LogTimeOut() const;

signals:
    /// The answer has come: the time-out counts no longer.
    void Answered();
    /// The reply has been taken, or will never come.
    void Ended();

private:
    struct Reading;

    void OnFinished();
    void OnRead();
    void Succeed();
    void Report(const QString& error);

    const QNetworkRequest m_request;
    const char* const m_pFunction;
    QPointer<http::Reply> m_pReply;
    ReplyInfo m_reply;
    bool m_bTaken = false;
    bool m_bClosed = false;
    bool m_bBackground = false;
    detail::ReadData m_read;
    std::shared_ptr<Reading> m_pReading;  ///< shared with the thread that reads
    detail::LogCapture::Lines m_lines;    ///< of the thread that read
    std::vector<ExchangeObserver> m_observers;
    std::unique_ptr<ObservedExchange> m_pObserved;  ///< until it is reported; null without observers
    std::chrono::steady_clock::time_point m_begun;
};

/// The URL of a request as log lines show it.
QString MaskedUrl(const QNetworkRequest& request);

/// The header lines in the head of a request.
ObservedExchange::Headers MaskedHeaders(const QByteArray& head);

/// Runs work on a thread of Qt's global pool, or here when there is no application any more.
void RunInPool(const std::function<void()>& work);

}  // namespace APIModule
