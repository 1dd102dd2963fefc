#pragma once

#include "Json.h"

#include <memory>
#include <string>

namespace emulator {

/// A compiled JSON Schema; validation is thread-safe.
class Schema {
public:
    /// @throws std::exception for an invalid schema.
    explicit Schema(Json document);
    ~Schema();
    Schema(Schema&&) noexcept;
    Schema& operator=(Schema&&) noexcept;
    Schema(const Schema&) = delete;
    Schema& operator=(const Schema&) = delete;

    [[nodiscard]] const Json& document() const { return m_document; }

    /// The first violation with its path, such as "/interval: expected string, got number"; empty for a valid value.
    [[nodiscard]] std::string breach(const Json& value) const;

private:
    struct Compiled;

    Json m_document;
    std::unique_ptr<Compiled> m_compiled;
};

/// Converts the value to the JSON types of the schema: "30" becomes 30 for an integer, "1" becomes true for a boolean.
/// Values that cannot be converted remain unchanged.
Json ConvertTo(const Json& schema, const Json& value);

/// Removes the keys that the schema does not permit.
Json ProjectOn(const Json& schema, const Json& value);

}  // namespace emulator
