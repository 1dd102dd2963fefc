#pragma once

#include "Records.h"
#include "SlowReading.h"

#include "support/Recorders.h"

#include <QJsonObject>

#include <optional>
#include <string>
#include <vector>

/// The steps in which a Parse reads a reply, in order. Each step names its key and the field that it fills, which has
/// the name of the key by default.
namespace family_testing {

struct Reading;
using Readings = std::vector<Reading>;

struct Reading {
    enum Type {
        Found,
        Int,
        Int64,
        Double,
        Bool,
        Text,
        Texts,
        NumbersOfTexts,
        Object,
        Records
    };

    Type type;
    std::string key;
    std::string field = {};
    Readings inner = {};  ///< steps of the inner object, or of each element
    Json freshElement = nullptr;
};

/// Used instead of a field name when the output is not a record but a simple value or a list.
inline const std::string kItself;

using FieldName = std::optional<std::string>;

/// Makes the step that reads a value of one type.
struct Single {
    Reading::Type type;

    Reading operator()(const std::string& key, const FieldName& field = {}) const
    {
        return {type, key, field.value_or(key)};
    }
};

inline constexpr Single Int{Reading::Int};
inline constexpr Single Int64{Reading::Int64};
inline constexpr Single Double{Reading::Double};
inline constexpr Single Bool{Reading::Bool};
inline constexpr Single Text{Reading::Text};
/// An array of texts; an element that is not a text is read as an empty one.
inline constexpr Single Texts{Reading::Texts};
/// An array of decimal texts; any other element is read as 0.
inline constexpr Single NumbersOfTexts{Reading::NumbersOfTexts};

/// Only checks that the key exists; a later step reads it. For example, Found("totalCount"), Found("pageData"),
/// Int("totalCount"), Records(..., "pageData", ...) stores a count only if its page exists.
inline Reading Found(const std::string& key)
{
    return {Reading::Found, key};
}

/// The steps of an inner object, which fill the same record. An empty object fills nothing.
inline Reading Object(const std::string& key, const Readings& inner)
{
    return {Reading::Object, key, kItself, inner};
}

/// An array of objects. The inner steps read each into a new Element, which is appended if it is complete.
template <typename Element>
Reading Records(const std::string& key, const Readings& inner, const FieldName& field = {})
{
    return {Reading::Records, key, field.value_or(key), inner, ToJson(Element{})};
}

/// A sequence of steps.
template <typename... Steps>
Readings InOrder(const Steps&... steps)
{
    return {steps...};
}

/// The reference implementation, which shares no code with the library. @return 0 or -1
int ReadReference(const QJsonObject& reply, const Readings& readings, Json& record, testing_support::LogLines& lines);

}  // namespace family_testing
