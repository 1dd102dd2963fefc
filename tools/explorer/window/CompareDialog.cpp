#include "CompareDialog.h"

#include "../views/Difference.h"
#include "../views/Json.h"
#include "../views/RoomyDelegate.h"
#include "../views/Widgets.h"

#include <explorer/CallOutcome.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTreeWidget>

namespace explorer {
namespace {

using nlohmann::json;

/// A body that is JSON is compared key by key.
json BodyOf(const QByteArray& body)
{
    json parsed = json::parse(body.begin(), body.end(), nullptr, false);
    return parsed.is_discarded() ? json(QString::fromUtf8(body).toStdString()) : parsed;
}

json HeadersOf(const Headers& headers)
{
    json object = json::object();
    for (const Header& header : headers) {
        object[header.name.toStdString()] = header.value.toStdString();
    }
    return object;
}

json RequestOf(const SentRequest& request)
{
    return {{"method", request.method.toStdString()},
            {"url", request.url.toStdString()},
            {"headers", HeadersOf(request.headers)},
            {"body", BodyOf(request.body)}};
}

json ReplyOf(const CallOutcome& run)
{
    return run.reply ? json{{"status", run.reply->status},
                            {"headers", HeadersOf(run.reply->headers)},
                            {"body", BodyOf(run.reply->body)}}
                     : json(run.connectionError.toStdString());
}

/// A long text is cut, with a note of how much is missing.
QString Tip(const QString& text)
{
    constexpr int kLongest = 2000;
    const int more = text.size() - kLongest;
    return more <= 0
               ? text
               : text.left(kLongest) + QLatin1Char('\n') + CompareDialog::tr("%n more character(s)", nullptr, more);
}

QString TitleOf(const CallOutcome& run)
{
    return QStringLiteral("%1 %2").arg(QString::fromStdString(run.call->name),
                                       run.started.toString(QStringLiteral("HH:mm:ss.zzz")));
}

}  // namespace

CompareDialog::CompareDialog(const CallOutcome& left, const CallOutcome& right, QWidget* pParent)
    : QDialog(pParent), m_pTree(Named(new QTreeWidget, "differences"))
{
    setWindowTitle(tr("Compare two runs"));
    setObjectName(QStringLiteral("compareDialog"));
    m_pTree->setHeaderLabels({tr("Path"), TitleOf(left), TitleOf(right)});
    m_pTree->setAlternatingRowColors(true);
    m_pTree->setUniformRowHeights(true);
    m_pTree->setItemDelegate(new RoomyDelegate(m_pTree));
    m_pTree->header()->setSectionResizeMode(QHeaderView::Stretch);
    Add(tr("Arguments"), FromQt(left.arguments), FromQt(right.arguments));
    Add(tr("Record"), left.record, right.record);
    Add(tr("Request"), RequestOf(left.request), RequestOf(right.request));
    Add(tr("Reply"), ReplyOf(left), ReplyOf(right));
    m_pTree->expandAll();

    auto* const pButtons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Column({m_pTree, pButtons}, this);
    constexpr QSize kSize(900, 520);
    resize(kSize);
}

void CompareDialog::Add(const QString& title, const json& left, const json& right)
{
    const std::vector<Difference> differences = Differences(left, right);
    auto* const pPart = new QTreeWidgetItem(m_pTree, {title});
    for (const Difference& difference : differences) {
        auto* const pItem = new QTreeWidgetItem(pPart, {difference.path, difference.left, difference.right});
        for (int column = 0; column < m_pTree->columnCount(); ++column) {
            pItem->setToolTip(column, Tip(pItem->text(column)));
        }
    }
    if (differences.empty()) {
        pPart->setText(1, tr("No difference"));
    }
}

}  // namespace explorer
