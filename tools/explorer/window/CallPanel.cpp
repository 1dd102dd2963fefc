#include "CallPanel.h"

#include "Icons.h"

#include "../views/RoomyDelegate.h"
#include "../views/Theme.h"
#include "../views/Widgets.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>

#include <algorithm>

namespace explorer {
namespace {

using catalogue::Call;

constexpr int kNameRole = Qt::UserRole;        // family and name of a call
constexpr int kSearchRole = Qt::UserRole + 1;  // text that the filter searches
constexpr int kMethodRole = Qt::UserRole + 2;

constexpr int kMostRecent = 8;
constexpr const char* kFavouritesKey = "favouriteCalls";
constexpr const char* kRecentKey = "recentCalls";

/// Requires every word, ignoring case.
class WordFilter : public QSortFilterProxyModel {
public:
    explicit WordFilter(QObject* pParent) : QSortFilterProxyModel(pParent) { setRecursiveFilteringEnabled(true); }

    void SetText(const QString& text)
    {
        m_words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        invalidateFilter();
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        const QString text = index.data(kSearchRole).toString();
        return std::all_of(m_words.cbegin(), m_words.cend(),
                           [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); }) &&
               !(text.isEmpty() && sourceModel()->rowCount(index) == 0);
    }

private:
    QStringList m_words;
};

/// Paints the method after the name of a call.
class CallDelegate : public RoomyDelegate {
public:
    using RoomyDelegate::RoomyDelegate;

    void paint(QPainter* pPainter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QString method = index.data(kMethodRole).toString();
        RoomyDelegate::paint(pPainter, option, index);
        if (method.isEmpty()) {
            return;
        }
        QFont font = option.font;
        font.setPointSizeF(font.pointSizeF() * 0.8);
        constexpr int kMargin = 6;
        const bool selected = (option.state & QStyle::State_Selected) != 0;
        pPainter->save();
        pPainter->setFont(font);
        pPainter->setPen(selected ? option.palette.color(QPalette::HighlightedText) : theme::Hint(option.palette));
        pPainter->drawText(option.rect.adjusted(0, 0, -kMargin, 0), Qt::AlignRight | Qt::AlignVCenter, method);
        pPainter->restore();
    }

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override
    {
        RoomyDelegate::initStyleOption(pOption, index);
        pOption->textElideMode = Qt::ElideRight;
        const QString method = index.data(kMethodRole).toString();
        if (!method.isEmpty()) {
            const int room = pOption->fontMetrics.horizontalAdvance(method) + 8;
            pOption->text =
                pOption->fontMetrics.elidedText(pOption->text, Qt::ElideRight, pOption->rect.width() - room);
        }
    }
};

QString FamilyTitle(const std::string& family)
{
    const QHash<QString, QString> titles{{QStringLiteral("BRMS"), CallPanel::tr("Basic resources")},
                                         {QStringLiteral("DMS"), CallPanel::tr("PTZ")},
                                         {QStringLiteral("IAMS"), CallPanel::tr("Analysis")},
                                         {QStringLiteral("IPMS"), CallPanel::tr("Parking")},
                                         {QStringLiteral("OBMS"), CallPanel::tr("Access control")},
                                         {QStringLiteral("OMMS"), CallPanel::tr("Maintenance")}};
    const QString name = QString::fromStdString(family);
    return name + QStringLiteral(" · ") + titles.value(name);
}

QStandardItem* NewGroup(const QString& text)
{
    auto* const pItem = new QStandardItem(text);
    QFont font = pItem->font();
    font.setBold(true);
    pItem->setFont(font);
    return pItem;
}

/// Stores the facts of a call in its item.
void Describe(QStandardItem* pItem, const Call& call, const Endpoint& endpoint)
{
    const QString summary = QString::fromStdString(catalogue::Translated(call.summary));
    const QStringList words{SearchText(call), endpoint.method, endpoint.path, endpoint.keys.join(QLatin1Char('\n'))};
    pItem->setData(words.join(QLatin1Char('\n')), kSearchRole);
    pItem->setData(endpoint.method, kMethodRole);
    QStringList tip{QString::fromStdString(call.name), summary};
    if (!endpoint.path.isEmpty()) {
        tip.append(endpoint.method + QLatin1Char(' ') + endpoint.path);
    }
    pItem->setToolTip(tip.join(QLatin1Char('\n')));
}

QStandardItem* NewItem(const Call& call, const Endpoints& endpoints)
{
    auto* const pItem = new QStandardItem(ShortName(call));
    const QString name = QString::fromStdString(call.name);
    pItem->setData(name, kNameRole);
    Describe(pItem, call, endpoints.value(name));
    return pItem;
}

QStandardItem* ChildWithText(QStandardItem* pParent, const QString& text)
{
    for (int row = 0; row < pParent->rowCount(); ++row) {
        if (pParent->child(row)->text() == text) {
            return pParent->child(row);
        }
    }
    auto* const pChild = new QStandardItem(text);
    pChild->setToolTip(text);
    pParent->appendRow(pChild);
    return pChild;
}

template <typename Visit>
void ForEachCall(QStandardItem* pItem, const Visit& visit)
{
    for (int row = 0; row < pItem->rowCount(); ++row) {
        QStandardItem* const pChild = pItem->child(row);
        if (pChild->data(kNameRole).isValid()) {
            visit(pChild);
        }
        ForEachCall(pChild, visit);
    }
}

const Call* CallOf(const QModelIndex& index)
{
    return catalogue::FindCall(index.data(kNameRole).toString().toStdString());
}

}  // namespace

