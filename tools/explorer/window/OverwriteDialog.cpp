#include "OverwriteDialog.h"

#include "../views/Difference.h"
#include "../views/Json.h"
#include "../views/RoomyDelegate.h"
#include "../views/ValueEditor.h"
#include "../views/Widgets.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

namespace explorer {
namespace {

using nlohmann::json;

/// Whether one path contains the other or equals it.
bool Contains(const std::string& outer, const std::string& inner)
{
    return inner == outer || inner.rfind(outer + '/', 0) == 0;
}

bool IsUnentered(const std::string& path, const Unentered& unentered)
{
    const auto overlaps = [&path](const std::string& place) { return Contains(place, path) || Contains(path, place); };
    return std::any_of(unentered.values.begin(), unentered.values.end(), overlaps) ||
           std::any_of(unentered.elements.begin(), unentered.elements.end(), overlaps);
}

/// The values that are sent without having been entered, if those of the server are unknown.
std::vector<Difference> SentUnentered(const json& sent, const Unentered& unentered)
{
    std::vector<Difference> differences;
    for (const auto* const pPlaces : {&unentered.elements, &unentered.values}) {
        for (const std::string& place : *pPlaces) {
            differences.push_back(
                {QString::fromStdString(place), QString(), CompactJsonText(sent.at(json::json_pointer(place)))});
        }
    }
    return differences;
}

}  // namespace

bool OverwritesUnseen(const json& present, const json& sent, const Unentered& unentered)
{
    const std::vector<Difference> differences = Differences(present, sent);
    return std::any_of(differences.begin(), differences.end(), [&unentered](const Difference& difference) {
        return IsUnentered(difference.path.toStdString(), unentered);
    });
}

OverwriteDialog::OverwriteDialog(const QString& call, const json& present, const json& sent, const Unentered& unentered,
                                 const QString& why, QWidget* pParent)
    : QDialog(pParent)
{
    setWindowTitle(tr("Overwrite values on the server?"));
    setObjectName(QStringLiteral("overwriteDialog"));
    auto* const pWords = Named(
        new QLabel(
            why.isEmpty() && !present.is_null()
                ? tr("%1 sends values that you have not entered. They replace those on the server.").arg(call)
                : tr("%1 sends values that you have not entered. The values they replace are unknown.").arg(call)),
        "overwriteWords");
    pWords->setTextFormat(Qt::PlainText);
    pWords->setWordWrap(true);
    auto* const pWhy = Named(new QLabel(why), "overwriteReason");
    pWhy->setTextFormat(Qt::PlainText);
    pWhy->setWordWrap(true);
    pWhy->setVisible(!why.isEmpty());

    auto* const pTree = Named(new QTreeWidget, "overwritten");
    pTree->setAccessibleName(tr("Changed values"));
    pTree->setHeaderLabels({tr("Field"), tr("On the server"), tr("Will be sent"), tr("Entered")});
    pTree->setRootIsDecorated(false);
    pTree->setAlternatingRowColors(true);
    pTree->setUniformRowHeights(true);
    pTree->setItemDelegate(new RoomyDelegate(pTree));
    const std::vector<Difference> rows =
        present.is_null() ? SentUnentered(sent, unentered) : Differences(present, sent);
    for (const Difference& row : rows) {
        const bool isEntered = !IsUnentered(row.path.toStdString(), unentered);
        auto* const pItem = new QTreeWidgetItem(pTree, {row.path, present.is_null() ? tr("unknown") : row.left,
                                                        row.right, isEntered ? tr("yes") : tr("no")});
        for (int column = 0; column < pTree->columnCount(); ++column) {
            pItem->setToolTip(column, pItem->text(column));
            QFont font = pItem->font(column);
            font.setBold(!isEntered);
            pItem->setFont(column, font);
        }
    }
    pTree->header()->setSectionResizeMode(QHeaderView::Stretch);
    pTree->header()->setStretchLastSection(false);
    pTree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    pTree->header()->setSectionResizeMode(pTree->columnCount() - 1, QHeaderView::ResizeToContents);

    auto* const pButtons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* const pSend = pButtons->addButton(tr("&Send anyway"), QDialogButtonBox::AcceptRole);
    pSend->setObjectName(QStringLiteral("overwrite"));
    pSend->setAutoDefault(false);
    QPushButton* const pCancel = pButtons->button(QDialogButtonBox::Cancel);
    pCancel->setObjectName(QStringLiteral("cancelOverwrite"));
    pCancel->setDefault(true);
    pCancel->setFocus();
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Column({pWords, pWhy, pTree, pButtons}, this);
    constexpr QSize kSize(760, 420);
    resize(kSize);
}

}  // namespace explorer
