#pragma once

#include <QStyledItemDelegate>

namespace explorer {

/// Paints rows with padding.
class RoomyDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int kAir = 6;
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(option.fontMetrics.height() + kAir);
        return size;
    }
};

}  // namespace explorer
