// File uploads of stream analysis tasks.
#include "support/Bind.h"
#include "support/Family.h"

#include <IAMS/IAMSModule.h>

namespace {

using namespace family_testing;
using namespace std::string_literals;
using namespace APIModule;

const BodyPack<const std::vector<std::string>&> kUploadFailed(
    NAMED(CIAMSModule::PacketSetAnalysisTaskUploadFailed), Method_Post,
    "/iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch");

const PackRow kPacks[] = {
    kUploadFailed("UploadFailed_ids_in_order", {"7", "3", "7"}, R"({"ids": ["7", "3", "7"]})"),
    kUploadFailed("UploadFailed_one_id", {"7"}, R"({"ids": ["7"]})"),
    kUploadFailed("UploadFailed_empty_list_is_sent", {}, R"({"ids": []})"),
    kUploadFailed("UploadFailed_empty_text", {""}, R"({"ids": [""]})"),
    kUploadFailed("UploadFailed_zero_byte_is_kept", {"a\0b"s, "\0"s}, R"({"ids": ["a\u0000b", "\u0000"]})"),
    kUploadFailed("UploadFailed_utf8_quote_and_marker", {"\xC3\xBC \xE4\xB8\xAD", "\"%1\\"},
                  R"({"ids": ["\u00fc \u4e2d", "\"%1\\"]})"),
    kUploadFailed("UploadFailed_invalid_utf8", {"x\xFF"}, R"({"ids": ["x\ufffd"]})"),
};

INSTANTIATE_TEST_SUITE_P(AnalysisTask, PackTest, testing::ValuesIn(kPacks), RowName());

}  // namespace
