#pragma once

#include <nlohmann/json.hpp>

#include <QWidget>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace explorer {

/// The name of a kind of fault for the user; that of the control path for an unknown kind.
QString FaultTitle(const QString& kind);

/// Edits a fault: its kind, the calls that it affects, when and how often.
class FaultForm : public QWidget {
    Q_OBJECT

public:
    explicit FaultForm(QWidget* pParent = nullptr);

    /// The fault in the format of the control path.
    [[nodiscard]] nlohmann::json Fault() const;

private:
    struct Field {
        const char* key;
        QLabel* pLabel;
        QWidget* pEditor;
    };

    void AddRow(const QString& leftText, QWidget* pLeft, const QString& rightText, QWidget* pRight);
    QLabel* AddField(const QString& text, QWidget* pEditor, int row, int column, int columns = 1);
    void AddDetail(const char* key, const QString& text, QWidget* pEditor);
    void ShowDetails();

    QGridLayout* m_pLayout;
    QComboBox* m_pKind;
    QComboBox* m_pCall;
    QComboBox* m_pMethod;
    QLineEdit* m_pPath;
    QSpinBox* m_pFirst;
    QSpinBox* m_pTimes;
    QSpinBox* m_pDelay;
    QList<Field> m_details;
};

}  // namespace explorer
