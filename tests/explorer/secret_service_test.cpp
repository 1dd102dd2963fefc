// Runs with the secret service of a private desktop session. servers_test covers the program without one.
#include "support/ExplorerTest.h"

#include <QDirIterator>
#include <QSignalSpy>
#include <QStandardPaths>

namespace {

using namespace explorer_test;

constexpr const char* kSecret = "s3cret-t0ken-of-the-night";

class SecretServiceTest : public ExplorerTest {
protected:
    SecretServiceTest()
    {
        Close();
        usedVault = &m_service;
        Start();
    }

    std::optional<QString> Read(const QString& serverId) { return ReadFrom(m_service, serverId); }

private:
    explorer::SecretService m_service;
};

TEST_F(SecretServiceTest, KeepsATokenAcrossRestarts)
{
    Use(1);
    const QSignalSpy kept(&session->tokens, &explorer::Tokens::Kept);
    const QString id = session->servers.Current().id;
    session->tokens.Set(id, QLatin1String(kSecret), true);
    ASSERT_TRUE(Await([&kept] { return kept.count() == 1; }));
    ASSERT_TRUE(kept.first().at(1).toBool());

    Close();
    Start();
    EXPECT_EQ(session->servers.Current().id, id);
    ASSERT_TRUE(Await([this] { return session->CurrentToken().has_value(); }));
    EXPECT_EQ(*session->CurrentToken(), QLatin1String(kSecret));

    session->tokens.Forget(id);
    EXPECT_TRUE(Await([this, &id] { return !Read(id); }));
}

TEST_F(SecretServiceTest, WritesNoTokenInPlainText)
{
    const QSignalSpy kept(&session->tokens, &explorer::Tokens::Kept);
    session->tokens.Set(QStringLiteral("a-server"), QLatin1String(kSecret), true);
    ASSERT_TRUE(Await([&kept] { return kept.count() == 1; }));
    int files = 0;
    QDirIterator all(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), QDir::Files,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_FALSE(file.readAll().contains(kSecret)) << file.fileName().toStdString();
        ++files;
    }
    EXPECT_GT(files, 0);  // the secret service writes at least one
}

}  // namespace