CallPanel::CallPanel(QSettings& settings, QWidget* pParent)
    : QWidget(pParent), m_settings(settings),
      m_favourites(settings.value(QLatin1String(kFavouritesKey)).toStringList()),
      m_recent(settings.value(QLatin1String(kRecentKey)).toStringList()), m_pFilter(Named(new QLineEdit, "callFilter")),
      m_pTree(Named(new QTreeView, "callTree")), m_pCount(Named(new QLabel, "callCount")),
      m_pModel(new QStandardItemModel(this)), m_pShown(new WordFilter(this))
{
    m_pFilter->setPlaceholderText(tr("Filter by name, path or key"));
    m_pFilter->setClearButtonEnabled(true);
    m_pFilter->addAction(Icon("search"), QLineEdit::LeadingPosition);
    m_pFilter->installEventFilter(this);
    connect(m_pFilter, &QLineEdit::textChanged, this, &CallPanel::Filter);

    m_pTree->setAccessibleName(tr("Calls"));
    m_pTree->setHeaderHidden(true);
    m_pTree->setUniformRowHeights(true);
    m_pTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_pTree->setIndentation(12);
    m_pTree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pTree->setItemDelegate(new CallDelegate(m_pTree));
    m_pShown->setSourceModel(m_pModel);
    m_pTree->setModel(m_pShown);
    connect(m_pTree->selectionModel(), &QItemSelectionModel::currentChanged, this, &CallPanel::CurrentChanged);
    connect(m_pTree, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (const Call* pCall = CallOf(index)) {
            emit Activated(*pCall);
        }
    });

    m_pCount->setForegroundRole(QPalette::PlaceholderText);

    Column({m_pFilter, m_pTree, m_pCount}, this);
    setFocusProxy(m_pFilter);
    Fill();
}

void CallPanel::Fill()
{
    m_pFavouriteGroup = NewGroup(tr("Favourites"));
    m_pRecentGroup = NewGroup(tr("Recently used"));
    m_pModel->appendRow(m_pFavouriteGroup);
    m_pModel->appendRow(m_pRecentGroup);
    QStandardItem* pFamily = nullptr;
    const std::string* pFamilyName = nullptr;
    for (const Call& call : catalogue::Calls()) {
        if (pFamilyName == nullptr || *pFamilyName != call.family) {
            pFamilyName = &call.family;
            pFamily = NewGroup(FamilyTitle(call.family));
            m_pModel->appendRow(pFamily);
        }
        const QString subject = QString::fromStdString(catalogue::Translated(call.subject));
        ChildWithText(pFamily, subject)->appendRow(NewItem(call, m_endpoints));
    }
    FillGroup(m_pFavouriteGroup, m_favourites);
    FillGroup(m_pRecentGroup, m_recent);
    Filter(QString());
}

void CallPanel::FillGroup(QStandardItem* pGroup, const QStringList& names)
{
    const QModelIndex current = m_pTree->currentIndex();
    const bool holdsCurrent = current.isValid() && m_pShown->mapToSource(current).parent() == pGroup->index();
    const QString currentName = current.data(kNameRole).toString();
    m_bFilling = true;  // the current item is removed, the current call stays
    pGroup->removeRows(0, pGroup->rowCount());
    for (const QString& name : names) {
        if (const Call* pCall = catalogue::FindCall(name.toStdString())) {
            pGroup->appendRow(NewItem(*pCall, m_endpoints));
            if (holdsCurrent && name == currentName) {
                m_pTree->setCurrentIndex(m_pShown->mapFromSource(pGroup->child(pGroup->rowCount() - 1)->index()));
            }
        }
    }
    m_bFilling = false;
}

void CallPanel::SetEndpoints(const Endpoints& endpoints)
{
    m_endpoints = endpoints;
    ForEachCall(m_pModel->invisibleRootItem(), [&endpoints](QStandardItem* pItem) {
        const QString name = pItem->data(kNameRole).toString();
        Describe(pItem, *catalogue::FindCall(name.toStdString()), endpoints.value(name));
    });
    Filter(m_pFilter->text());
}

