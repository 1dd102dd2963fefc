#pragma once

#include "MainWindow.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

namespace explorer {

class Session;

/// Names and attributes of the application, before its object is made.
void PrepareApplication();

/// The program's window, in the appearance and language that are stored. Another language takes a new window.
class Windows : public QObject {
    Q_OBJECT

public:
    /// @param session must outlive the windows
    explicit Windows(Session& session);
    ~Windows() override;

    [[nodiscard]] MainWindow& Current() const { return *m_window; }

private:
    void Open();
    void ChangeLanguage(const QString& language);

    Session& m_session;
    std::unique_ptr<MainWindow> m_window;
    std::vector<QPointer<MainWindow>> m_left;  // until the event loop deletes them
};

}  // namespace explorer
