#include "NameLabel.h"

#include <QRegularExpression>
#include <QTextDocument>

namespace explorer {

NameLabel::NameLabel(const QString& name, const QString& typeName) : QLabel(Breakable(name)), m_typeName(typeName)
{
    setToolTip(typeName);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
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

QSize NameLabel::sizeHint() const
{
    // As wide as its text, so that the fields behind have the rest; QLabel makes a block of a text that may wrap.
    constexpr int kLongestLine = 20;
    const int widest = fontMetrics().averageCharWidth() * kLongestLine;
    const int width = qMin(fontMetrics().size(Qt::TextSingleLine, text()).width() + 1, widest);
    return {width, heightForWidth(width)};
}

QSize NameLabel::minimumSizeHint() const
{
    return sizeHint();
}

QString Breakable(const QString& name)
{
    static const QRegularExpression hump(QStringLiteral("(?<=[a-z0-9])(?=[A-Z])"));
    return QString(name).replace(hump, QString(QChar(0x200B)));
}

}  // namespace explorer
