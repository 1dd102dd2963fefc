#pragma once

#include <catalogue/Type.h>

#include <nlohmann/json.hpp>

#include <QList>
#include <QWidget>

#include <string>
#include <vector>

namespace explorer {

/// Where a value of a form comes from.
enum class Origin {
    Unseen,   ///< a fresh value, or one of an earlier use: the user has not entered it
    Entered,  ///< given by the user: what differs from the value before has been entered
    Known     ///< each value in it is meant as it is
};

/// What the user has not entered, as JSON pointers.
struct Unentered {
    std::vector<std::string> values;    ///< plain values, and lists that are as they came
    std::vector<std::string> elements;  ///< elements that were added, and in which nothing was entered
};

/// Edits a value of a type of the catalogue.
class ValueEditor : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    [[nodiscard]] virtual nlohmann::json Value() const = 0;
    /// @p value fits the type.
    virtual void SetValue(const nlohmann::json& value, Origin origin) = 0;
    [[nodiscard]] virtual bool IsValid() const = 0;
    /// Adds what is in it; @p place is its own place.
    virtual void Collect(const std::string& place, Unentered& unentered) const = 0;
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
