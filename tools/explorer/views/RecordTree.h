#pragma once

#include "RecordModel.h"

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QTimer;
class QTreeView;

namespace explorer {

/// A record as a tree that can be filtered and copied from.
class RecordTree : public QWidget {
    Q_OBJECT

public:
    explicit RecordTree(QWidget* pParent = nullptr);

    /// @param textLength length of the record as text; decides how far the tree is expanded
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
    QTimer* m_pTimer;  // combines key strokes into one search
};

}  // namespace explorer
