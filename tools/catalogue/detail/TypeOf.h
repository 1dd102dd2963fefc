#pragma once

#include "../Type.h"
#include "Names.h"

#include <APIModuleGlobal.h>

#include <boost/describe.hpp>
#include <boost/mp11.hpp>
#include <boost/pfr.hpp>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace catalogue::detail {

template <typename T>
const Type& TypeOf();

template <typename T>
std::shared_ptr<void> Make()
{
    return std::make_shared<T>();
}

/// Describes a type. The general template is for records, whose fields come from BOOST_DESCRIBE_STRUCT.
template <typename T>
struct Describer {
    using Members = boost::describe::describe_members<T, boost::describe::mod_public>;
    static_assert(boost::mp11::mp_size<Members>::value == boost::pfr::tuple_size_v<T>,
                  "BOOST_DESCRIBE_STRUCT must list every field of the record");

    static Type Describe()
    {
        Type type{Kind::Record, Make<T>};
        type.name = Unqualified(TypeName<T>());
        boost::mp11::mp_for_each<Members>([&type](auto member) {
            using Member = decltype(member);
            using FieldType = std::remove_reference_t<decltype(std::declval<T&>().*Member::pointer)>;
            type.fields.push_back({Member::name, &TypeOf<FieldType>(),
                                   [](void* record) -> void* { return &(static_cast<T*>(record)->*Member::pointer); }});
        });
        return type;
    }
};

template <typename T>
struct Describer<std::vector<T>> {
    static Type Describe()
    {
        using List = std::vector<T>;
        Type type{Kind::List, Make<List>};
        type.element = &TypeOf<T>();
        type.list = {[](const void* list) { return static_cast<const List*>(list)->size(); },
                     [](void* list, std::size_t index) -> void* { return &static_cast<List*>(list)->at(index); },
                     [](void* list) -> void* { return &static_cast<List*>(list)->emplace_back(); }};
        return type;
    }
};

template <>
struct Describer<bool> {
    static Type Describe() { return {Kind::Bool, Make<bool>}; }
};

template <>
struct Describer<int> {
    static Type Describe() { return {Kind::Int, Make<int>}; }
};

template <>
struct Describer<APIModule::int64> {
    static Type Describe() { return {Kind::Int64, Make<APIModule::int64>}; }
};

template <>
struct Describer<double> {
    static Type Describe() { return {Kind::Double, Make<double>}; }
};

template <>
struct Describer<std::string> {
    static Type Describe() { return {Kind::Text, Make<std::string>}; }
};

template <typename T>
const Type& TypeOf()
{
    static const Type type = Describer<T>::Describe();
    return type;
}

}  // namespace catalogue::detail
