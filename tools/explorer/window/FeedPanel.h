#pragma once

#include <QWidget>

class QSortFilterProxyModel;

namespace explorer {

class Feed;

/// A feed's lines with a box to search them, and to choose their levels where it has any.
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
