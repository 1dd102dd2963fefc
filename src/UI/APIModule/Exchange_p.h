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

// The attributes that pass values from the description of a request to its execution.
inline constexpr auto kMethodAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 100);
inline constexpr auto kBodyAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 101);
inline constexpr auto kTimeoutAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 102);
inline constexpr auto kExcludeUserInputAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 103);

/// One request in flight, from sending until its reply was taken.
///
/// The owner creates it, connects to its end, or waits for it in an event loop, and limits its time. It can be
/// abandoned at any moment by closing or deleting it. An exchange is not reused.
class Exchange final : public QObject {
    Q_OBJECT

public:
    /// @param pFunction the function that log lines name
    Exchange(const QNetworkRequest& request, const char* pFunction);
    ~Exchange() override;

    /// Parses a large reply, and runs @p read on its data, on a thread of Qt's pool. @p read is destroyed there.
    void ReadInBackground(const detail::ReadData& read);

    /// Adds an observer; null is ignored.
    void AddObserver(const ExchangeObserver& observer);

    void Begin(http::Reply* pReply);

    /// Closes the connection and ends the exchange without a reply, unless it has ended already.
    void Close(CallEnd eEnd);

    /// Whether the reply was taken, and its content.
    bool HasReply() const { return m_bTaken; }
    ReplyInfo& Reply() { return m_reply; }

    const QNetworkRequest& Request() const { return m_request; }

    /// Writes the log line of an exchange that ended without a reply.
    void LogTimeOut() const;

signals:
    /// The reply has arrived; the time-out no longer applies.
    void ReplyArrived();
    /// The reply was taken, or will never arrive.
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
    std::unique_ptr<ObservedExchange> m_pObserved;  ///< reset once it is reported; null without observers
    std::chrono::steady_clock::time_point m_begun;
};

/// The URL of a request as in log lines.
QString MaskedUrl(const QNetworkRequest& request);

/// The header lines of a request head.
ObservedExchange::Headers MaskedHeaders(const QByteArray& head);

/// Runs work on a thread of Qt's global pool, or on this thread if there is no application object.
void RunInPool(const std::function<void()>& work);

}  // namespace APIModule
