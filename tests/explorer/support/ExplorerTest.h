#pragma once

#include <explorer/core/Session.h>
#include <explorer/window/MainWindow.h>
#include <explorer/window/Start.h>

#include <support/RawServer.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace explorer_test {

using explorer::CallOutcome;

/// The ways to run a call, and their names in those of tests.
constexpr explorer::Way kWays[] = {explorer::Way::WaitDialog, explorer::Way::EventLoop, explorer::Way::WithoutWaiting};
std::string WayName(const testing::TestParamInfo<explorer::Way>& row);

constexpr int kPatience = 20000;  // milliseconds until a test gives up

/// Waits until it holds, while the event loop runs.
bool Await(const std::function<bool()>& holds);

/// A secret service in memory.
class MemoryVault : public explorer::Tokens::Vault {
public:
    void Read(const QString& serverId, std::function<void(std::optional<QString>)> done) override;
    void Write(const QString& serverId, const QString& token, std::function<void(bool)> done) override;
    void Remove(const QString& serverId) override;

    QHash<QString, QString> tokens;
};

/// The answer of a server that succeeds with these data.
testing_support::RawAnswer Success(const QByteArray& data, int delayMilliseconds = 0);

/// The program with its settings in a folder of its own.
class ExplorerTest : public testing::Test {
protected:
    static constexpr const char* kToken = "t0ken-of-the-test-0123456789";

    ExplorerTest();
    ~ExplorerTest() override;

    /// Starts the program; a second time after Close(), with what the first has kept.
    void Start();
    void Close();

    [[nodiscard]] explorer::MainWindow& Window() const { return m_windows->Current(); }

    /// Waits until keys go to the window.
    [[nodiscard]] bool Activate() const;
    /// A key for what has the focus.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Makes a server the current one, with a token.
    void Use(int port, bool https = false);
    void UseEmulator();

    /// A widget of the window or of a dialog over it; the test fails without one.
    template <typename Widget>
    Widget& Find(const char* name) const
    {
        auto* const pFound = Window().findChild<Widget*>(QLatin1String(name));
        if (pFound == nullptr) {
            ADD_FAILURE() << "no widget " << name;
            throw std::runtime_error("no such widget");
        }
        return *pFound;
    }

    [[nodiscard]] QString TextOf(const char* label) const;

    void Choose(const char* call);
    /// Means all values of the form as they are, so that a write of them asks nothing.
    void MeanAll();
    void Use(explorer::Way way);
    void ClickRun();
    /// Waits until so many runs have ended since the start.
    [[nodiscard]] bool AwaitRuns(int count) const;
    /// Chooses a call, runs it with the values of the form and waits for its end.
    CallOutcome Run(const char* call);

    QTemporaryDir folder;
    MemoryVault vault;
    explorer::Tokens::Vault* usedVault = &vault;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<explorer::Session> session;
    std::vector<CallOutcome> outcomes;  ///< of all runs, in the order of their ends

private:
    std::unique_ptr<explorer::Windows> m_windows;
};

}  // namespace explorer_test
