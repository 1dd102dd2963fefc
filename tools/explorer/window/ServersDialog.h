#pragma once

#include "../core/Servers.h"

#include <QDialog>
#include <QHash>
#include <QPointer>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace explorer {

class Tokens;

/// Edits the named servers and their tokens. Changes take effect when the dialog is accepted.
class ServersDialog : public QDialog {
    Q_OBJECT

public:
    ServersDialog(Servers& servers, Tokens& tokens, QWidget* pParent = nullptr);

    void accept() override;

private:
    [[nodiscard]] QWidget* MakeList();
    [[nodiscard]] QWidget* MakeForm();
    [[nodiscard]] QWidget* MakeCertificate();
    void Add();
    void Remove();
    void ShowServer(int index);
    void TakeUrl(const QString& text);
    void TakeOver();
    void LookAtCertificate();
    void ForgetPresented();
    void ShowCertificate();
    void Pin(const QByteArray& digest);
    void Check();

    Servers& m_servers;
    Tokens& m_tokens;
    QVector<Server> m_edited;
    QHash<QString, QString> m_newTokens;
    int m_shown = -1;
    QPointer<QObject> m_pLook;  // retrieves the certificate of the selected server
    QByteArray m_presented;     // digest of that certificate
    QString m_whyNotPresented;
    QListWidget* m_pList;
    QToolButton* m_pRemove;
    QLineEdit* m_pName;
    QComboBox* m_pScheme;
    QLineEdit* m_pHost;
    QSpinBox* m_pPort;
    QLineEdit* m_pToken;
    QComboBox* m_pLanguage;
    QLabel* m_pTrusted;
    QLabel* m_pPresented;
    QLabel* m_pChanged;
    QPushButton* m_pLookAt;
    QPushButton* m_pTrust;
    QPushButton* m_pTrustAny;
    QLabel* m_pProblem;
    QDialogButtonBox* m_pButtons;
};

}  // namespace explorer
