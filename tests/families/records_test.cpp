// The core's record. The tests of each subject cover the records of its calls.
#include "support/Family.h"

#include <RequestParamFields.h>

namespace {

using namespace family_testing;
using namespace APIModule;

const RecordRow kRecords[] = {
    FieldsOf<RequestParam>("nPort nTimeout bHttps bCompress eMethod strIp strUrl strBody strToken strSequence "
                           "bExcludeUserInput",
                           {{"nPort", 443}, {"nTimeout", 10}, {"bHttps", true}, {"bExcludeUserInput", true}}),
};

INSTANTIATE_TEST_SUITE_P(Core, RecordTest, testing::ValuesIn(kRecords), RowName());

}  // namespace
