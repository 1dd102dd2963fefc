#pragma once

#include "Session.h"

#include <APIModule.h>
#include <BRMS/BRMSCalls.h>

#include <QtWidgets>

/// Switches the language at any time; windows get a LanguageChange event.
void Speak(const QString& language);

enum class Access {
    Read,
    Write
};

/// What the user reads about a call that failed; empty when there is nothing to say.
QString FailureText(const APIModule::OutcomeBase& outcome, Access access);

/// A list that refreshes itself, a setting to write, and a search in pages.
class MainWindow : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    explicit MainWindow(Session& session);

    /// Signs in with what was typed, and reads everything once the server has accepted a call.
    void SignIn();
    /// Reads the parking lots again, quietly: a failure shows in the status bar alone.
    void Refresh();

    struct {
        QLabel message, refreshed, intervalLabel, pageLabel;
        QLineEdit server, token, keyword;
        QPushButton signIn, save, previous, next;
        QTreeWidget lots;
        QListWidget plans;
        QSpinBox interval;
        QMenu languages;
    } ui;

protected:
    void changeEvent(QEvent* event) override;

private:
    void Translate();
    void Save();
    void ShowPage(int page);
    /// Shows a failure, or takes an earlier one away.
    void Report(QLabel& label, const APIModule::OutcomeBase& outcome, Access access = Access::Read);

    Session& m_session;
    QTimer m_timer;
    APIModule::CallHandle m_refresh, m_search;
    APIModule::TimeSyncConfig m_settings;
    int m_page = 1, m_pages = 1;
};
