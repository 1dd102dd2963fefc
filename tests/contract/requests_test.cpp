// The library sends the requests of the document: path, order of the query values, and every key of the body.
#include "Document.h"

#include <e2e/rows/Rows.h>
#include <e2e/support/EndToEnd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace contract_tests {
namespace {

/// The paths of the schema's values, such as "/channels/*/command".
Paths PathsOf(const Json& schema, const std::string& where = {})
{
    Paths paths;
    const Json properties = schema.value("properties", Json::object());
    for (const auto& [key, property] : properties.items()) {
        std::string path = where;
        paths.merge(PathsOf(property, path.append("/").append(key)));
    }
    const Json parts = schema.value("allOf", Json::array());
    for (const Json& part : parts) {
        paths.merge(PathsOf(part, where));
    }
    if (schema.contains("items")) {
        paths.merge(PathsOf(schema.at("items"), where + "/*"));
    }
    if (paths.empty()) {
        paths.insert(where);
    }
    return paths;
}

Paths PathsIn(const std::string& body)
{
    Paths paths;
    if (!body.empty()) {
        const Json values = Json::parse(body).flatten();
        for (const auto& entry : values.items()) {
            paths.insert(WithoutIndices(entry.key()));
        }
    }
    return paths;
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

        std::vector<std::string> documented;
        for (const emulator::QueryParameter& parameter : found->query) {
            documented.push_back(parameter.name);
        }
        std::vector<std::string> sent;
        for (const auto& value : request.query) {
            sent.push_back(value.first);
        }
        EXPECT_EQ(sent, documented) << row.Name();

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
        Paths sent;
        for (const e2e::Row& row : e2e::Rows()) {
            if (row.call == call.name) {
                sent.merge(PathsIn(RequestOf(row).body));
            }
        }
        const Paths documented = PathsOf(operation.body->document());
        Paths missing;
        std::set_difference(documented.begin(), documented.end(), sent.begin(), sent.end(),
                            std::inserter(missing, missing.end()));
        EXPECT_EQ(missing, Paths()) << "keys that " << call.name << " never sends";
    }
}

}  // namespace
}  // namespace contract_tests
