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

Reading Int(const std::string& key, const FieldName& field = {});
Reading Int64(const std::string& key, const FieldName& field = {});
Reading Double(const std::string& key, const FieldName& field = {});
Reading Bool(const std::string& key, const FieldName& field = {});
Reading Text(const std::string& key, const FieldName& field = {});

/// An array of texts; an element that is not a text is read as an empty one.
Reading Texts(const std::string& key, const FieldName& field = {});
/// An array of decimal texts; any other element is read as 0.
Reading NumbersOfTexts(const std::string& key, const FieldName& field = {});

/// Only checks that the key exists; a later step reads it. For example, Found("totalCount"), Found("pageData"),
/// Int("totalCount"), Records(..., "pageData", ...) stores a count only if its page exists.
Reading Found(const std::string& key);

/// The steps of an inner object, which fill the same record. An empty object fills nothing.
Reading Object(const std::string& key, const Readings& inner);

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
