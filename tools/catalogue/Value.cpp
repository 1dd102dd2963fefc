#include "Value.h"

#include "detail/Texts.h"

#include <APIModuleGlobal.h>

#include <nlohmann/json.hpp>

#include <limits>

namespace catalogue {
namespace {

using nlohmann::json;
using Pointer = json::json_pointer;
using APIModule::int64;

template <typename T>
T& As(void* data)
{
    return *static_cast<T*>(data);
}

json Write(const Type& type, void* data)
{
    switch (type.kind) {
    case Kind::Bool:
        return As<bool>(data);
    case Kind::Int:
        return As<int>(data);
    case Kind::Int64:
        return As<int64>(data);
    case Kind::Double:
        return As<double>(data);
    case Kind::Text:
        return As<std::string>(data);
    case Kind::Record: {
        json record = json::object();
        for (const Field& field : type.fields) {
            record[std::string(field.name)] = Write(*field.type, field.access(data));
        }
        return record;
    }
    case Kind::List: {
        json list = json::array();
        for (std::size_t index = 0; index < type.list.size(data); ++index) {
            list.push_back(Write(*type.element, type.list.at(data, index)));
        }
        return list;
    }
    }
    return nullptr;
}

QString KindOf(const json& value)
{
    switch (value.type()) {
    case json::value_t::boolean:
        return QStringLiteral("bool");
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
        return Texts::tr("integer");
    case json::value_t::number_float:
        return Texts::tr("number that is not a 64-bit integer");
    case json::value_t::string:
        return Texts::tr("text");
    case json::value_t::array:
        return Texts::tr("list");
    case json::value_t::object:
        return Texts::tr("object");
    default:
        return QStringLiteral("null");
    }
}

[[noreturn]] void Fail(const Pointer& where, const std::string& what)
{
    throw Mismatch(where.to_string() + ": " + what);
}

void Require(bool fits, const Type& type, const json& value, const Pointer& where)
{
    if (!fits) {
        //: Both are types
        Fail(where, Filled(Texts::tr("expected %1, got %2"), NameOf(type), Filled(KindOf(value))));
    }
}

template <typename Integer>
Integer ReadInteger(const Type& type, const json& value, const Pointer& where)
{
    Require(value.is_number_integer(), type, value, where);
    using Limits = std::numeric_limits<Integer>;
    const bool fits = value.is_number_unsigned()
                          ? value.get<unsigned long long>() <= static_cast<unsigned long long>(Limits::max())
                          : value.get<int64>() >= Limits::min();
    if (!fits) {
        //: %1 is a number, %2 a type
        Fail(where, Filled(Texts::tr("%1 is out of range for %2"), value.dump(), NameOf(type)));
    }
    return value.get<Integer>();
}

void Read(const Type& type, const json& value, void* data, const Pointer& where);

void ReadRecord(const Type& type, const json& value, void* data, const Pointer& where)
{
    Require(value.is_object(), type, value, where);
    for (const auto& [name, item] : value.items()) {
        const Field* field = type.FindField(name);
        if (field == nullptr) {
            //: %1 is a type
            Fail(where / name, Filled(Texts::tr("%1 has no such field"), NameOf(type)));
        }
        Read(*field->type, item, field->access(data), where / name);
    }
}

void ReadList(const Type& type, const json& value, void* data, const Pointer& where)
{
    Require(value.is_array(), type, value, where);
    for (std::size_t index = 0; index < value.size(); ++index) {
        Read(*type.element, value[index], type.list.append(data), where / index);
    }
}

void Read(const Type& type, const json& value, void* data, const Pointer& where)
{
    switch (type.kind) {
    case Kind::Bool:
        Require(value.is_boolean(), type, value, where);
        As<bool>(data) = value.get<bool>();
        break;
    case Kind::Int:
        As<int>(data) = ReadInteger<int>(type, value, where);
        break;
    case Kind::Int64:
        As<int64>(data) = ReadInteger<int64>(type, value, where);
        break;
    case Kind::Double:
        Require(value.is_number(), type, value, where);
        As<double>(data) = value.get<double>();
        break;
    case Kind::Text:
        Require(value.is_string(), type, value, where);
        As<std::string>(data) = value.get<std::string>();
        break;
    case Kind::Record:
        ReadRecord(type, value, data, where);
        break;
    case Kind::List:
        ReadList(type, value, data, where);
        break;
    }
}

}  // namespace

json Value::ToJson() const
{
    return Write(*m_type, m_data.get());
}

void Value::Assign(const json& value, const std::string& where)
{
    const std::shared_ptr<void> fresh = m_type->make();
    Read(*m_type, value, fresh.get(), Pointer(where));
    m_data = fresh;
}

}  // namespace catalogue
