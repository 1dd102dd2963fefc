#pragma once

#include "ValueEditor.h"

#include <string>
#include <utility>
#include <vector>

class QFormLayout;
class QFrame;
class QVBoxLayout;

namespace explorer {

/// Edits the members of a record or the arguments of a call.
class RecordEditor : public ValueEditor {
    Q_OBJECT

public:
    RecordEditor(const catalogue::Type& type, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    void SetValue(const nlohmann::json& value, Origin origin) override;
    void Collect(const std::string& place, Unentered& unentered) const override;
    [[nodiscard]] bool IsValid() const override;
    [[nodiscard]] QList<QWidget*> TabStops() const override;

private:
    std::vector<std::pair<std::string, ValueEditor*>> m_members;
};

/// Adds a value to a form: plain values beside their label, others in a box.
ValueEditor* AddMember(QFormLayout* pForm, const catalogue::Type& type, const QString& name);

/// Creates a form layout with the alignment that all editors share.
QFormLayout* MakeForm(QWidget* pWidget);

/// Turns a frame into a box around related fields, and adds it to the layout.
QVBoxLayout* MakeBox(QFrame* pFrame);

}  // namespace explorer
