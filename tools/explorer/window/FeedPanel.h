#pragma once

#include <QWidget>

class QSortFilterProxyModel;

namespace explorer {

class Feed;

/// The lines of a feed with a search field, and a choice of levels if it has any.
class FeedPanel : public QWidget {
    Q_OBJECT

public:
    enum Kind {
        Log,
        Notifications
    };

    /// @param feed must outlive the panel
    FeedPanel(Feed& feed, Kind kind, QWidget* pParent = nullptr);
};

}  // namespace explorer
