// Lists of a platform with more data are read completely.
#include "rows/Rows.h"
#include "support/EndToEnd.h"
#include "support/Rows.h"

#include <State.h>

#include <gtest/gtest.h>

namespace e2e {
namespace {

constexpr int kScale = 20;

struct ListRow {
    std::string name;
    std::string call;
    std::string seed;    ///< JSON pointer to the seeded list, which the emulator multiplies by kScale
    std::string inside;  ///< JSON pointer to the list in the record
};

/// The number of elements at a JSON pointer in the seed files.
std::size_t SeededCount(const std::string& pointer)
{
    static const Json seeds = emulator::LoadSeeds(emulator::DefaultShareFolder() / "seed");
    return seeds.at(Json::json_pointer(pointer)).size();
}

class LargerSet : public EndToEnd {
protected:
    static void SetUpTestSuite()
    {
        emulator::Options options;
        options.scale = kScale;
        Start(options);
    }
};

class LargerList : public LargerSet, public testing::WithParamInterface<ListRow> {};

TEST_P(LargerList, IsReadCompletely)
{
    const Row& row = RowOf(GetParam().call);
    const catalogue::Outcome outcome = Run(row.call, row.arguments);
    ASSERT_TRUE(outcome) << outcome.Code() << outcome.Text().toStdString();
    EXPECT_EQ(outcome.record, row.record(Platform().state()));
    EXPECT_EQ(outcome.record.at(Json::json_pointer(GetParam().inside)).size(), kScale * SeededCount(GetParam().seed));
}

INSTANTIATE_TEST_SUITE_P(
    Lists, LargerList,
    testing::Values(ListRow{"UserGroups", "BRMS.GetUserGroupList", "/brms/userGroups", ""},
                    ListRow{"QuickCommands", "BRMS.GetQuickCommands", "/brms/quickCommands", ""},
                    ListRow{"Disks", "BRMS.GetDiskWarm", "/brms/warnDisks", ""},
                    ListRow{"ServersOutOfMemory", "BRMS.GetMemoryOutOfServerList", "/brms/outOfMemory", ""},
                    ListRow{"NetWorks", "BRMS.GetNetWorks", "/brms/networks", "/netWorks"},
                    ListRow{"GeneralEvents", "BRMS.GetGeneralEvents", "/brms/generalEvents", ""},
                    ListRow{"SimpleParkingLots", "IPMS.GetSimpleParkingLots", "/ipms/parkingLots", ""},
                    ListRow{"DetailParkingLots", "IPMS.GetDetailParkingLots", "/ipms/parkingLots", ""}),
    testing_support::RowName());

TEST_F(LargerSet, AllDevicesAreCounted)
{
    const Row& row = RowOf("BRMS.GetDeviceCategoryCount");
    const catalogue::Outcome outcome = Run(row.call, row.arguments);
    ASSERT_TRUE(outcome) << outcome.Code() << outcome.Text().toStdString();
    EXPECT_EQ(outcome.record, row.record(Platform().state()));
    std::size_t devices = 0;
    for (const Json& category : outcome.record) {
        devices += category.at("deviceCount").get<std::size_t>();
    }
    EXPECT_EQ(devices, kScale * SeededCount("/inventory/devices"));
}

struct PagedRow {
    std::string name;
    std::string call;
    std::string argument;
    std::string seed;
    std::string inside;  ///< JSON pointer to the page's elements in the record
    bool counted;        ///< whether the record has the total number of elements
    Keys keys;           ///< the keys of an element
};

PagedRow Paged(const char* name, const char* call, const char* argument, const char* seed, const char* inside,
               bool counted, const Keys& keys)
{
    return {name, call, argument, seed, inside, counted, keys};
}

class LargerPages : public LargerSet, public testing::WithParamInterface<PagedRow> {};

TEST_P(LargerPages, AddUpToTheCompleteList)
{
    constexpr std::size_t kPageSize = 9;
    const PagedRow& row = GetParam();
    const Json expected = PickEach(Platform().state().at(Json::json_pointer(row.seed)), row.keys);
    ASSERT_EQ(expected.size(), kScale * SeededCount(row.seed));

    Json all = Json::array();
    for (std::size_t page = 1; all.size() < expected.size(); ++page) {
        const Json query = {{"page", page}, {"pageSize", kPageSize}};
        const catalogue::Outcome outcome = Run(row.call, {{row.argument, query}});
        ASSERT_TRUE(outcome) << outcome.Code() << outcome.Text().toStdString();
        const Json& elements = outcome.record.at(Json::json_pointer(row.inside));
        ASSERT_EQ(elements.size(), std::min(kPageSize, expected.size() - all.size())) << "page " << page;
        all.insert(all.end(), elements.begin(), elements.end());
        if (row.counted) {
            EXPECT_EQ(outcome.record.at("totalCount"), expected.size());
        }
    }
    EXPECT_EQ(all, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, LargerPages,
    testing::Values(Paged("AlarmPlans", "BRMS.GetPageSummaryAlarmPlans", "query", "/brms/alarmPlans", "", false,
                          {"id", "planName"}),
                    Paged("Persons", "OBMS.GetPageAccessAuthorizePersons", "req", "/obms/persons", "/pageData", true,
                          {"personId", "personName", "orgCode", "orgName", "orgInfos"}),
                    Paged("CardFailures", "OBMS.GetPageConfigDesfireFailInfo", "req", "/obms/desfireFailures",
                          "/pageData", true, {"id", "deviceCode", "deviceName", "deviceIp", "reason"})),
    testing_support::RowName());

}  // namespace
}  // namespace e2e
