// Compares the catalogue with what the library exports and declares.
#include "support/Program.h"

#include <catalogue/Call.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

std::set<std::string> ExportedFunctions()
{
    static const std::regex function(R"(APIModule::C[A-Z]+Module::(Pack|Parse|Pares)\w*(?=\())");
    const QStringList arguments = {QStringLiteral("--dynamic"), QStringLiteral("--demangle"),
                                   QStringLiteral("--defined-only"), QStringLiteral(LIBRARY_FILE)};
    const std::string symbols = testing_support::RunProgram(QStringLiteral(NM), arguments).out;
    std::set<std::string> functions;
    for (std::sregex_iterator match(symbols.begin(), symbols.end(), function), end; match != end; ++match) {
        functions.insert(match->str());
    }
    return functions;
}

std::set<std::string> CataloguedFunctions()
{
    std::set<std::string> functions;
    for (const catalogue::Call& call : catalogue::Calls()) {
        functions.emplace(call.packName);
        if (call.parse != nullptr) {
            functions.emplace(call.parseName);
        }
    }
    return functions;
}

/// "BRMS.GetTimeSyncConfig" for each constant in the library's headers.
std::multiset<std::string> DeclaredCalls()
{
    static const std::regex constant(R"(inline constexpr Call<[^;]*> (\w+);)");
    std::multiset<std::string> calls;
    for (const auto& file : std::filesystem::recursive_directory_iterator(HEADERS_FOLDER)) {
        const std::string family = file.path().parent_path().filename();
        if (file.path().filename() != family + "Calls.h") {
            continue;
        }
        std::ifstream stream(file.path());
        const std::string text(std::istreambuf_iterator<char>(stream), {});
        for (std::sregex_iterator match(text.begin(), text.end(), constant), end; match != end; ++match) {
            calls.insert(family + "." + match->str(1));
        }
    }
    return calls;
}

std::vector<std::string> Difference(const std::set<std::string>& left, const std::set<std::string>& right)
{
    std::vector<std::string> difference;
    std::set_difference(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(difference));
    return difference;
}

TEST(Completeness, CatalogueMatchesTheExportedFunctions)
{
    const auto exported = ExportedFunctions();
    const auto catalogued = CataloguedFunctions();
    EXPECT_EQ(exported.count("APIModule::CBRMSModule::PacketGetTimeSyncConfig"), 1U)
        << "the symbols are not those of the library";
    EXPECT_EQ(Difference(exported, catalogued), std::vector<std::string>()) << "not in the catalogue";
    EXPECT_EQ(Difference(catalogued, exported), std::vector<std::string>()) << "not in the library";
}

TEST(Completeness, EveryConstantHasOneCallInTheCatalogue)
{
    std::multiset<std::string> catalogued;
    for (const catalogue::Call& call : catalogue::Calls()) {
        catalogued.insert(call.name);
    }
    EXPECT_EQ(catalogued.size(), 85U);
    EXPECT_EQ(catalogued, DeclaredCalls());
}

TEST(Completeness, EveryPackBelongsToOneCall)
{
    std::multiset<std::string_view> packs;
    for (const catalogue::Call& call : catalogue::Calls()) {
        packs.insert(call.packName);
        EXPECT_EQ(packs.count(call.packName), 1U) << call.packName;
    }
}

TEST(Completeness, EveryNameFindsItsCall)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        EXPECT_EQ(catalogue::FindCall(call.name), &call) << call.name << " names two calls";
    }
}

TEST(Completeness, EveryCallIsDescribed)
{
    static const std::regex name("(BRMS|DMS|IAMS|IPMS|OBMS|OMMS)\\.[A-Z][A-Za-z]+");
    for (const catalogue::Call& call : catalogue::Calls()) {
        EXPECT_TRUE(std::regex_match(call.name, name)) << call.name;
        EXPECT_EQ(call.name.rfind(call.family + ".", 0), 0U) << call.name;
        EXPECT_FALSE(call.subject.empty()) << call.name;
        EXPECT_FALSE(call.summary.empty()) << call.name;
        EXPECT_EQ(call.summary.find('\n'), std::string_view::npos) << call.name;
    }
}

TEST(Completeness, ArgumentsOfACallHaveDifferentNames)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        for (const catalogue::Argument& argument : call.arguments) {
            EXPECT_FALSE(argument.name.empty()) << call.name;
            EXPECT_EQ(argument.name.find_first_of("= @{"), std::string_view::npos) << call.name;
            EXPECT_EQ(call.FindArgument(argument.name), &argument)
                << call.name << " has two arguments named " << argument.name;
        }
    }
}

}  // namespace
