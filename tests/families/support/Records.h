#pragma once

#include <boost/describe.hpp>
#include <boost/mp11.hpp>
#include <boost/pfr/tuple_size.hpp>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

/// Converts records to and from JSON, each field under its name.
namespace family_testing {

using Json = nlohmann::json;

template <typename T>
inline constexpr bool IsRecord = boost::describe::has_describe_members<T>::value;

template <typename T>
inline constexpr bool IsVector = false;
template <typename T>
inline constexpr bool IsVector<std::vector<T>> = true;

template <typename Record, typename Visit>
void ForEachField(Visit visit)
{
    using Fields = boost::describe::describe_members<Record, boost::describe::mod_public>;
    static_assert(boost::mp11::mp_size<Fields>::value == boost::pfr::tuple_size_v<Record>, "a field is not described");
    boost::mp11::mp_for_each<Fields>(visit);
}

template <typename T>
Json ToJson(const T& value)
{
    if constexpr (IsRecord<T>) {
        Json object = Json::object();
        ForEachField<T>([&](auto field) { object[field.name] = ToJson(value.*field.pointer); });
        return object;
    } else if constexpr (IsVector<T>) {
        Json array = Json::array();
        for (const auto& element : value) {
            array.push_back(ToJson(element));
        }
        return array;
    } else {
        return value;
    }
}

/// Sets the fields that the JSON lists, and appends to lists.
template <typename T>
void FromJson(const Json& json, T& value)
{
    if constexpr (IsRecord<T>) {
        std::size_t nFields = 0;
        ForEachField<T>([&](auto field) {
            if (json.contains(field.name)) {
                FromJson(json.at(field.name), value.*field.pointer);
                ++nFields;
            }
        });
        if (nFields != json.size()) {
            throw std::logic_error("no such field: " + json.dump());
        }
    } else if constexpr (IsVector<T>) {
        for (const Json& element : json) {
            FromJson(element, value.emplace_back());
        }
    } else {
        json.get_to(value);
    }
}

/// Sets every field to a value other than its default, and every list to one element.
template <typename T>
void Fill(T& value)
{
    if constexpr (IsRecord<T>) {
        ForEachField<T>([&](auto field) { Fill(value.*field.pointer); });
    } else if constexpr (IsVector<T>) {
        Fill(value.emplace_back());
    } else if constexpr (std::is_same_v<T, std::string>) {
        value = "before";
    } else {
        value = T(77);
    }
}

}  // namespace family_testing
