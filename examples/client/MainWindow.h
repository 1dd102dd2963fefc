#pragma once

#include "Session.h"

#include <APIModule.h>
#include <BRMS/BRMSCalls.h>

#include <QtWidgets>

/// Switches the language at run time; windows get a LanguageChange event.
void Speak(const QString& language);

enum class Access {
    Read,
    Write
};

/// The message about a failed call for the user; empty if none is needed.
QString FailureText(const APIModule::OutcomeBase& outcome, Access access);

/// A self-refreshing list, a setting to write, and a search with pages.
class MainWindow : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    explicit MainWindow(Session& session);

    /// Signs in with the entered server and token, and reads everything after the first successful call.
    void SignIn();
    /// Reads the parking lots again; shows a failure only in the status bar.
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
    /// Shows a failure, or clears the previous one.
    void Report(QLabel& label, const APIModule::OutcomeBase& outcome, Access access = Access::Read);

    Session& m_session;
    QTimer m_timer;
    APIModule::CallHandle m_refresh, m_search;
    APIModule::TimeSyncConfig m_settings;
    int m_page = 1, m_pages = 1;
};
