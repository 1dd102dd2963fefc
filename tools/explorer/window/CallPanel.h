#pragma once

#include "../core/CallIndex.h"

#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QSettings;
class QSortFilterProxyModel;
class QStandardItem;
class QStandardItemModel;
class QTreeView;

namespace explorer {

/// The calls by family and subject, below the recent calls and the favourites, with a filter.
class CallPanel : public QWidget {
    Q_OBJECT

public:
    /// @param settings stores favourites and recent calls; must outlive the panel
    explicit CallPanel(QSettings& settings, QWidget* pParent = nullptr);

    /// Sets paths, methods and keys when they are known.
    void SetEndpoints(const Endpoints& endpoints);

    [[nodiscard]] const catalogue::Call* Current() const { return m_pCurrent; }
    void Select(const catalogue::Call& call);
    void FocusFilter();
    /// The selected call, else the first visible one.
    void FocusTree();

    [[nodiscard]] bool IsFavourite(const catalogue::Call& call) const;
    void SetFavourite(const catalogue::Call& call, bool favourite);

    /// The call was made: it becomes the first recent call.
    void Used(const catalogue::Call& call);

signals:
    void Chosen(const catalogue::Call& call);
    /// The user selected a call.
    void Activated(const catalogue::Call& call);

private:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

    void Fill();
    void FillGroup(QStandardItem* pGroup, const QStringList& names);
    void Filter(const QString& text);
    /// Its index in the tree of families; invalid while the filter hides it.
    [[nodiscard]] QModelIndex IndexOf(const catalogue::Call& call) const;
    void ShowCount();
    void CurrentChanged(const QModelIndex& index);

    QSettings& m_settings;
    QStringList m_favourites;
    QStringList m_recent;
    Endpoints m_endpoints;
    bool m_bFilling = false;
    const catalogue::Call* m_pCurrent = nullptr;
    QLineEdit* m_pFilter;
    QTreeView* m_pTree;
    QLabel* m_pCount;
    QStandardItemModel* m_pModel;
    QSortFilterProxyModel* m_pShown;
    QStandardItem* m_pFavouriteGroup = nullptr;
    QStandardItem* m_pRecentGroup = nullptr;
};

}  // namespace explorer
