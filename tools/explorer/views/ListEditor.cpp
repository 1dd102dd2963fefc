#include "ListEditor.h"

#include "Plain.h"
#include "RecordEditor.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <catalogue/Value.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace explorer {
namespace {

using nlohmann::json;

QToolButton* MakeButton(const QString& objectName, const QString& tip)
{
    auto* pButton = new QToolButton;
    pButton->setObjectName(objectName);
    pButton->setToolTip(tip);
    pButton->setAccessibleName(tip);
    pButton->setAutoRaise(true);
    pButton->setFocusPolicy(Qt::StrongFocus);
    return pButton;
}

QToolButton* MakeArrow(Qt::ArrowType arrow, const QString& objectName, const QString& tip)
{
    QToolButton* pButton = MakeButton(objectName, tip);
    pButton->setArrowType(arrow);
    return pButton;
}

}  // namespace

ListEditor::ListEditor(const catalogue::Type& type, const QString& name, QWidget* pParent)
    : ValueEditor(pParent), m_element(*type.element), m_name(name), m_pLayout(new QVBoxLayout(this)),
      m_pHint(new TintedLabel(theme::Hint)), m_pAdd(new QPushButton(tr("Add element")))
{
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pHint->setText(tr("The list is empty."));
    m_pHint->setWordWrap(false);
    m_pAdd->setObjectName(name + QLatin1String(".add"));
    m_pAdd->setAccessibleName(tr("Add an element to %1").arg(name));

    m_pLayout->addLayout(explorer::Row({m_pAdd, m_pHint, Stretch()}));
    connect(m_pAdd, &QPushButton::clicked, this, &ListEditor::AddByUser);
}

json ListEditor::Value() const
{
    json list = json::array();
    for (const Row& row : m_rows) {
        list.push_back(row.pEditor->Value());
    }
    return list;
}

void ListEditor::SetValue(const json& value, Origin origin)
{
    const std::size_t before = m_rows.size();
    m_bEntered = origin == Origin::Known || (origin == Origin::Entered && (m_bEntered || before != value.size()));
    while (m_rows.size() > value.size()) {
        delete m_rows.back().pWidget;
        m_rows.pop_back();
    }
    while (m_rows.size() < value.size()) {
        Append();
    }
    for (std::size_t index = 0; index < value.size(); ++index) {
        const bool isNew = index >= before && origin == Origin::Entered;
        m_rows[index].pEditor->SetValue(value[index], isNew ? Origin::Known : origin);
        m_rows[index].isAdded = m_rows[index].isAdded && origin == Origin::Entered;
    }
    Number();
    emit Rearranged();
    emit Changed();
}

void ListEditor::Collect(const std::string& place, Unentered& unentered) const
{
    if (!m_bEntered) {
        unentered.values.push_back(place);
    }
    for (std::size_t index = 0; index < m_rows.size(); ++index) {
        const std::string inner = place + '/' + std::to_string(index);
        Unentered inside;
        m_rows[index].pEditor->Collect(inner, inside);
        if (m_rows[index].isAdded && inside.values.size() == m_rows[index].untouched) {
            unentered.elements.push_back(inner);
        }
        unentered.values.insert(unentered.values.end(), inside.values.begin(), inside.values.end());
        unentered.elements.insert(unentered.elements.end(), inside.elements.begin(), inside.elements.end());
    }
}

bool ListEditor::IsValid() const
{
    return std::all_of(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.pEditor->IsValid(); });
}

QList<QWidget*> ListEditor::TabStops() const
{
    QList<QWidget*> stops;
    for (const Row& row : m_rows) {
        const QList<QWidget*> buttons{row.pUp, row.pDown, row.pRemove};
        stops += IsPlain(m_element) ? row.pEditor->TabStops() + buttons : buttons + row.pEditor->TabStops();
    }
    return stops << m_pAdd;
}

