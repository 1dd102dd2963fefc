#pragma once

#include "RecordModel.h"

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QTimer;
class QTreeView;

namespace explorer {

/// A record as a tree to filter and to copy from.
class RecordTree : public QWidget {
    Q_OBJECT

public:
    explicit RecordTree(QWidget* pParent = nullptr);

    /// @param textLength of the record, by which it is opened
    void SetRecord(const catalogue::Type& type, const SharedRecord& pRecord, const catalogue::MissingFields& missing,
                   int textLength);
    void Clear();

protected:
    bool event(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void Filter();
    void ShowRows();
    void ShowMatches();
    void ShowMenu(const QPoint& place);
    template <typename Text>
    QAction* AddCopy(const QString& title, const char* objectName, Text text);

    RecordModel m_model;
    int m_textLength = 0;
    QTreeView* m_pTree;
    QLineEdit* m_pFilter;
    QLabel* m_pMatches;
    QTimer* m_pTimer;  // one search for what is typed at once
};

}  // namespace explorer
