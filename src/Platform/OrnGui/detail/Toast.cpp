#include "Toast.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStringList>
#include <QTextLayout>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace ORNGUI::detail {
namespace {

constexpr int kWidth = 340;
constexpr int kAccentWidth = 4;
constexpr QMargins kMargins(18, 12, 30, 12);
constexpr int kTextWidth = kWidth - 18 - 30;
constexpr int kMaxLines = 4;
constexpr int kMaxLaidOutLength = 4000;
constexpr int kCrossSize = 8;

/// The lines of a text at the width of a toast, as the positions of their first characters.
struct Lines {
    QVector<int> starts;
    bool bFit = true;  ///< whether a toast has room for their number and width
};

Lines Broken(const QString& strText, const QFont& font, QTextOption::WrapMode wrapMode)
{
    QTextLayout layout(strText, font);
    QTextOption option;
    option.setWrapMode(wrapMode);
    layout.setTextOption(option);

    Lines lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (lines.starts.size() == kMaxLines) {
            lines.bFit = false;
            break;
        }
        line.setLineWidth(kTextWidth);
        lines.bFit = lines.bFit && line.naturalTextWidth() <= kTextWidth;
        lines.starts.append(line.textStart());
    }
    layout.endLayout();
    return lines;
}

/// The unchanged text if a label can show all of it; otherwise the text with breaks inside long words, elided.
QString Fitted(const QString& strText, const QFont& font)
{
    QString strLaidOut = strText.left(kMaxLaidOutLength);
    strLaidOut.replace(QLatin1Char('\n'), QChar::LineSeparator);
    if (strText.size() <= kMaxLaidOutLength && Broken(strLaidOut, font, QTextOption::WordWrap).bFit) {
        return strText;
    }

    const Lines lines = Broken(strLaidOut, font, QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList parts;
    for (int i = 0; i < lines.starts.size(); ++i) {
        const int nStart = lines.starts.at(i);
        const bool bLast = i + 1 == lines.starts.size();
        QString part = strLaidOut.mid(nStart, bLast ? -1 : lines.starts.at(i + 1) - nStart);
        part = part.section(QChar::LineSeparator, 0, 0).trimmed();
        if (bLast && !lines.bFit) {
            part = QFontMetrics(font).elidedText(part + QChar(0x2026), Qt::ElideRight, kTextWidth);
        }
        parts.append(part);
    }
    return parts.join(QLatin1Char('\n'));
}

}  // namespace

bool ToastContent::Equals(const ToastContent& other) const
{
    return strText == other.strText && bWithButton == other.bWithButton && strButtonText == other.strButtonText &&
           strLink == other.strLink && bStayOpen == other.bStayOpen;
}

Toast::Toast(const ToastContent& content)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus), m_content(content)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    setBackgroundRole(QPalette::Base);
    setWindowTitle(tr("Notification"));

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(kMargins);
    pLayout->setSpacing(8);
    pLayout->addWidget(MakeText(content.strText));
    m_pCount = new QLabel(this);
    m_pCount->setObjectName(QStringLiteral("count"));
    m_pCount->setTextFormat(Qt::PlainText);
    m_pCount->setForegroundRole(QPalette::Text);
    auto* pFooter = new QHBoxLayout;
    pFooter->addWidget(m_pCount);
    if (content.bWithButton) {
        pFooter->addWidget(MakeButton(content.strButtonText, content.strLink), 0, Qt::AlignRight);
    }
    pLayout->addLayout(pFooter);
    setFixedWidth(kWidth);
    ShowCount();
    m_lifetime.setSingleShot(true);
    connect(&m_lifetime, &QTimer::timeout, this, &QWidget::close);
}

void Toast::CloseAfter(int nLifetimeMs, const QDeadlineTimer& deadline)
{
    m_deadline = deadline;
    m_lifetime.start(nLifetimeMs);
}

bool Toast::Repeat()
{
    if (m_lifetime.isActive()) {
        const qint64 nLeftMs = m_deadline.remainingTime();
        if (nLeftMs < kReadableMs) {
            return false;
        }
        m_lifetime.start(std::min(m_lifetime.interval(), static_cast<int>(nLeftMs)));
    }
    ++m_content.nCount;
    ShowCount();
    return true;
}

void Toast::ShowCount()
{
    m_pCount->setText(QStringLiteral("\u00d7 %1").arg(m_content.nCount));
    m_pCount->setVisible(m_content.nCount > 1);
    setFixedHeight(layout()->hasHeightForWidth() ? layout()->heightForWidth(kWidth) : sizeHint().height());
}

QWidget* Toast::MakeText(const QString& strText)
{
    auto* pLabel = new QLabel(this);
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setWordWrap(true);
    pLabel->setForegroundRole(QPalette::Text);
    pLabel->ensurePolished();
    pLabel->setText(Fitted(strText, pLabel->font()));
    return pLabel;
}

QWidget* Toast::MakeButton(const QString& strButtonText, const QString& strLink)
{
    auto* pButton = new QPushButton(this);
    pButton->setFocusPolicy(Qt::NoFocus);
    pButton->ensurePolished();
    pButton->setMaximumWidth(kTextWidth);
    QString strShown = strButtonText.isEmpty() ? tr("Open") : strButtonText;
    strShown = pButton->fontMetrics().elidedText(strShown.left(kMaxLaidOutLength).simplified(), Qt::ElideRight,
                                                 kTextWidth - 40);
    // A single ampersand would underline the letter after it.
    pButton->setText(strShown.replace(QLatin1Char('&'), QLatin1String("&&")));
    connect(pButton, &QPushButton::clicked, this, [this, strLink] {
        close();
        if (!strLink.isEmpty()) {
            QDesktopServices::openUrl(QUrl::fromUserInput(strLink));
        }
    });
    return pButton;
}

void Toast::mouseReleaseEvent(QMouseEvent* pEvent)
{
    if (rect().contains(pEvent->pos())) {
        close();
    }
}

void Toast::closeEvent(QCloseEvent* pEvent)
{
    QWidget::closeEvent(pEvent);
    m_bOpen = false;
    emit Closed();
}

void Toast::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Base));

    painter.fillRect(0, 0, kAccentWidth, height(), palette().color(QPalette::Highlight));
    QColor line = palette().color(QPalette::Text);
    line.setAlpha(70);
    painter.setPen(line);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    if (m_content.bStayOpen) {
        line.setAlpha(160);
        painter.setPen(QPen(line, 1.5, Qt::SolidLine, Qt::RoundCap));
        const QRectF cross(width() - kCrossSize - 11, 12, kCrossSize, kCrossSize);
        painter.drawLine(cross.topLeft(), cross.bottomRight());
        painter.drawLine(cross.topRight(), cross.bottomLeft());
    }
}

}  // namespace ORNGUI::detail
