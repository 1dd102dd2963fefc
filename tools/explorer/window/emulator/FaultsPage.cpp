#include "FaultsPage.h"

#include "FaultForm.h"

#include "../../core/EmulatorControl.h"
#include "../../views/RoomyDelegate.h"
#include "../../views/Theme.h"
#include "../../views/TintedLabel.h"
#include "../../views/Widgets.h"

#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>
#include <QTreeWidget>

namespace explorer {
namespace {

constexpr int kNumberRole = Qt::UserRole;

enum FaultColumn {
    KindColumn,
    CallsColumn,
    FirstColumn,
    TimesColumn,
    ColumnCount
};

QString TextOf(const nlohmann::json& fault, const char* key)
{
    return QString::fromStdString(fault.at(key).get<std::string>());
}

/// Details such as "503" or "3000 ms".
QString KindText(const nlohmann::json& fault)
{
    const QString kind = TextOf(fault, "kind");
    QStringList words{FaultTitle(kind)};
    const QPair<const char*, const char*> details[] = {
        {"status", "status"}, {"envelope", "code"}, {"large", "size"}, {"slow", "bytesPerSecond"}};
    for (const auto& [owner, key] : details) {
        if (kind == QLatin1String(owner)) {
            words.append(QString::number(fault.at(key).get<qint64>()));
        }
    }
    if (const int delay = fault.at("delayMs"); delay > 0) {
        words.append(FaultsPage::tr("%1 ms").arg(delay));
    }
    return words.join(QStringLiteral(" \u00b7 "));
}

QString CallsText(const nlohmann::json& fault)
{
    QStringList words{TextOf(fault, "operation"), TextOf(fault, "method"), TextOf(fault, "path")};
    words.removeAll(QString());
    return words.isEmpty() ? FaultForm::tr("Every call") : words.join(QStringLiteral(" \u00b7 "));
}

}  // namespace

FaultsPage::FaultsPage(EmulatorControl& control, QWidget* pParent)
    : QWidget(pParent), m_control(control), m_pForm(new FaultForm), m_pList(Named(new QTreeWidget, "faults")),
      m_pRemove(Named(new QPushButton(tr("Re&move")), "removeFault")),
      m_pRemoveAll(Named(new QPushButton(tr("Remove a&ll")), "removeFaults")),
      m_pProblem(Named(new TintedLabel(theme::Error), "faultProblem"))
{
    auto* const pAdd = Named(new QPushButton(tr("A&dd")), "addFault");
    m_pProblem->setWordWrap(true);
    m_pList->setAccessibleName(tr("Faults"));
    m_pList->setHeaderLabels({tr("Fault"), tr("Calls"), tr("Skips left"), tr("Times left")});
    m_pList->setRootIsDecorated(false);
    m_pList->setAlternatingRowColors(true);
    m_pList->setAllColumnsShowFocus(true);
    m_pList->setFrameShape(QFrame::NoFrame);
    m_pList->setItemDelegate(new RoomyDelegate(m_pList));
    m_pList->header()->setStretchLastSection(false);
    m_pList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_pList->header()->setSectionResizeMode(CallsColumn, QHeaderView::Stretch);
    constexpr int kLowest = 90;
    m_pList->setMinimumHeight(kLowest);
    connect(pAdd, &QPushButton::clicked, this, &FaultsPage::Add);
    connect(m_pRemove, &QPushButton::clicked, this,
            [this] { Remove(QStringLiteral("faults/") + m_pList->currentItem()->data(0, kNumberRole).toString()); });
    connect(m_pRemoveAll, &QPushButton::clicked, this, [this] { Remove(QStringLiteral("faults")); });
    connect(m_pList, &QTreeWidget::currentItemChanged, this, &FaultsPage::ShowChosen);

    auto* const pPage = new QWidget;
    Column({m_pForm, Row({pAdd, {m_pProblem, 1}, m_pRemove, m_pRemoveAll}), {m_pList, 1}}, pPage);
    auto* const pScrolled = new QScrollArea;
    pScrolled->setWidget(pPage);
    pScrolled->setWidgetResizable(true);
    pScrolled->setFrameShape(QFrame::NoFrame);
    pScrolled->setFocusPolicy(Qt::NoFocus);
    Column({pScrolled}, this)->setContentsMargins(0, 0, 0, 0);
    ShowChosen();
}

void FaultsPage::Add()
{
    m_control.Ask("POST", QStringLiteral("faults"), m_pForm->Fault(), this, [this](const ControlReply& reply) {
        m_pProblem->setText(reply.error);
        Refresh();
    });
}

void FaultsPage::Remove(const QString& path)
{
    // A fault that has expired meanwhile is gone anyway.
    m_control.Ask("DELETE", path, nullptr, this, [this](const ControlReply&) { Refresh(); });
}

void FaultsPage::Refresh()
{
    if (m_bAsking) {
        return;
    }
    m_bAsking = true;
    m_control.Ask("GET", QStringLiteral("faults"), nullptr, this, [this](const ControlReply& reply) {
        m_bAsking = false;
        Show(reply.error.isEmpty() ? reply.body : nlohmann::json::array());
    });
}

void FaultsPage::Show(const nlohmann::json& faults)
{
    if (faults == m_faults) {
        return;
    }
    m_faults = faults;
    const QVariant chosen =
        m_pList->currentItem() == nullptr ? QVariant() : m_pList->currentItem()->data(0, kNumberRole);
    m_pList->clear();
    for (const nlohmann::json& fault : faults) {
        const int times = fault.at("times");
        auto* const pItem = new QTreeWidgetItem(m_pList, {KindText(fault), CallsText(fault),
                                                          QString::number(fault.at("skip").get<int>()),
                                                          times == 0 ? tr("Until removed") : QString::number(times)});
        pItem->setData(0, kNumberRole, fault.at("number").get<qulonglong>());
        pItem->setToolTip(CallsColumn, pItem->text(CallsColumn));
        if (pItem->data(0, kNumberRole) == chosen) {
            m_pList->setCurrentItem(pItem);
        }
    }
    ShowChosen();
}

void FaultsPage::ShowChosen()
{
    m_pRemove->setEnabled(m_pList->currentItem() != nullptr);
    m_pRemoveAll->setEnabled(m_pList->topLevelItemCount() > 0);
}

}  // namespace explorer
