#pragma once

#include "Type.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>
#include <stdexcept>
#include <utility>

namespace catalogue {

/// JSON that does not fit the type that it is for; the text says what was wrong and where.
class Mismatch : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// A value of a type that is known only at run time.
class Value {
public:
    /// A fresh value: empty, 0, false, or the defaults of a record's fields.
    explicit Value(const Type& type) : Value(type, type.make()) {}
    /// @p data is a C++ object of the type.
    Value(const Type& type, std::shared_ptr<void> data) : m_type(&type), m_data(std::move(data)) {}

    [[nodiscard]] const Type& GetType() const { return *m_type; }
    /// The C++ object.
    [[nodiscard]] void* Data() const { return m_data.get(); }

    /// Bytes of a text that are not UTF-8 go in as they are: dump the result with an error handler.
    [[nodiscard]] nlohmann::json ToJson() const;

    /// Takes the place of what the value held. Fields of a record that @p value leaves out get their defaults; anything
    /// that is not of the type throws Mismatch with @p where, a JSON pointer, before its own place in the text.
    void Assign(const nlohmann::json& value, const std::string& where);

private:
    const Type* m_type;
    std::shared_ptr<void> m_data;
};

}  // namespace catalogue
