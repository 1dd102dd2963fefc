#pragma once

#include "Type.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>
#include <stdexcept>
#include <utility>

namespace catalogue {

/// JSON that does not match the expected type; the text says what is wrong and where.
class Mismatch : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// A value of a type that is known only at run time.
class Value {
public:
    /// A default value: empty, 0, false, or a record with its default fields.
    explicit Value(const Type& type) : Value(type, type.make()) {}
    /// @p data is a C++ object of the type.
    Value(const Type& type, std::shared_ptr<void> data) : m_type(&type), m_data(std::move(data)) {}

    [[nodiscard]] const Type& GetType() const { return *m_type; }
    /// The C++ object.
    [[nodiscard]] void* Data() const { return m_data.get(); }

    /// Does not check texts for valid UTF-8; dump the result with an error handler.
    [[nodiscard]] nlohmann::json ToJson() const;

    /// Replaces the value. Fields of a record that are missing in @p value get their defaults. Throws Mismatch for a
    /// value of the wrong type; its text begins with @p where and the path of the wrong value, as one JSON pointer.
    void Assign(const nlohmann::json& value, const std::string& where);

private:
    const Type* m_type;
    std::shared_ptr<void> m_data;
};

}  // namespace catalogue
