#include "Handlers.h"

#include "families/Families.h"
#include "Text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <iterator>
#include <utility>

namespace emulator {
namespace {

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

/// Most identifiers are strings, but some are numbers.
bool IsIdentifiedBy(const Json& element, const std::string& field, const std::string& id)
{
    const Json& value = element.at(field);
    return value.is_string() ? value == id : value.dump() == id;
}

template <typename List>
auto PositionOf(List& list, const std::string& field, const std::string& id)
{
    return std::find_if(list.begin(), list.end(),
                        [&](const Json& element) { return IsIdentifiedBy(element, field, id); });
}

/// The number at the start of a text; 0 without one.
std::uint64_t LeadingNumber(const std::string& text)
{
    std::uint64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// One more than the highest identifier so far; identifiers of deleted elements are not reused.
std::string NewIdentifier(const Call& call, const Collection& collection)
{
    Json& last = call.state[StatePath("/lastIdentifiers")][collection.list.to_string()];
    std::uint64_t highest = last.is_null() ? 0 : last.get<std::uint64_t>();
    for (const Json& element : call.state.at(collection.list)) {
        highest = std::max(highest, LeadingNumber(element.at(collection.identifier)));
    }
    last = highest + 1;
    return last.dump();
}

Json Filtered(const Json& list, const std::vector<Filter>& filters, const Call& call)
{
    Json kept = Json::array();
    for (const Json& element : list) {
        if (std::all_of(filters.begin(), filters.end(), [&](const Filter& filter) { return filter(element, call); })) {
            kept.push_back(element);
        }
    }
    return kept;
}

/// Reads a page number or size, which is a number in a query and a string in a body.
std::size_t CountOf(const Call& call, const std::string& name)
{
    const std::string text = ValueOf(call, name);
    const bool isCount =
        !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
    if (!isCount || text.size() > 9) {
        throw Refusal(code::InvalidParameter, name + ": expected a count, got '" + text + "'");
    }
    return std::stoul(text);
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
        const std::vector<std::string> wanted = Listed(ValueOf(call, name));
        return wanted.empty() || std::count(wanted.begin(), wanted.end(), element.value(field, "")) > 0;
    };
}

Filter InOrganisation()
{
    return [](const Json& element, const Call& call) {
        const std::string wanted = ValueOf(call, "orgCode");
        const std::string code = element.value("orgCode", "");
        return IsOn(ValueOf(call, "containChild")) ? StartsWith(code, wanted) : wanted.empty() || code == wanted;
    };
}

Json& ElementOf(Json& list, const std::string& field, const std::string& id)
{
    const auto found = PositionOf(list, field, id);
    if (found == list.end()) {
        RefuseUnknown(id);
    }
    return *found;
}

Json& Collection::find(State& state, const std::string& id) const
{
    return ElementOf(state.at(list), identifier, id);
}

bool Collection::has(State& state, const std::string& id) const
{
    const Json& elements = state.at(list);
    return PositionOf(elements, identifier, id) != elements.end();
}

Json RefuseUnknown(const std::string& id)
{
    throw Refusal(code::UnknownObject, "object '" + id + "' does not exist");
}

const std::string& PathValue(const Call& call)
{
    return call.path.begin()->second;
}

std::string ValueOf(const Call& call, const std::string& name)
{
    for (const Json* values : {&call.query, &call.body}) {
        if (values->is_object() && values->contains(name)) {
            const Json& value = values->at(name);
            return value.is_string() ? value.get<std::string>() : value.dump();
        }
    }
    return {};
}

std::vector<std::string> Listed(const std::string& text)
{
    std::vector<std::string> parts = Split(text, ',');
    parts.erase(std::remove(parts.begin(), parts.end(), std::string()), parts.end());
    return parts;
}

bool IsOn(const std::string& text)
{
    return text == "1" || text == "true";
}

Json BodyAsRead(const Call& call, const std::string& reader)
{
    const Operation* operation =
        reader.empty() ? call.contract.readerOf(call.operation) : &call.contract.operation(reader);
    if (operation == nullptr) {
        throw ContractError("no operation reads what " + call.operation.id + " writes");
    }
    return ConvertTo(operation->dataSchema, call.body);
}

std::string NextNumber(const Call& call, const std::string& name)
{
    Json& number = call.state[StatePath("/numbers")][name];
    number = number.is_null() ? 1 : number.get<int>() + 1;
    return number.dump();
}

Json RecordAccepted(const Call& call)
{
    call.state[StatePath("/accepted") / call.operation.id].push_back(
        Json{{"path", call.path}, {"query", call.query}, {"body", call.body}});
    return Json::object();
}

Handler ReadDocument(const StatePath& path)
{
    return {[path](const Call& call) { return call.state.at(path); }, path.to_string()};
}

Handler WriteDocument(const StatePath& path)
{
    return [path](const Call& call) {
        call.state.at(path).update(BodyAsRead(call));
        return Json::object();
    };
}

Handler ReadEntry(const StatePath& path, const Collection& owners)
{
    return {[path, owners](const Call& call) {
                const std::string& id = PathValue(call);
                owners.find(call.state, id);
                const Json& entries = call.state.at(path);
                return entries.contains(id) ? entries.at(id) : entries.at("*");
            },
            path.to_string() + "/{}"};
}

Handler WriteEntry(const StatePath& path, const Collection& owners)
{
    return [path, owners](const Call& call) {
        owners.find(call.state, PathValue(call));
        call.state.at(path)[PathValue(call)] = BodyAsRead(call);
        return Json::object();
    };
}

Handler ReadElement(const Collection& collection)
{
    return {[collection](const Call& call) { return collection.find(call.state, PathValue(call)); },
            collection.list.to_string() + "/[]"};
}

Handler List(const StatePath& path, std::vector<Filter> filters)
{
    return {[path, filters = std::move(filters)](const Call& call) {
                return Json{{"results", Filtered(call.state.at(path), filters, call)}};
            },
            path.to_string() + "/[]", "/properties/results/items"};
}

Handler Page(const StatePath& path, std::vector<Filter> filters)
{
    const auto pageOf = [path, filters = std::move(filters)](const Call& call) {
        const Json all = Filtered(call.state.at(path), filters, call);
        const std::size_t page = std::max<std::size_t>(CountOf(call, "page"), 1);
        const std::size_t size = CountOf(call, "pageSize");
        const std::size_t begin = std::min((page - 1) * size, all.size());
        const std::size_t end = std::min(begin + size, all.size());
        Json data = Json::array();
        std::copy(all.begin() + static_cast<std::ptrdiff_t>(begin), all.begin() + static_cast<std::ptrdiff_t>(end),
                  std::back_inserter(data));
        return Json{{"totalCount", all.size()}, {"pageData", data}};
    };
    return {pageOf, path.to_string() + "/[]", "/properties/pageData/items"};
}

Handler Create(const Collection& collection, const std::string& reader)
{
    return [collection, reader](const Call& call) {
        Json element = BodyAsRead(call, reader);
        element[collection.identifier] = NewIdentifier(call, collection);
        Json& list = call.state.at(collection.list);
        list.push_back(std::move(element));
        return Json{{collection.identifier, list.back().at(collection.identifier)}};
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
        Json& list = call.state.at(collection.list);
        Json left = list;
        for (const std::string& id : Listed(ValueOf(call, "ids"))) {
            const auto position = PositionOf(left, collection.identifier, id);
            if (position == left.end()) {
                RefuseUnknown(id);
            }
            left.erase(position);
        }
        list = std::move(left);
        return Json::object();
    };
}

Handler AcceptFor(const Collection& owners)
{
    return [owners](const Call& call) {
        owners.find(call.state, PathValue(call));
        return RecordAccepted(call);
    };
}

Json ReplyWithExample(const Call& call)
{
    if (call.operation.method != "GET") {
        RecordAccepted(call);
    }
    return call.operation.dataExample();
}

const HandlerTable& AllHandlers()
{
    static const HandlerTable all = [] {
        HandlerTable table;
        for (HandlerTable family : {families::Brms(), families::Dms(), families::Iams(), families::Ipms(),
                                    families::Obms(), families::Omms()}) {
            table.merge(family);
        }
        return table;
    }();
    return all;
}

}  // namespace emulator
