#include "Tokens.h"

#include <QPointer>

#if QT_VERSION_MAJOR == 5
#include <qt5keychain/keychain.h>
#else
#include <qt6keychain/keychain.h>
#endif

namespace explorer {
namespace {

/// Jobs delete themselves when they have finished.
template <typename Job>
Job* NewJob(const QString& serverId)
{
    auto* const job = new Job(QStringLiteral("apimodule-explorer"));
    job->setInsecureFallback(false);
    job->setKey(serverId);
    return job;
}

}  // namespace

Tokens::Tokens(Vault* vault, QObject* parent) : QObject(parent), m_vault(vault) {}

std::optional<QString> Tokens::Find(const QString& serverId) const
{
    const auto found = m_tokens.constFind(serverId);
    return found == m_tokens.cend() ? std::nullopt : std::optional<QString>(*found);
}

void Tokens::Fetch(const QString& serverId)
{
    if (m_vault == nullptr || m_tokens.contains(serverId) || m_fetched.contains(serverId)) {
        return;
    }
    m_fetched.insert(serverId);
    m_vault->Read(serverId, [self = QPointer<Tokens>(this), serverId](const std::optional<QString>& token) {
        if (self && token && !self->m_tokens.contains(serverId)) {
            self->m_tokens.insert(serverId, *token);
            emit self->Changed();
        }
    });
}

void Tokens::Set(const QString& serverId, const QString& token, bool keep)
{
    m_tokens.insert(serverId, token);
    emit Changed();
    if (!keep || m_vault == nullptr) {
        return;
    }
    m_vault->Write(serverId, token, [self = QPointer<Tokens>(this), serverId](bool worked) {
        if (self) {
            emit self->Kept(serverId, worked);
        }
    });
}

void Tokens::Forget(const QString& serverId)
{
    m_tokens.remove(serverId);
    emit Changed();
    if (m_vault != nullptr) {
        m_vault->Remove(serverId);
    }
}

void Tokens::Refuse(const QString& serverId, const QString& token)
{
    m_fetched.insert(serverId);  // the vault may hold the refused one
    if (Find(serverId) == token) {
        m_tokens.remove(serverId);
        emit Changed();
    }
}

void SecretService::Read(const QString& serverId, std::function<void(std::optional<QString>)> done)
{
    auto* const job = NewJob<QKeychain::ReadPasswordJob>(serverId);
    QObject::connect(job, &QKeychain::Job::finished, job, [job, done = std::move(done)] {
        done(job->error() == QKeychain::NoError ? std::optional<QString>(job->textData()) : std::nullopt);
    });
    job->start();
}

void SecretService::Write(const QString& serverId, const QString& token, std::function<void(bool)> done)
{
    auto* const job = NewJob<QKeychain::WritePasswordJob>(serverId);
    job->setTextData(token);
    QObject::connect(job, &QKeychain::Job::finished, job,
                     [job, done = std::move(done)] { done(job->error() == QKeychain::NoError); });
    job->start();
}

void SecretService::Remove(const QString& serverId)
{
    NewJob<QKeychain::DeletePasswordJob>(serverId)->start();
}

}  // namespace explorer
