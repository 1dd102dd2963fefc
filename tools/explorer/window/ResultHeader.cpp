#include "ResultHeader.h"

#include "../views/Theme.h"
#include "../views/Widgets.h"

#include <QEvent>
#include <QGridLayout>
#include <QJsonDocument>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPixmap>

namespace explorer {
namespace {

/// The text of the server about the failure.
QString ServersWords(const RunSummary& outcome)
{
    if (!outcome.reply || outcome.succeeded) {
        return {};
    }
    return QJsonDocument::fromJson(outcome.reply->body).object().value(QLatin1String("desc")).toString();
}

}  // namespace

ResultHeader::ResultHeader(QWidget* pParent)
    : QScrollArea(pParent), m_pLight(new QLabel), m_pWords(Named(new QLabel, "resultWords")),
      m_pDetails(Named(new QLabel, "resultDetails"))
{
    QFont font = m_pWords->font();
    font.setBold(true);
    m_pWords->setFont(font);
    m_pWords->setWordWrap(true);
    m_pWords->setTextFormat(Qt::PlainText);
    m_pWords->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pDetails->setWordWrap(true);
    m_pDetails->setTextFormat(Qt::PlainText);
    m_pDetails->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* const pContent = new QWidget;
    auto* const pLayout = new QGridLayout(pContent);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setHorizontalSpacing(8);
    pLayout->setVerticalSpacing(4);
    pLayout->setColumnStretch(1, 1);
    constexpr int kToTheMiddleOfTheLine = 4;
    m_pLight->setContentsMargins(0, kToTheMiddleOfTheLine, 0, 0);
    pLayout->addWidget(m_pLight, 0, 0, Qt::AlignTop);
    pLayout->addWidget(m_pWords, 0, 1);
    pLayout->addWidget(m_pDetails, 1, 1);
    setWidget(pContent);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    Clear();
}

void ResultHeader::changeEvent(QEvent* pEvent)
{
    QScrollArea::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange) {
        ShowLight(m_light);
    }
}

void ResultHeader::resizeEvent(QResizeEvent* pEvent)
{
    QScrollArea::resizeEvent(pEvent);
    // Not yet: another size during this event would not reach the layout of the texts.
    QMetaObject::invokeMethod(this, &ResultHeader::Fit, Qt::QueuedConnection);
}

bool ResultHeader::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const bool handled = QScrollArea::eventFilter(pWatched, pEvent);
    if (pWatched == widget() && pEvent->type() == QEvent::LayoutRequest) {
        Fit();  // the sizes of new texts are known only now
    }
    return handled;
}

void ResultHeader::Show(const QString& words, const QString& details)
{
    m_pWords->setText(words);
    m_pDetails->setText(details);
}

/// Its height fits the texts, up to a few lines.
void ResultHeader::Fit()
{
    constexpr int kLines = 8;
    const int needed = qMax(widget()->layout()->heightForWidth(viewport()->width()), 0);
    setFixedHeight(qMin(needed, kLines * m_pDetails->fontMetrics().lineSpacing()));
}

void ResultHeader::ShowLight(theme::Tint tint)
{
    m_light = tint;
    constexpr int kSize = 10;
    const qreal ratio = devicePixelRatioF();
    QPixmap light(QSize(kSize, kSize) * ratio);
    light.setDevicePixelRatio(ratio);
    light.fill(Qt::transparent);
    QPainter painter(&light);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint(palette()));
    painter.drawEllipse(QRectF(0.5, 0.5, kSize - 1, kSize - 1));
    painter.end();
    m_pLight->setPixmap(light);
}

void ResultHeader::Show(const RunSummary& outcome)
{
    ShowLight(outcome.succeeded ? theme::Succeeded : theme::Error);
    QStringList details{tr("Result %1").arg(outcome.result)};
    if (outcome.reply && outcome.reply->status >= 0) {
        details.append(tr("HTTP %1").arg(outcome.reply->status));
    }
    details.append(tr("%1 ms").arg(QLocale().toString(outcome.elapsedMilliseconds, 'f', 1)));
    if (outcome.timeoutSeconds > 0) {
        details.append(tr("time-out %1 s").arg(outcome.timeoutSeconds));
    }
    const QStringList circumstances{QString::fromStdString(outcome.call->name), outcome.server,
                                    QLocale().toString(outcome.started.time(), QStringLiteral("HH:mm:ss"))};
    const QString between = QStringLiteral("  ·  ");
    QString text = details.join(between) + QLatin1Char('\n') + circumstances.join(between);
    const QString words = ServersWords(outcome);
    if (!words.isEmpty()) {
        text += QLatin1Char('\n') + tr("The server reports: %1").arg(words);
    }
    if (!outcome.connectionError.isEmpty()) {
        text += QLatin1Char('\n') + tr("Connection: %1").arg(outcome.connectionError);
    }
    Show(outcome.resultText, text);
}

void ResultHeader::ShowRunning(const QString& name)
{
    ShowLight([](const QPalette& palette) { return palette.color(QPalette::Highlight); });
    Show(tr("%1 is running").arg(name), tr("Waiting for the server"));
}

void ResultHeader::Clear()
{
    ShowLight([](const QPalette& palette) { return palette.color(QPalette::Mid); });
    Show(tr("Not run yet"), tr("Result and time of the run appear here."));
}

}  // namespace explorer
