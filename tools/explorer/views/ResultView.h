#pragma once

#include "Json.h"

#include <catalogue/MissingFields.h>

#include <QWidget>

class QLabel;
class QStackedWidget;
class QTabWidget;

namespace catalogue {
struct Call;
}

namespace explorer {

struct CallOutcome;
class CodeView;
class RecordTable;
class RecordTree;

/// The result of a call: the record as a tree, as JSON and as a table, and the exchange.
class ResultView : public QWidget {
    Q_OBJECT

public:
    explicit ResultView(QWidget* pParent = nullptr);

    void Show(CallOutcome outcome);
    void Clear();
    /// Clears the result of the previous run while the call runs again.
    void ShowWaiting(const catalogue::Call& call);

private:
    void ShowRecord(const catalogue::Type& type, const SharedRecord& pRecord, const catalogue::MissingFields& missing);
    void ShowNoRecord(const QString& hint);
    QStackedWidget* AddTab(QWidget* pContent, QLabel* pHint, const QString& title);

    RecordTree* m_pTree;
    CodeView* m_pJson;
    RecordTable* m_pTable;
    CodeView* m_pExchange;
    QLabel* m_pTreeHint;
    QLabel* m_pTableHint;
    QTabWidget* m_pTabs;
    QStackedWidget* m_pTreePages;
    QStackedWidget* m_pTablePages;
};

}  // namespace explorer
