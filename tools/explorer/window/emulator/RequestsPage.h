#pragma once

#include "../../core/EmulatorRequests.h"

#include <QWidget>

class QSortFilterProxyModel;
class QTableView;

namespace explorer {

class CodeView;
class EmulatorControl;

/// The requests that the emulator got, and the chosen one in full.
class RequestsPage : public QWidget {
    Q_OBJECT

public:
    /// @param control must outlive the page
    explicit RequestsPage(EmulatorControl& control, QWidget* pParent = nullptr);

    /// Asks for what is new.
    void Refresh();
    /// Forgets those of an emulator that has ended.
    void Clear();

private:
    void ClearAll();
    void ShowChosen();

    EmulatorControl& m_control;
    EmulatorRequests m_requests;
    QSortFilterProxyModel* m_pShown;
    QTableView* m_pTable;
    CodeView* m_pDetails;
    bool m_bAsking = false;
    int m_age = 0;  // of the list: a reply that was asked for before it was cleared is dropped
};

}  // namespace explorer
