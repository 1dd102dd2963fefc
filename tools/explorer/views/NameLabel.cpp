#include "NameLabel.h"

#include <QTextDocument>

namespace explorer {

NameLabel::NameLabel(const QString& name, const QString& typeName) : QLabel(name), m_typeName(typeName)
{
    setToolTip(typeName);
    setTextFormat(Qt::PlainText);
    setAccessibleName(name);
}

void NameLabel::Describe(const QString& description)
{
    // Rich text breaks its lines.
    const QString text = m_typeName + QLatin1String(". ") + description;
    setToolTip(description.isEmpty() ? m_typeName : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    if (buddy() != nullptr) {
        buddy()->setAccessibleDescription(description);
    }
}

}  // namespace explorer
