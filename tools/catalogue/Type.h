#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The library's calls as the tools see them: their names, arguments and records, and functions to run them.
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
    void* (*access)(void* record);  ///< returns the field in its record
};

/// Access to the elements of a list.
struct ListAccess {
    std::size_t (*size)(const void* list);
    void* (*at)(void* list, std::size_t index);
    void* (*append)(void* list);  ///< adds a default element and returns it
};

/// A type of arguments or records. Each type has exactly one object.
struct Type {
    Kind kind;
    std::shared_ptr<void> (*make)();  ///< returns a default value
    std::string_view name = {};       ///< of a record
    std::vector<Field> fields = {};   ///< of a record, in order of declaration
    const Type* element = nullptr;    ///< of a list
    ListAccess list = {};             ///< of a list

    [[nodiscard]] const Field* FindField(std::string_view fieldName) const;
};

/// "int", "TimeSyncConfig", "list of text" and so on.
std::string NameOf(const Type& type);

}  // namespace catalogue
