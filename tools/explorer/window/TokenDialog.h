#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace explorer {

/// Asks for the session token of a server.
class TokenDialog : public QDialog {
    Q_OBJECT

public:
    explicit TokenDialog(const QString& serverName, QWidget* pParent = nullptr);

    [[nodiscard]] QString Token() const;
    /// Whether to store it in the secret service of the desktop.
    [[nodiscard]] bool Keep() const;

private:
    QLineEdit* m_pToken;
    QCheckBox* m_pKeep;
};

}  // namespace explorer
