#pragma once

#include "Records.h"
#include "SlowReading.h"

#include "support/Recorders.h"

#include <QJsonObject>

#include <optional>
#include <string>
#include <vector>

/// What a Parse reads from a reply, step by step in its order. A step names its key and the field that it fills, which
/// has the key's name unless another is given.
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

/// In place of a field: the step fills the output itself, which is no record but a value or a list.
inline const std::string kItself;

using FieldName = std::optional<std::string>;

Reading Int(const std::string& key, const FieldName& field = {});
Reading Int64(const std::string& key, const FieldName& field = {});
Reading Double(const std::string& key, const FieldName& field = {});
Reading Bool(const std::string& key, const FieldName& field = {});
Reading Text(const std::string& key, const FieldName& field = {});

/// An array of plain texts; an element that is no text counts as an empty one.
Reading Texts(const std::string& key, const FieldName& field = {});
/// An array of decimal texts; an element that is no such text counts as 0.
Reading NumbersOfTexts(const std::string& key, const FieldName& field = {});

/// The key is looked up here and read only by a later step: Found("totalCount"), Found("pageData"), Int("totalCount"),
/// Records(..., "pageData", ...) is a count that is stored only when its page is there.
Reading Found(const std::string& key);

/// The steps of an inner object, which fill the same record; an empty one has nothing to fill.
Reading Object(const std::string& key, const Readings& inner);

/// An array of objects, each read by the inner steps into a new Element that is appended when it is complete.
template <typename Element>
Reading Records(const std::string& key, const Readings& inner, const FieldName& field = {})
{
    return {Reading::Records, key, field.value_or(key), inner, ToJson(Element{})};
}

/// Many steps.
template <typename... Steps>
Readings InTurn(const Steps&... steps)
{
    return {steps...};
}

/// Follows the steps as a plain reader that shares no code with the library. @return 0 or -1
int ReadReference(const QJsonObject& reply, const Readings& readings, Json& record, testing_support::LogLines& lines);

}  // namespace family_testing
