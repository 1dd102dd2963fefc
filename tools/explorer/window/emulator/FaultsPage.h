#pragma once

#include <nlohmann/json.hpp>

#include <QWidget>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace explorer {

class EmulatorControl;
class FaultForm;

/// The faults of the emulator, and a form to add one.
class FaultsPage : public QWidget {
    Q_OBJECT

public:
    /// @param control must outlive the page
    explicit FaultsPage(EmulatorControl& control, QWidget* pParent = nullptr);

    /// Loads the active faults.
    void Refresh();

private:
    void Add();
    void Remove(const QString& path);
    void Show(const nlohmann::json& faults);
    void ShowChosen();

    EmulatorControl& m_control;
    FaultForm* m_pForm;
    QTreeWidget* m_pList;
    QPushButton* m_pRemove;
    QPushButton* m_pRemoveAll;
    QLabel* m_pProblem;
    nlohmann::json m_faults;
    bool m_bAsking = false;
};

}  // namespace explorer
