#include "Handlers.h"

#include "families/Families.h"
#include "Text.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace emulator
{
namespace
{

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

std::vector<std::string> NonEmptyParts(const std::string& text)
{
    std::vector<std::string> parts = Split(text, ',');
    parts.erase(std::remove(parts.begin(), parts.end(), std::string()), parts.end());
    return parts;
}

[[noreturn]] void RefuseUnknown(const std::string& id)
{
    throw Refusal(code::UnknownObject, "object '" + id + "' does not exist");
}

Json::iterator PositionOf(Json& list, const std::string& field, const std::string& id)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const Json& element) { return element.value(field, "") == id; });
    if (found == list.end())
    {
        RefuseUnknown(id);
    }
    return found;
}

Json Filtered(const Json& list, const std::vector<Filter>& filters, const Call& call)
{
    Json kept = Json::array();
    for (const Json& element : list)
    {
        if (std::all_of(filters.begin(), filters.end(), [&](const Filter& passes) { return passes(element, call); }))
        {
            kept.push_back(element);
        }
    }
    return kept;
}

/// Page number and size go as numbers in a query and as text in a body.
std::size_t CountOf(const Call& call, const std::string& name)
{
    const std::string text = ValueOf(call, name);
    const bool isCount =
        !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
    if (!isCount || text.size() > 9)
    {
        throw Refusal(code::InvalidParameter, name + ": expected a count, got '" + text + "'");
    }
    return std::stoul(text);
}

Json AnswerAt(const Call& call, const Place& answer)
{
    return answer.empty() ? Json::object() : call.state.at(answer);
}

}  // namespace

Filter HasKeyword(std::vector<std::string> fields)
{
    return [fields = std::move(fields)](const Json& element, const Call& call) {
        const std::string keyword = Lower(ValueOf(call, "keyword"));
        return std::any_of(fields.begin(), fields.end(), [&](const std::string& field) {
            return Lower(element.value(field, "")).find(keyword) != std::string::npos;
        });
    };
}

Filter Equals(const std::string& name)
{
    return [name](const Json& element, const Call& call) {
        const std::string wanted = ValueOf(call, name);
        return wanted.empty() || element.value(name, "") == wanted;
    };
}

Filter OneOf(const std::string& name, const std::string& field)
{
    return [name, field](const Json& element, const Call& call) {
        const std::vector<std::string> wanted = NonEmptyParts(ValueOf(call, name));
        return wanted.empty() || std::count(wanted.begin(), wanted.end(), element.value(field, "")) > 0;
    };
}

Json& Collection::find(Json& state, const std::string& id) const
{
    return *PositionOf(state.at(list), identifier, id);
}

const std::string& PathValue(const Call& call)
{
    return call.path.begin()->second;
}

std::string ValueOf(const Call& call, const std::string& name)
{
    for (const Json* values : {&call.query, &call.body})
    {
        if (values->is_object() && values->contains(name))
        {
            const Json& value = values->at(name);
            return value.is_string() ? value.get<std::string>() : value.dump();
        }
    }
    return {};
}

Json BodyAsRead(const Call& call, const std::string& reader)
{
    const Operation* operation =
        reader.empty() ? call.contract.readerOf(call.operation) : &call.contract.operation(reader);
    if (operation == nullptr)
    {
        throw ContractError("no operation reads what " + call.operation.id + " writes");
    }
    return ConvertTo(operation->dataSchema, call.body);
}

void Remember(const Call& call)
{
    call.state[Place("/accepted") / call.operation.id].push_back(
        Json{{"path", call.path}, {"query", call.query}, {"body", call.body}});
}

Handler ReadDocument(const Place& place)
{
    return [place](const Call& call) { return call.state.at(place); };
}

Handler WriteDocument(const Place& place)
{
    return [place](const Call& call) {
        call.state.at(place).update(BodyAsRead(call));
        return Json::object();
    };
}

Handler ReadEntry(const Place& place, const Collection& owners)
{
    return [place, owners](const Call& call) {
        const std::string& id = PathValue(call);
        owners.find(call.state, id);
        const Json& entries = call.state.at(place);
        return entries.contains(id) ? entries.at(id) : entries.at("*");
    };
}

Handler WriteEntry(const Place& place, const Collection& owners)
{
    return [place, owners](const Call& call) {
        owners.find(call.state, PathValue(call));
        call.state.at(place)[PathValue(call)] = BodyAsRead(call);
        return Json::object();
    };
}

Handler ReadElement(const Collection& collection)
{
    return [collection](const Call& call) { return collection.find(call.state, PathValue(call)); };
}

Handler List(const Place& place, std::vector<Filter> filters)
{
    return [place, filters = std::move(filters)](const Call& call) {
        return Json{{"results", Filtered(call.state.at(place), filters, call)}};
    };
}

Handler Page(const Place& place, std::vector<Filter> filters)
{
    return [place, filters = std::move(filters)](const Call& call) {
        const Json all = Filtered(call.state.at(place), filters, call);
        const std::size_t page = std::max<std::size_t>(CountOf(call, "page"), 1);
        const std::size_t size = CountOf(call, "pageSize");
        const std::size_t begin = std::min((page - 1) * size, all.size());
        const std::size_t end = std::min(begin + size, all.size());
        Json data = Json::array();
        std::copy(all.begin() + static_cast<std::ptrdiff_t>(begin), all.begin() + static_cast<std::ptrdiff_t>(end),
                  std::back_inserter(data));
        return Json{{"totalCount", all.size()}, {"pageData", data}};
    };
}

Handler Create(const Collection& collection, const std::string& reader, const std::string& idPrefix)
{
    return [collection, reader, idPrefix](const Call& call) {
        Json& list = call.state.at(collection.list);
        Json& count = call.state[Place("/created") / idPrefix];
        count = count.is_number() ? count.get<int>() + 1 : 1;
        const std::string id = idPrefix + "-new-" + count.dump();
        Json element = BodyAsRead(call, reader);
        element[collection.identifier] = id;
        list.push_back(std::move(element));
        return Json{{collection.identifier, id}};
    };
}

Handler Update(const Collection& collection)
{
    return [collection](const Call& call) {
        collection.find(call.state, PathValue(call)).update(BodyAsRead(call));
        return Json::object();
    };
}

Handler Delete(const Collection& collection)
{
    return [collection](const Call& call) {
        const std::vector<std::string> ids = NonEmptyParts(ValueOf(call, "ids"));
        Json& list = call.state.at(collection.list);
        Json left = list;
        for (const std::string& id : ids)
        {
            left.erase(PositionOf(left, collection.identifier, id));
        }
        list = std::move(left);
        return Json::object();
    };
}

Handler Accept(const Place& answer)
{
    return [answer](const Call& call) {
        Remember(call);
        return AnswerAt(call, answer);
    };
}

Handler AcceptFor(const Collection& owners, const Place& answer)
{
    return [owners, answer](const Call& call) {
        owners.find(call.state, PathValue(call));
        Remember(call);
        return AnswerAt(call, answer);
    };
}

const HandlerTable& AllHandlers()
{
    static const HandlerTable all = [] {
        HandlerTable table;
        for (HandlerTable family : {families::Brms()})
        {
            table.merge(family);
        }
        return table;
    }();
    return all;
}

}  // namespace emulator
