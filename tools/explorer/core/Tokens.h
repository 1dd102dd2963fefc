#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

namespace explorer {

/// The session tokens of the servers: in memory while the program runs, and between its runs in the desktop's secret
/// service where there is one. They are never written to a file.
class Tokens : public QObject {
    Q_OBJECT

public:
    /// Where tokens are kept between runs; does nothing where there is no such place. @p done is told the token, or
    /// nothing when none was kept, or whether it worked.
    class Vault {
    public:
        virtual ~Vault() = default;
        virtual void Read(const QString& serverId, std::function<void(std::optional<QString>)> done) = 0;
        virtual void Write(const QString& serverId, const QString& token, std::function<void(bool)> done) = 0;
        virtual void Remove(const QString& serverId) = 0;
    };

    /// @param vault must outlive the tokens; null keeps nothing between runs
    explicit Tokens(Vault* vault, QObject* parent = nullptr);

    /// Nothing while it is not known: it was not given in this run and has not come from the vault.
    [[nodiscard]] std::optional<QString> Find(const QString& serverId) const;

    /// Asks the vault, once for each server.
    void Fetch(const QString& serverId);

    /// @param keep between the runs of the program, too; Kept() tells whether that worked
    void Set(const QString& serverId, const QString& token, bool keep);
    void Forget(const QString& serverId);
    /// The server does not accept the token: it is not known any more, unless another one has taken its place.
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