void ListEditor::Append()
{
    auto* pWidget = new QFrame(this);
    Row row{pWidget,
            new TintedLabel(theme::Hint),
            MakeEditor(m_element, m_name, pWidget),
            MakeArrow(Qt::UpArrow, m_name + QLatin1String(".up"), tr("Move up")),
            MakeArrow(Qt::DownArrow, m_name + QLatin1String(".down"), tr("Move down")),
            MakeButton(m_name + QLatin1String(".remove"), tr("Remove"))};
    row.pRemove->setText(QString(QChar(0x00D7)));  // every font has the multiplication sign
    row.pNumber->setWordWrap(false);
    row.pNumber->setMinimumWidth(row.pNumber->fontMetrics().horizontalAdvance(QStringLiteral("000.")));

    // A plain value is between its number and its buttons, anything larger in a frame below them.
    auto* pHead = new QHBoxLayout;
    pHead->addWidget(row.pNumber);
    if (IsPlain(m_element)) {
        pHead->addWidget(row.pEditor, 1);
    } else {
        pHead->addStretch();
    }
    for (QToolButton* pButton : {row.pUp, row.pDown, row.pRemove}) {
        pHead->addWidget(pButton, 0, Qt::AlignTop);
    }
    if (IsPlain(m_element)) {
        pHead->setContentsMargins(0, 0, 0, 0);
        pWidget->setLayout(pHead);
    } else {
        QVBoxLayout* pBox = MakeBox(pWidget);
        pBox->addLayout(pHead);
        pBox->addWidget(row.pEditor);
    }

    connect(row.pEditor, &ValueEditor::Changed, this, &ListEditor::Changed);
    connect(row.pEditor, &ValueEditor::Rearranged, this, &ListEditor::Rearranged);
    connect(row.pUp, &QToolButton::clicked, this, [this, pWidget] { Move(pWidget, -1); });
    connect(row.pDown, &QToolButton::clicked, this, [this, pWidget] { Move(pWidget, 1); });
    connect(row.pRemove, &QToolButton::clicked, this, [this, pWidget] { Remove(pWidget); });

    m_pLayout->insertWidget(int(m_rows.size()), pWidget);
    m_rows.push_back(row);
}

void ListEditor::AddByUser()
{
    Append();
    Row& added = m_rows.back();
    added.pEditor->SetValue(catalogue::Value(m_element).ToJson(), Origin::Unseen);
    Unentered all;
    added.pEditor->Collect({}, all);
    added.untouched = all.values.size();
    added.isAdded = true;
    Rearrange();
    m_rows.back().pEditor->TabStops().constFirst()->setFocus(Qt::TabFocusReason);
}

void ListEditor::Remove(const QWidget* pRow)
{
    const std::size_t index = IndexOf(pRow);
    QWidget* pWidget = m_rows[index].pWidget;
    m_rows.erase(m_rows.begin() + std::ptrdiff_t(index));
    // The button that was clicked is a child of the row.
    pWidget->hide();
    m_pLayout->removeWidget(pWidget);
    pWidget->deleteLater();

    Rearrange();
    (m_rows.empty() ? static_cast<QWidget*>(m_pAdd) : m_rows[std::min(index, m_rows.size() - 1)].pRemove)->setFocus();
}

void ListEditor::Move(const QWidget* pRow, int steps)
{
    const std::size_t from = IndexOf(pRow);
    const auto to = std::size_t(std::ptrdiff_t(from) + steps);
    std::swap(m_rows[from], m_rows[to]);
    m_pLayout->insertWidget(int(to), m_rows[to].pWidget);
    Rearrange();
}

void ListEditor::Rearrange()
{
    m_bEntered = true;
    Number();
    emit Rearranged();
    emit Changed();
}

void ListEditor::Number()
{
    for (std::size_t index = 0; index < m_rows.size(); ++index) {
        const Row& row = m_rows[index];
        row.pNumber->setText(QStringLiteral("%1.").arg(index + 1));
        row.pUp->setEnabled(index > 0);
        row.pDown->setEnabled(index + 1 < m_rows.size());
    }
    m_pHint->setVisible(m_rows.empty());
}

std::size_t ListEditor::IndexOf(const QWidget* pRow) const
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [pRow](const Row& row) { return row.pWidget == pRow; });
    return std::size_t(found - m_rows.begin());
}

}  // namespace explorer
