#include "RecordTree.h"

#include "RoomyDelegate.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <catalogue/Identity.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QQueue>
#include <QTimer>
#include <QTreeView>

namespace explorer {
namespace {

/// Expands rows level by level, up to a readable number.
void OpenUpTo(QTreeView& tree, int most)
{
    const QAbstractItemModel& model = *tree.model();
    QQueue<QModelIndex> closed;
    closed.enqueue(model.index(0, 0));
    int rows = 1;
    while (!closed.isEmpty() && rows < most) {
        const QModelIndex index = closed.dequeue();
        tree.expand(index);
        for (int row = 0; row < model.rowCount(index); ++row, ++rows) {
            const QModelIndex inner = model.index(row, 0, index);
            if (model.hasChildren(inner)) {
                closed.enqueue(inner);
            }
        }
    }
}

}  // namespace

RecordTree::RecordTree(QWidget* pParent)
    : QWidget(pParent), m_pTree(Named(new QTreeView, "record")), m_pFilter(Named(new QLineEdit, "recordFilter")),
      m_pMatches(Named(new TintedLabel(theme::Hint), "recordMatches")), m_pTimer(new QTimer(this))
{
    m_pTree->setModel(&m_model);
    m_pTree->setAlternatingRowColors(true);
    m_pTree->setUniformRowHeights(true);
    m_pTree->setAllColumnsShowFocus(true);
    m_pTree->setTextElideMode(Qt::ElideRight);
    m_pTree->setFrameShape(QFrame::NoFrame);
    m_pTree->setAccessibleName(tr("Record"));
    m_pTree->setItemDelegate(new RoomyDelegate(m_pTree));
    constexpr int kIndentation = 14;
    m_pTree->setIndentation(kIndentation);
    // The values get the remaining width.
    m_pTree->header()->setStretchLastSection(false);
    m_pTree->header()->setSectionResizeMode(RecordModel::ValueColumn, QHeaderView::Stretch);

    m_pFilter->setAccessibleName(tr("Filter the record"));
    m_pFilter->setPlaceholderText(tr("Filter by name or value (Ctrl+F)"));
    m_pFilter->setClearButtonEnabled(true);
    m_pMatches->setWordWrap(false);
    constexpr int kPause = 150;
    m_pTimer->setSingleShot(true);
    m_pTimer->setInterval(kPause);

    AddCopy(tr("Copy the &value"), "copyValue", [this](const QModelIndex& index) {
        const nlohmann::json& value = *m_model.Value(index);
        return value.is_structured() ? CompactJsonText(value) : QString::fromStdString(catalogue::PlainText(value));
    })->setShortcut(QKeySequence::Copy);
    AddCopy(tr("Copy the &path"), "copyPath", [this](const QModelIndex& index) { return m_model.Path(index); });
    AddCopy(tr("Copy as &JSON, with children"), "copySubtree",
            [this](const QModelIndex& index) { return JsonText(*m_model.Value(index)); });
    m_pTree->setContextMenuPolicy(Qt::CustomContextMenu);

    constexpr int kMargin = 9;
    auto* const pTop = Row({{m_pFilter, 1}, m_pMatches});
    pTop->setContentsMargins(kMargin, kMargin, kMargin, 0);
    Column({pTop, {m_pTree, 1}}, this)->setContentsMargins(0, 0, 0, 0);

    connect(m_pFilter, &QLineEdit::textChanged, m_pTimer, qOverload<>(&QTimer::start));
    connect(m_pTimer, &QTimer::timeout, this, &RecordTree::Filter);
    connect(m_pTree, &QWidget::customContextMenuRequested, this, &RecordTree::ShowMenu);
    ShowMatches();
}

void RecordTree::SetRecord(const catalogue::Type& type, const SharedRecord& pRecord,
                           const catalogue::MissingFields& missing, int textLength)
{
    m_textLength = textLength;
    m_model.SetRecord(type, pRecord, missing);
    ShowRows();
    for (const int column : {RecordModel::NameColumn, RecordModel::TypeColumn}) {
        constexpr int kWidest = 260;
        constexpr int kRoom = 8;
        m_pTree->resizeColumnToContents(column);
        m_pTree->setColumnWidth(column, qMin(m_pTree->columnWidth(column) + kRoom, kWidest));
    }
}

void RecordTree::Clear()
{
    m_model.Clear();
    ShowMatches();
}

void RecordTree::Filter()
{
    m_model.Filter(m_pFilter->text().trimmed());
    ShowRows();
}

/// Expands what fits on a screen or two; of a larger record, the first level.
void RecordTree::ShowRows()
{
    constexpr int kLongest = 8000;
    constexpr int kMostRows = 500;
    if (m_textLength < kLongest) {
        m_pTree->expandAll();
    } else if (m_pFilter->text().trimmed().isEmpty()) {
        m_pTree->expandToDepth(0);
    } else {
        OpenUpTo(*m_pTree, kMostRows);
    }
    ShowMatches();
}

void RecordTree::ShowMatches()
{
    m_pMatches->setVisible(!m_pFilter->text().trimmed().isEmpty());
    m_pMatches->setText(tr("Matches: %1").arg(m_model.Matches()));
}

void RecordTree::ShowMenu(const QPoint& place)
{
    if (m_pTree->currentIndex().isValid()) {
        QMenu::exec(m_pTree->actions(), m_pTree->viewport()->mapToGlobal(place), nullptr, m_pTree);
    }
}

template <typename Text>
QAction* RecordTree::AddCopy(const QString& title, const char* objectName, Text text)
{
    auto* pAction = new QAction(title, m_pTree);
    pAction->setObjectName(QLatin1String(objectName));
    pAction->setShortcutContext(Qt::WidgetShortcut);
    m_pTree->addAction(pAction);
    connect(pAction, &QAction::triggered, this, [this, text] {
        if (m_pTree->currentIndex().isValid()) {
            QGuiApplication::clipboard()->setText(text(m_pTree->currentIndex()));
        }
    });
    return pAction;
}

/// In this view the key that finds a call in the window filters the record.
bool RecordTree::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Find)) {
        pEvent->accept();
        return true;
    }
    return QWidget::event(pEvent);
}

void RecordTree::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent->matches(QKeySequence::Find)) {
        m_pFilter->setFocus(Qt::ShortcutFocusReason);
        m_pFilter->selectAll();
    } else {
        QWidget::keyPressEvent(pEvent);
    }
}

}  // namespace explorer
