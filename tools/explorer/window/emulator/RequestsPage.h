#pragma once

#include "../../core/EmulatorRequests.h"

#include <QWidget>

class QSortFilterProxyModel;
class QTableView;

namespace explorer {

class CodeView;
class EmulatorControl;

/// The requests that the emulator received, with details of the selected one.
class RequestsPage : public QWidget {
    Q_OBJECT

public:
    /// @param control must outlive the page
    explicit RequestsPage(EmulatorControl& control, QWidget* pParent = nullptr);

    /// Loads new requests.
    void Refresh();
    /// Clears the requests of an emulator that has ended.
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
    int m_age = 0;  // counts how often the list was cleared: replies to earlier requests are ignored
};

}  // namespace explorer
