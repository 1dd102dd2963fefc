#include "JsonHighlighter.h"

#include "Theme.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QRegularExpression>

namespace explorer {

JsonHighlighter::JsonHighlighter(QPlainTextEdit& edit) : QSyntaxHighlighter(edit.document()), m_edit(edit)
{
    edit.installEventFilter(this);
}

void JsonHighlighter::highlightBlock(const QString& text)
{
    static const QRegularExpression token(
        QStringLiteral(R"re(("(?:[^"\\]|\\.)*")(\s*:)?|-?\d[\d.eE+-]*|\b(?:true|false|null)\b)re"));
    for (auto matches = token.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString found = match.captured(1).isEmpty() ? match.captured() : match.captured(1);
        setFormat(match.capturedStart(), found.size(), ColourOf(found, match.capturedLength(2) > 0));
    }
}

bool JsonHighlighter::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::PaletteChange) {
        rehighlight();
    }
    return QSyntaxHighlighter::eventFilter(pWatched, pEvent);
}

QColor JsonHighlighter::ColourOf(const QString& token, bool isKey) const
{
    const QPalette palette = m_edit.palette();
    if (token.startsWith(QLatin1Char('"'))) {
        return isKey ? theme::JsonKey(palette) : theme::JsonText(palette);
    }
    return token.at(0).isLetter() ? theme::JsonWord(palette) : theme::JsonNumber(palette);
}

}  // namespace explorer
