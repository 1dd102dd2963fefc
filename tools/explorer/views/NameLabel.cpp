#include "NameLabel.h"

#include "Limits.h"

#include <QTextDocument>

namespace explorer {

NameLabel::NameLabel(const QString& name, const QString& typeName) : QLabel(name), m_typeName(typeName)
{
    setToolTip(typeName);
    setTextFormat(Qt::PlainText);
    setAccessibleName(name);
}

void NameLabel::Describe(const FieldFacts& facts)
{
    const QString limits = LimitsText(facts);
    QStringList parts{facts.description, limits.isEmpty() ? QString() : tr("Allowed: %1").arg(limits),
                      facts.example.isEmpty() ? QString() : tr("Example: %1").arg(facts.example)};
    parts.removeAll(QString());
    const QString known = parts.join(QLatin1Char('\n'));
    // Rich text breaks its lines.
    const QString text = m_typeName + QLatin1String(". ") + known;
    setToolTip(known.isEmpty() ? m_typeName : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    if (buddy() != nullptr) {
        buddy()->setAccessibleDescription(known);
    }
}

}  // namespace explorer
