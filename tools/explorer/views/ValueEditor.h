#pragma once

#include <catalogue/Type.h>

#include <nlohmann/json.hpp>

#include <QList>
#include <QWidget>

namespace explorer {

/// Edits a value of a type of the catalogue.
class ValueEditor : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    [[nodiscard]] virtual nlohmann::json Value() const = 0;
    /// @p value fits the type.
    virtual void SetValue(const nlohmann::json& value) = 0;
    [[nodiscard]] virtual bool IsValid() const = 0;
    /// What the keyboard reaches in it, in the order in which it stands on the screen.
    [[nodiscard]] virtual QList<QWidget*> TabStops() const = 0;

signals:
    void Changed();
    /// Elements came, went or changed places.
    void Rearranged();
};

/// Made of the description alone; @p name is what the value is called.
ValueEditor* MakeEditor(const catalogue::Type& type, const QString& name, QWidget* pParent);

}  // namespace explorer