void CallPanel::Filter(const QString& text)
{
    m_bFilling = true;  // the selected call stays selected while it is hidden
    static_cast<WordFilter*>(m_pShown)->SetText(text);
    if (CallOf(m_pTree->currentIndex()) != m_pCurrent) {
        m_pTree->setCurrentIndex(m_pCurrent == nullptr ? QModelIndex() : IndexOf(*m_pCurrent));
    }
    m_bFilling = false;
    if (text.trimmed().isEmpty()) {
        m_pTree->collapseAll();
        m_pTree->expandToDepth(0);
        if (m_pCurrent != nullptr) {
            m_pTree->scrollTo(m_pTree->currentIndex());
        }
    } else {
        m_pTree->expandAll();
    }
    ShowCount();
}

void CallPanel::ShowCount()
{
    int count = 0;
    for (int family = 0; family < m_pShown->rowCount(); ++family) {
        const QModelIndex group = m_pShown->index(family, 0);
        for (int subject = 0; subject < m_pShown->rowCount(group); ++subject) {
            count += m_pShown->rowCount(m_pShown->index(subject, 0, group));
        }
    }
    m_pCount->setText(count == 0 ? tr("No matching calls") : tr("%n call(s)", nullptr, count));
}

void CallPanel::CurrentChanged(const QModelIndex& index)
{
    const Call* const pCall = m_bFilling ? nullptr : CallOf(index);
    if (pCall != nullptr && pCall != m_pCurrent) {
        m_pCurrent = pCall;
        emit Chosen(*pCall);
    }
}

QModelIndex CallPanel::IndexOf(const Call& call) const
{
    const QString name = QString::fromStdString(call.name);
    QModelIndex found;
    for (int row = 2; row < m_pModel->rowCount(); ++row) {  // after favourites and recent calls
        ForEachCall(m_pModel->item(row), [this, &found, &name](const QStandardItem* pItem) {
            if (pItem->data(kNameRole).toString() == name) {
                found = m_pShown->mapFromSource(m_pModel->indexFromItem(pItem));
            }
        });
    }
    return found;
}

void CallPanel::Select(const Call& call)
{
    m_pFilter->clear();
    const QModelIndex wanted = IndexOf(call);
    m_pTree->setCurrentIndex(wanted);
    m_pTree->scrollTo(wanted);
}

void CallPanel::FocusFilter()
{
    m_pFilter->setFocus(Qt::ShortcutFocusReason);
    m_pFilter->selectAll();
}

void CallPanel::FocusTree()
{
    m_pTree->setFocus(Qt::TabFocusReason);
    QModelIndex index = m_pTree->currentIndex();
    for (int row = 0; CallOf(index) == nullptr && row < m_pShown->rowCount(); ++row) {
        index = m_pShown->index(row, 0);
        while (m_pShown->rowCount(index) > 0) {
            index = m_pShown->index(0, 0, index);
        }
    }
    m_pTree->setCurrentIndex(index);
    m_pTree->scrollTo(index);
}

bool CallPanel::IsFavourite(const Call& call) const
{
    return m_favourites.contains(QString::fromStdString(call.name));
}

void CallPanel::SetFavourite(const Call& call, bool favourite)
{
    const QString name = QString::fromStdString(call.name);
    m_favourites.removeAll(name);
    if (favourite) {
        m_favourites.append(name);
        m_favourites.sort();
    }
    m_settings.setValue(QLatin1String(kFavouritesKey), m_favourites);
    FillGroup(m_pFavouriteGroup, m_favourites);
    m_pTree->expand(m_pShown->mapFromSource(m_pFavouriteGroup->index()));
}

void CallPanel::Used(const Call& call)
{
    const QString name = QString::fromStdString(call.name);
    if (!m_recent.isEmpty() && m_recent.first() == name) {
        return;
    }
    m_recent.removeAll(name);
    m_recent.prepend(name);
    m_recent = m_recent.mid(0, kMostRecent);
    m_settings.setValue(QLatin1String(kRecentKey), m_recent);
    FillGroup(m_pRecentGroup, m_recent);
    m_pTree->expand(m_pShown->mapFromSource(m_pRecentGroup->index()));
}

bool CallPanel::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == m_pFilter && pEvent->type() == QEvent::KeyPress) {
        const auto* const pKey = static_cast<QKeyEvent*>(pEvent);
        if (pKey->key() == Qt::Key_Down || pKey->key() == Qt::Key_Return || pKey->key() == Qt::Key_Enter) {
            FocusTree();
            return true;
        }
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

}  // namespace explorer
