#pragma once

#include "Json.h"

#include <memory>
#include <string>

namespace emulator {

/// A JSON Schema that is compiled once and can then be asked from several threads.
class Schema {
public:
    /// @throws std::exception when the schema itself is wrong.
    explicit Schema(Json document);
    ~Schema();
    Schema(Schema&&) noexcept;
    Schema& operator=(Schema&&) noexcept;
    Schema(const Schema&) = delete;
    Schema& operator=(const Schema&) = delete;

    [[nodiscard]] const Json& document() const { return m_document; }

    /// What is wrong with the value and where, such as "/interval: expected string, got number"; empty for a valid one.
    [[nodiscard]] std::string breach(const Json& value) const;

private:
    struct Compiled;

    Json m_document;
    std::unique_ptr<Compiled> m_compiled;
};

/// The value in the JSON types that the schema demands: "30" becomes 30 where an integer is asked, "1" becomes true
/// where a boolean is. What cannot be converted stays as it is.
Json ConvertTo(const Json& schema, const Json& value);

/// The value without the keys that the schema has no room for.
Json ProjectOn(const Json& schema, const Json& value);

}  // namespace emulator
