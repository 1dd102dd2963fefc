#pragma once

#include "MainWindow.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

namespace explorer {

class Session;

/// Sets names and attributes of the application. Call it before its object is created.
void PrepareApplication();

/// Shows the window of the program in the stored appearance and language. A change of language requires a new window.
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
    std::vector<QPointer<MainWindow>> m_left;  // deleted by the event loop
};

}  // namespace explorer
