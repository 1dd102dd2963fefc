// The list of calls that docs/wire-format.md ends with is that of the document and of the library.
#include "Document.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace contract_tests {
namespace {

std::string_view LastName(std::string_view fullName)
{
    return fullName.substr(fullName.rfind(':') + 1);
}

/// A link to the function's place in the reference.
std::string Reference(std::string_view function)
{
    return std::string("[").append(LastName(function)).append("](@ref ").append(function).append(")");
}

std::string Line(const catalogue::Call& call)
{
    const emulator::Operation& operation = Document().operation(call.name);
    const std::string name = call.name.substr(call.family.size() + 1);
    std::string line = "| [" + name + "](contract/index.html#operation/" + call.name + ") | " + operation.method +
                       " `" + operation.path + "` | " + Reference(call.packName) + " | ";
    if (call.parse != nullptr) {
        line += Reference(call.parseName) + ": " + NameOf(*call.result) + " ";
    }
    return line + "|\n";
}

std::string ListOfCalls()
{
    std::string list;
    std::string family;
    std::string_view subject;
    for (const catalogue::Call& call : catalogue::Calls()) {
        if (call.family != family) {
            list += "\n## " + call.family + "\n";
        }
        if (call.subject != subject) {
            list.append("\n### ").append(call.subject).append("\n\n");
            list += "| Call | Request | Pack | Parse and what it fills |\n|---|---|---|---|\n";
        }
        family = call.family;
        subject = call.subject;
        list += Line(call);
    }
    return list;
}

std::string Text(const char* fileName)
{
    std::ifstream file(fileName);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(WireFormat, ListsTheCalls)
{
    const std::string page = Text(PAGE_FILE);
    const std::size_t begin = page.find("\n## BRMS\n");
    ASSERT_NE(begin, std::string::npos);
    EXPECT_EQ(page.substr(begin), ListOfCalls()) << "docs/wire-format.md has to end with what the test expects";
}

}  // namespace
}  // namespace contract_tests
