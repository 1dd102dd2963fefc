#include "NameLabel.h"

#include <QRegularExpression>

namespace explorer {

NameLabel::NameLabel(const QString& name, QWidget* pParent) : QLabel(Breakable(name), pParent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAccessibleName(name);
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
