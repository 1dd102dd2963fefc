#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What the tools know of the library's calls: their names, their arguments and records, and how to run them.
namespace catalogue {

enum class Kind {
    Bool,
    Int,
    Int64,
    Double,
    Text,
    Record,
    List
};

struct Type;

/// A field of a record.
struct Field {
    std::string_view name;
    const Type* type;
    void* (*access)(void* record);  ///< the field in its record
};

/// How the elements of a list are reached.
struct ListAccess {
    std::size_t (*size)(const void* list);
    void* (*at)(void* list, std::size_t index);
    void* (*append)(void* list);  ///< adds a fresh element and returns it
};

/// A type that arguments and records are made of. There is one object for each.
struct Type {
    Kind kind;
    std::shared_ptr<void> (*make)();  ///< a fresh value
    std::string_view name = {};       ///< of a record
    std::vector<Field> fields = {};   ///< of a record, in their order
    const Type* element = nullptr;    ///< of a list
    ListAccess list = {};             ///< of a list

    [[nodiscard]] const Field* FindField(std::string_view fieldName) const;
};

/// "int", "TimeSyncConfig", "list of text" and so on.
std::string NameOf(const Type& type);

}  // namespace catalogue
