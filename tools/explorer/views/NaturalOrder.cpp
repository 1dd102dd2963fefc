#include "NaturalOrder.h"

namespace explorer {
namespace {

/// Without a language, texts would be compared byte by byte.
QLocale Language()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

}  // namespace

NaturalOrder::NaturalOrder(QObject* pParent) : QSortFilterProxyModel(pParent), m_collator(Language())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

bool NaturalOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const QVariant first = left.data(sortRole());
    return first.userType() == QMetaType::QString
               ? m_collator.compare(first.toString(), right.data(sortRole()).toString()) < 0
               : QSortFilterProxyModel::lessThan(left, right);
}

}  // namespace explorer
