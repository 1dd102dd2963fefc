#include "RecordEditor.h"

#include "NameLabel.h"
#include "Plain.h"

#include <QFormLayout>
#include <QFrame>
#include <QVBoxLayout>

#include <algorithm>

namespace explorer {

using nlohmann::json;

RecordEditor::RecordEditor(const catalogue::Type& type, QWidget* pParent) : ValueEditor(pParent)
{
    QFormLayout* pForm = MakeForm(this);
    pForm->setContentsMargins(0, 0, 0, 0);
    for (const catalogue::Field& field : type.fields) {
        std::string name(field.name);
        ValueEditor* pEditor = AddMember(pForm, *field.type, QString::fromStdString(name));
        connect(pEditor, &ValueEditor::Changed, this, &RecordEditor::Changed);
        connect(pEditor, &ValueEditor::Rearranged, this, &RecordEditor::Rearranged);
        m_members.emplace_back(std::move(name), pEditor);
    }
}

json RecordEditor::Value() const
{
    json record = json::object();
    for (const auto& [name, pEditor] : m_members) {
        record[name] = pEditor->Value();
    }
    return record;
}

void RecordEditor::SetValue(const json& value, Origin origin)
{
    for (const auto& [name, pEditor] : m_members) {
        pEditor->SetValue(value.at(name), origin);
    }
}

void RecordEditor::Collect(const std::string& place, Unentered& unentered) const
{
    for (const auto& [name, pEditor] : m_members) {
        pEditor->Collect(std::string(place).append("/").append(name), unentered);
    }
}

bool RecordEditor::IsValid() const
{
    return std::all_of(m_members.begin(), m_members.end(), [](const auto& member) { return member.second->IsValid(); });
}

QList<QWidget*> RecordEditor::TabStops() const
{
    QList<QWidget*> stops;
    for (const auto& [name, pEditor] : m_members) {
        stops += pEditor->TabStops();
    }
    return stops;
}

ValueEditor* AddMember(QFormLayout* pForm, const catalogue::Type& type, const QString& name)
{
    const QString typeName = QString::fromStdString(NameOf(type));
    if (IsPlain(type)) {
        ValueEditor* pEditor = MakeEditor(type, name, nullptr);
        auto* pLabel = new NameLabel(name, typeName);
        pLabel->setBuddy(pEditor->TabStops().constFirst());
        pForm->addRow(pLabel, pEditor);
        return pEditor;
    }
    auto* pFrame = new QFrame;
    pFrame->setAccessibleName(name);
    QVBoxLayout* pBox = MakeBox(pFrame);
    auto* pTitle = new QLabel(QStringLiteral("%1 \u2013 %2").arg(name, typeName));
    pTitle->setTextFormat(Qt::PlainText);
    pTitle->setWordWrap(true);
    ValueEditor* pEditor = MakeEditor(type, name, pFrame);
    pBox->addWidget(pTitle);
    pBox->addWidget(pEditor);
    pForm->addRow(pFrame);
    return pEditor;
}

QFormLayout* MakeForm(QWidget* pWidget)
{
    auto* pForm = new QFormLayout(pWidget);
    pForm->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pForm->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    pForm->setRowWrapPolicy(QFormLayout::WrapLongRows);  // names are not elided
    return pForm;
}

QVBoxLayout* MakeBox(QFrame* pFrame)
{
    constexpr int kMargin = 6;  // boxes are nested in a narrow pane
    auto* pLayout = new QVBoxLayout(pFrame);
    pLayout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    pFrame->setFrameShape(QFrame::StyledPanel);
    return pLayout;
}

}  // namespace explorer
