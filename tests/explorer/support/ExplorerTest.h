#pragma once

#include "ModelRows.h"

#include <explorer/core/Session.h>
#include <explorer/views/ArgumentForm.h>
#include <explorer/window/MainWindow.h>
#include <explorer/window/Start.h>

#include <support/RawServer.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <memory>
#include <vector>

namespace explorer_test {

using explorer::CallOutcome;

/// All wait modes. WaitModeName() returns the part of a test name for one of them.
constexpr explorer::WaitMode kWaitModes[] = {explorer::WaitMode::WaitDialog, explorer::WaitMode::EventLoop,
                                             explorer::WaitMode::WithoutWaiting};
std::string WaitModeName(const testing::TestParamInfo<explorer::WaitMode>& row);

constexpr int kPatience = 20000;  // milliseconds until a test gives up

/// Runs the event loop until holds() returns true. Returns false after kPatience.
bool Await(const std::function<bool()>& holds);

/// A secret service in memory.
class MemoryVault : public explorer::Tokens::Vault {
public:
    void Read(const QString& serverId, std::function<void(std::optional<QString>)> done) override;
    void Write(const QString& serverId, const QString& token, std::function<void(bool)> done) override;
    void Remove(const QString& serverId) override;

    QHash<QString, QString> tokens;
};

/// Waits for the answer of a vault.
std::optional<QString> ReadFrom(explorer::Tokens::Vault& vault, const QString& serverId);

/// A reply that reports success and contains this data.
testing_support::RawReply Success(const QByteArray& data, int delayMilliseconds = 0);

/// Runs the program with its settings in a temporary folder.
class ExplorerTest : public testing::Test {
protected:
    static constexpr const char* kToken = "t0ken-of-the-test-0123456789";

    ExplorerTest();
    ~ExplorerTest() override;

    /// Starts the program. After Close(), starts it again with the settings that it has stored.
    void Start();
    void Close();

    [[nodiscard]] explorer::MainWindow& Window() const { return m_windows->Current(); }
    [[nodiscard]] explorer::ArgumentForm& Form() const { return *Window().findChild<explorer::ArgumentForm*>(); }

    /// Calls happens() once, as soon as the event loop runs while holds() returns true. The timer is active until then.
    [[nodiscard]] static std::unique_ptr<QTimer> When(std::function<bool()> holds, std::function<void()> happens);

    /// Activates the window and waits until it receives key events.
    [[nodiscard]] bool Activate() const;
    /// Sends a key to the focused widget, or to the window if no widget has the focus.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Adds a server on loopback with a token and makes it the current one.
    void Use(int port, bool https = false);
    void UseEmulator();
    /// Starts a server that sends this reply to every request, and makes it the current one.
    testing_support::RawServer& Serve(const testing_support::RawReply& reply);

    /// Finds a widget in the window or in one of its dialogs. The test fails if there is none.
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
    /// Marks all values of the form as known, so that a write sends them without asking.
    void MarkAllKnown();
    void Use(explorer::WaitMode waitMode);
    void Click(const char* button) const;
    void ClickRun();
    /// The call without arguments, for the current server.
    [[nodiscard]] explorer::RunOrder OrderOf(const char* call) const;
    /// Waits until this many runs have ended since the test began.
    [[nodiscard]] bool AwaitRuns(int count) const;
    /// Chooses a call, runs it with the values of the form and returns its outcome.
    CallOutcome Run(const char* call);

    QTemporaryDir folder;
    MemoryVault vault;
    explorer::Tokens::Vault* usedVault = &vault;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<explorer::Session> session;
    std::vector<CallOutcome> outcomes;  ///< of all runs, in the order in which they ended

private:
    std::list<testing_support::RawServer> m_servers;
    std::unique_ptr<explorer::Windows> m_windows;
};

}  // namespace explorer_test
