#pragma once

#include "EmulatorProcess.h"
#include "Feed.h"
#include "History.h"
#include "Identifiers.h"
#include "Runner.h"
#include "Servers.h"
#include "Tokens.h"

#include <catalogue/OneServer.h>

#include <QObject>

#include <optional>

class QSettings;

namespace explorer {

/// The host of the library without its windows: servers, tokens, emulator, runs, notifications and log. It lives as
/// long as the program, while windows come and go.
class Session : public QObject {
    Q_OBJECT

public:
    /// @param settings and @p vault (null for none) must outlive the session
    Session(QSettings& settings, Tokens::Vault* vault, const QString& emulatorProgram, QObject* parent = nullptr);
    /// Detaches from the library.
    ~Session() override;

    QSettings& settings;
    Servers servers;
    Tokens tokens;
    EmulatorProcess emulator;
    Runner runner;
    History history;
    Identifiers identifiers;
    LogFeed log;
    NotificationFeed notifications;
    QHash<QString, QJsonObject> drafts;  ///< arguments that were entered but not run, by call

    /// The token of the current server; nothing while it is unknown.
    [[nodiscard]] std::optional<QString> CurrentToken() const;

    /// Stores the options for the next start of emulator and program.
    void SetEmulatorOptions(const EmulatorOptions& options);

    /// Whether calls can be made: always, except to a stopped emulator.
    [[nodiscard]] bool IsReady() const;

private:
    void UseCurrentServer();
    void TrustCurrentServer();
    void ReleaseMemory(const CallOutcome& outcome);

    catalogue::OneServer m_users;
    QByteArray m_pin;  // that the library uses
};

}  // namespace explorer
