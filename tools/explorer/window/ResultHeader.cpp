#include "ResultHeader.h"

#include "../views/Theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPixmap>

namespace explorer {
namespace {

/// What the server said of the failure, in its own words.
QString ServersWords(const CallOutcome& outcome)
{
    if (!outcome.reply || outcome.succeeded) {
        return {};
    }
    return QJsonDocument::fromJson(outcome.reply->body).object().value(QLatin1String("desc")).toString();
}

}  // namespace

ResultHeader::ResultHeader(QWidget* pParent)
    : QWidget(pParent), m_pLight(new QLabel), m_pWords(new QLabel), m_pDetails(new QLabel)
{
    m_pWords->setObjectName(QStringLiteral("resultWords"));
    QFont font = m_pWords->font();
    font.setBold(true);
    m_pWords->setFont(font);
    m_pWords->setWordWrap(true);
    m_pWords->setTextFormat(Qt::PlainText);
    m_pWords->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pDetails->setObjectName(QStringLiteral("resultDetails"));
    m_pDetails->setWordWrap(true);
    m_pDetails->setTextFormat(Qt::PlainText);
    m_pDetails->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* const pTexts = new QVBoxLayout;
    pTexts->setSpacing(4);
    pTexts->addWidget(m_pWords);
    pTexts->addWidget(m_pDetails);
    auto* const pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(8);
    constexpr int kToTheMiddleOfTheLine = 4;
    m_pLight->setContentsMargins(0, kToTheMiddleOfTheLine, 0, 0);
    pLayout->addWidget(m_pLight, 0, Qt::AlignTop);
    pLayout->addLayout(pTexts, 1);
    Clear();
}

void ResultHeader::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange) {
        ShowLight(m_light);
    }
}

void ResultHeader::ShowLight(Tint tint)
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

void ResultHeader::Show(const CallOutcome& outcome)
{
    ShowLight(outcome.succeeded ? theme::Succeeded : theme::Error);
    m_pWords->setText(outcome.resultText);

    QStringList details{tr("Result %1").arg(outcome.result)};
    if (outcome.reply && outcome.reply->status >= 0) {
        details.append(tr("HTTP %1").arg(outcome.reply->status));
    }
    details.append(tr("%1 ms").arg(QLocale().toString(outcome.elapsedMilliseconds, 'f', 1)));
    if (outcome.timeoutSeconds > 0) {
        details.append(tr("time-out %1 s").arg(outcome.timeoutSeconds));
    }
    const QStringList circumstances{outcome.server,
                                    QLocale().toString(outcome.started.time(), QStringLiteral("HH:mm:ss"))};
    const QString between = QStringLiteral("  ·  ");
    QString text = details.join(between) + QLatin1Char('\n') + circumstances.join(between);
    const QString words = ServersWords(outcome);
    if (!words.isEmpty()) {
        text += QLatin1Char('\n') + tr("The server says: %1").arg(words);
    }
    if (!outcome.connectionError.isEmpty()) {
        text += QLatin1Char('\n') + tr("The connection: %1").arg(outcome.connectionError);
    }
    m_pDetails->setText(text);
}

void ResultHeader::ShowRunning(const QString& name)
{
    ShowLight([](const QPalette& palette) { return palette.color(QPalette::Highlight); });
    m_pWords->setText(tr("%1 is running").arg(name));
    m_pDetails->setText(tr("Waiting for the server"));
}

void ResultHeader::Clear()
{
    ShowLight([](const QPalette& palette) { return palette.color(QPalette::Mid); });
    m_pWords->setText(tr("Not run yet"));
    m_pDetails->setText(tr("Result and time of the run appear here."));
}

}  // namespace explorer
