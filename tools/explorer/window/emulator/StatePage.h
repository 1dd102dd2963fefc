#pragma once

#include <nlohmann/json.hpp>

#include <QWidget>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace explorer {

struct ControlReply;
class EmulatorControl;

/// Edits the state of the emulator as JSON, as a whole or in part.
class StatePage : public QWidget {
    Q_OBJECT

public:
    /// @param control must outlive the page
    explicit StatePage(EmulatorControl& control, QWidget* pParent = nullptr);

    /// Loads the state if it is not loaded.
    void LoadOnce();
    /// Clears the state of an emulator that has ended.
    void Clear();

private:
    void Load();
    void ShowParts();
    void ShowPart();
    void Apply();
    void Reset();
    void Applied(const ControlReply& reply, const QString& success);
    void ShowProblem(const QString& text);
    void ShowMessage(const QString& text);

    EmulatorControl& m_control;
    nlohmann::json m_state;
    bool m_bLoaded = false;  // or loading
    QComboBox* m_pPart;
    QPlainTextEdit* m_pText;
    QPushButton* m_pApply;
    QLabel* m_pProblem;
    QLabel* m_pMessage;
};

}  // namespace explorer
