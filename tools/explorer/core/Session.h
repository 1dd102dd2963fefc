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

/// The host of the library without its windows: servers and tokens, the emulator, runs, and what is told of them. It
/// lives as long as the program, while windows come and go.
class Session : public QObject {
    Q_OBJECT

public:
    /// @param settings and @p vault (null for none) must outlive the session
    Session(QSettings& settings, Tokens::Vault* vault, const QString& emulatorProgram, QObject* parent = nullptr);
    /// Ends the use of the library.
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
    QHash<QString, QJsonObject> drafts;  ///< arguments of calls that were left without a run, by name

    /// The current server's token, nothing while it is not known.
    [[nodiscard]] std::optional<QString> CurrentToken() const;

    /// Keeps them, for the next start of the emulator and of the program.
    void SetEmulatorOptions(const EmulatorOptions& options);

    /// Whether calls can be made: always but for an emulator that does not run.
    [[nodiscard]] bool IsReady() const;

private:
    void UseCurrentServer();
    void TrustCurrentServer();
    void ReleaseMemory(const CallOutcome& outcome);

    catalogue::OneServer m_users;
    QByteArray m_pin;  // that the library has
};

}  // namespace explorer
