#pragma once

#include "ValueEditor.h"

#include <string>
#include <utility>
#include <vector>

class QFormLayout;
class QFrame;
class QVBoxLayout;

namespace explorer {

/// The members of a record, or the arguments of a call, under each other.
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

/// Adds a value to a form: plain ones behind their label, others in a box of their own.
ValueEditor* AddMember(QFormLayout* pForm, const catalogue::Type& type, const QString& name);

/// A form whose labels and fields stand alike wherever it is.
QFormLayout* MakeForm(QWidget* pWidget);

/// Makes a frame the box of what belongs together; the layout takes it.
QVBoxLayout* MakeBox(QFrame* pFrame);

}  // namespace explorer
