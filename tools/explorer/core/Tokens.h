#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

namespace explorer {

/// The session tokens of the servers: in memory while the program runs, and between runs in the secret service of the
/// desktop if it has one. They are never written to a file.
class Tokens : public QObject {
    Q_OBJECT

public:
    /// Stores tokens between runs, where the desktop can. @p done receives the token, or nothing if none is stored, or
    /// whether the operation succeeded.
    class Vault {
    public:
        virtual ~Vault() = default;
        virtual void Read(const QString& serverId, std::function<void(std::optional<QString>)> done) = 0;
        virtual void Write(const QString& serverId, const QString& token, std::function<void(bool)> done) = 0;
        virtual void Remove(const QString& serverId) = 0;
    };

    /// @param vault must outlive the tokens; null stores nothing between runs
    explicit Tokens(Vault* vault, QObject* parent = nullptr);

    /// The token; nothing if it was not entered in this run and the vault has not returned it.
    [[nodiscard]] std::optional<QString> Find(const QString& serverId) const;

    /// Asks the vault, once for each server.
    void Fetch(const QString& serverId);

    /// @param keep store it between runs, too; Kept() reports whether that succeeded
    void Set(const QString& serverId, const QString& token, bool keep);
    void Forget(const QString& serverId);
    /// Forgets a token that the server did not accept, unless another one has replaced it.
    void Refuse(const QString& serverId, const QString& token);

Q_SIGNALS:
    void Changed();
    void Kept(const QString& serverId, bool worked);

private:
    Vault* const m_vault;
    QHash<QString, QString> m_tokens;
    QSet<QString> m_fetched;
};

/// The desktop's secret service.
class SecretService : public Tokens::Vault {
public:
    void Read(const QString& serverId, std::function<void(std::optional<QString>)> done) override;
    void Write(const QString& serverId, const QString& token, std::function<void(bool)> done) override;
    void Remove(const QString& serverId) override;
};

}  // namespace explorer
