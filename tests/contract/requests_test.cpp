// The requests of the library are those of the document: path, query values in their order, and every key of a body.
#include "Document.h"

#include <e2e/rows/Rows.h>
#include <e2e/support/EndToEnd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <regex>
#include <set>

namespace contract_tests {
namespace {

using Places = std::set<std::string>;

/// Where the schema has values, such as "/channels/*/command".
Places PlacesOf(const Json& schema, const std::string& where = {})
{
    Places places;
    const Json properties = schema.value("properties", Json::object());
    for (const auto& [key, property] : properties.items()) {
        std::string place = where;
        places.merge(PlacesOf(property, place.append("/").append(key)));
    }
    const Json parts = schema.value("allOf", Json::array());
    for (const Json& part : parts) {
        places.merge(PlacesOf(part, where));
    }
    if (schema.contains("items")) {
        places.merge(PlacesOf(schema.at("items"), where + "/*"));
    }
    if (places.empty()) {
        places.insert(where);
    }
    return places;
}

Places PlacesIn(const std::string& body)
{
    static const std::regex index("/[0-9]+(?=/|$)");
    Places places;
    if (!body.empty()) {
        const Json values = Json::parse(body).flatten();
        for (const auto& entry : values.items()) {
            places.insert(std::regex_replace(entry.key(), index, "/*"));
        }
    }
    return places;
}

class Requests : public e2e::EndToEnd {
protected:
    static emulator::RecordedRequest RequestOf(const e2e::Row& row)
    {
        Platform().clearRequests();
        Run(row.call, row.arguments);
        const auto requests = Platform().requests();
        EXPECT_EQ(requests.size(), 1U) << row.Name();
        return requests.empty() ? emulator::RecordedRequest() : requests.front();
    }
};

TEST_F(Requests, MatchTheirOperation)
{
    for (const e2e::Row& row : e2e::Rows()) {
        const emulator::RecordedRequest request = RequestOf(row);
        const std::string path = request.target.substr(0, request.target.find('?'));
        const emulator::Operation* found = Document().find(request.method, path).operation;
        ASSERT_NE(found, nullptr) << row.Name() << ": " << request.method << " " << path;
        EXPECT_EQ(found->id, row.call);

        std::vector<std::string> told;
        for (const emulator::QueryParameter& parameter : found->query) {
            told.push_back(parameter.name);
        }
        std::vector<std::string> sent;
        for (const auto& value : request.query) {
            sent.push_back(value.first);
        }
        EXPECT_EQ(sent, told) << row.Name();

        EXPECT_EQ(!request.body.empty(), found->body.has_value()) << row.Name();
        if (found->body) {
            EXPECT_EQ(found->body->breach(Json::parse(request.body)), "") << row.Name();
        }
    }
}

TEST_F(Requests, SendEveryKeyOfABody)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        const emulator::Operation& operation = Document().operation(call.name);
        if (!operation.body) {
            continue;
        }
        Places sent;
        for (const e2e::Row& row : e2e::Rows()) {
            if (row.call == call.name) {
                sent.merge(PlacesIn(RequestOf(row).body));
            }
        }
        const Places told = PlacesOf(operation.body->document());
        Places missing;
        std::set_difference(told.begin(), told.end(), sent.begin(), sent.end(), std::inserter(missing, missing.end()));
        EXPECT_EQ(missing, Places()) << call.name << " never sends them";
    }
}

}  // namespace
}  // namespace contract_tests
