#pragma once

#include <catalogue/Type.h>

#include <nlohmann/json.hpp>

#include <QList>
#include <QWidget>

#include <string>
#include <vector>

namespace explorer {

/// The origin of a value in a form.
enum class Origin {
    Unseen,   ///< a default or an earlier value that the user has not entered
    Entered,  ///< given by the user: parts that differ from the previous value count as entered
    Known     ///< every part of it counts as entered
};

/// JSON pointers of the values that the user has not entered.
struct Unentered {
    std::vector<std::string> values;    ///< plain values, and unchanged lists
    std::vector<std::string> elements;  ///< added elements in which nothing was entered
};

/// Edits a value of a type of the catalogue.
class ValueEditor : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    [[nodiscard]] virtual nlohmann::json Value() const = 0;
    /// @param value fits the type
    virtual void SetValue(const nlohmann::json& value, Origin origin) = 0;
    [[nodiscard]] virtual bool IsValid() const = 0;
    /// Adds the values in this editor, whose own path is @p place.
    virtual void Collect(const std::string& place, Unentered& unentered) const = 0;
    /// Its focusable widgets, in the order on the screen.
    [[nodiscard]] virtual QList<QWidget*> TabStops() const = 0;

signals:
    void Changed();
    /// Elements were added, removed or moved.
    void Rearranged();
};

/// Creates an editor from the description. @param name name of the value
ValueEditor* MakeEditor(const catalogue::Type& type, const QString& name, QWidget* pParent);

}  // namespace explorer
