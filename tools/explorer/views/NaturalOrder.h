#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

namespace explorer {

/// Sorts texts in the order of the language, ignoring case, and 9 before 10.
class NaturalOrder : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit NaturalOrder(QObject* pParent = nullptr);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QCollator m_collator;
};

}  // namespace explorer
