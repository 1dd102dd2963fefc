#include "CallHeader.h"

#include "../views/Widgets.h"
#include "Icons.h"

#include <QAction>
#include <QClipboard>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QTextDocument>
#include <QToolButton>

namespace explorer {

CallHeader::CallHeader(QWidget* pParent)
    : QWidget(pParent), m_pName(Named(new QLabel(tr("No call selected")), "callName")),
      m_pEndpoint(Named(new QLabel, "callEndpoint")), m_pSummary(Named(new QLabel, "callSummary")),
      m_pFavourite(new QToolButton)
{
    QFont font = m_pName->font();
    font.setPointSizeF(font.pointSizeF() * 1.35);
    font.setBold(true);
    m_pName->setFont(font);
    m_pName->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_pEndpoint->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_pEndpoint->setTextFormat(Qt::PlainText);
    m_pEndpoint->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* const pCopy = new QAction(tr("Copy the &path"), m_pEndpoint);
    m_pEndpoint->addAction(pCopy);
    connect(pCopy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(m_path); });
    m_pEndpoint->setForegroundRole(QPalette::Link);
    m_pEndpoint->setWordWrap(true);
    m_pSummary->setText(tr("Choose a call on the left to fill it in and run it."));
    m_pSummary->setWordWrap(true);

    m_pFavourite->setCheckable(true);
    m_pFavourite->setAutoRaise(true);
    m_pFavourite->setEnabled(false);
    m_pFavourite->setIcon(Icon("star"));
    m_pFavourite->setToolTip(tr("Favourite"));
    m_pFavourite->setAccessibleName(tr("Favourite"));
    connect(m_pFavourite, &QToolButton::toggled, this,
            [this](bool on) { m_pFavourite->setIcon(Icon(on ? "starred" : "star")); });
    connect(m_pFavourite, &QToolButton::clicked, this, &CallHeader::FavouriteToggled);

    auto* const pLayout = new QGridLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setVerticalSpacing(4);
    pLayout->setColumnStretch(0, 1);
    pLayout->addWidget(m_pName, 0, 0);
    pLayout->addWidget(m_pFavourite, 0, 1);
    pLayout->addWidget(m_pEndpoint, 1, 0, 1, 2);
    pLayout->addWidget(m_pSummary, 2, 0, 1, 2);
    m_pEndpoint->hide();
}

void CallHeader::Show(const catalogue::Call& call, const Endpoint& endpoint, bool favourite)
{
    m_path = endpoint.path;
    // A long path may wrap after a slash. The invisible spaces must not be copied, so the text cannot be selected.
    QString path = m_path;
    path.replace(QLatin1Char('/'), QStringLiteral("/\u200b"));
    m_pName->setText(ShortName(call));
    m_pEndpoint->setText(endpoint.method + QLatin1Char(' ') + path);
    m_pEndpoint->setVisible(!endpoint.path.isEmpty());
    m_pSummary->setText(QString::fromStdString(catalogue::Translated(call.summary)));
    // Rich text breaks its lines.
    m_pSummary->setToolTip(endpoint.description.isEmpty()
                               ? QString()
                               : Qt::convertFromPlainText(endpoint.description, Qt::WhiteSpaceNormal));
    m_pSummary->setAccessibleDescription(endpoint.description);
    m_pFavourite->setEnabled(true);
    m_pFavourite->setChecked(favourite);
}

}  // namespace explorer
