// Bodies with status 200 that are not envelopes, or are envelopes that are hard to parse.
#include "FaultMatrix.h"

using namespace testing_support;

namespace {

std::function<FaultSetup(RawServer::Scheme)> HasBody(const QByteArray& body)
{
    return RepliesWith(HttpReply(200, body));
}

QByteArray Nested(int nDepth)
{
    return "{\"code\":1000,\"data\":{\"a\":" + QByteArray(nDepth, '[') + QByteArray(nDepth, ']') + "}}";
}

/// Created when it is sent, so that the table does not hold a hundred megabytes.
FaultSetup HasTextOf100Megabytes(RawServer::Scheme scheme)
{
    return HasBody("{\"code\":1000,\"data\":{\"a\":\"" + QByteArray(100 * 1024 * 1024, 'x') + "\"}}")(scheme);
}

const std::vector<Fault> kFaults = {
    {"empty", HasBody(""), EnvelopeFails(-1)},
    {"blank", HasBody(" \r\n"), EnvelopeFails(-1)},
    {"not_json", HasBody("<html><body>Service</body></html>"), EnvelopeFails(-1)},
    {"cut_json", HasBody(R"({"code":1000,"data":{"a":)"), EnvelopeFails(-1)},
    {"json_with_trailing_data", HasBody(R"({"code":1000,"data":{"a":1}} {})"), EnvelopeFails(-1)},
    {"null", HasBody("null"), EnvelopeFails(-1)},
    {"number", HasBody("1000"), EnvelopeFails(-1)},
    {"text", HasBody("\"1000\""), EnvelopeFails(-1)},
    {"array", HasBody(R"([{"code":1000,"data":{"a":1}}])"), EnvelopeFails(0)},
    {"array_empty", HasBody("[]"), EnvelopeFails(0)},
    {"nested_500_deep", HasBody(Nested(500)), Succeeds()},
    {"nested_5000_deep", HasBody(Nested(5000)), EnvelopeFails(-1)},
    {"nested_5000_deep_and_not_closed", HasBody(QByteArray(5000, '{')), EnvelopeFails(-1)},
    {"byte_order_mark", HasBody("\xEF\xBB\xBF{\"code\":1000,\"data\":{\"a\":1}}"), Succeeds()},
    {"utf8_invalid_in_a_text", HasBody("{\"code\":1000,\"data\":{\"a\":\"\xC3\x28\xFF\"}}"), EnvelopeFails(-1)},
    {"utf8_cut_in_a_text", HasBody("{\"code\":1000,\"data\":{\"a\":\"\xE2\x82\"}}"), EnvelopeFails(-1)},
    {"utf8_surrogate_in_a_text", HasBody("{\"code\":1000,\"data\":{\"a\":\"\xED\xA0\x80\"}}"), EnvelopeFails(-1)},
    {"utf8_overlong_in_a_text", HasBody("{\"code\":1000,\"data\":{\"a\":\"\xC0\xAF\"}}"), EnvelopeFails(-1)},
    {"utf8_invalid_in_a_key", HasBody("{\"code\":1000,\"data\":{\"\xFF\":1}}"), EnvelopeFails(-1)},
    {"utf8_invalid_outside_a_text", HasBody("{\"code\":1000,\xFF\"data\":{\"a\":1}}"), EnvelopeFails(-1)},
    {"zero_byte", HasBody(QByteArray("{\"code\":1000,\0\"data\":{}}", 24)), EnvelopeFails(-1)},
    {"escaped_half_surrogate", HasBody(R"({"code":1000,"data":{"a":"\ud800"}})"), Succeeds()},
    {"code_twice_last_one_a_success", HasBody(R"({"code":2001,"code":1000,"data":{"a":1}})"), Succeeds()},
    {"code_twice_last_one_a_failure", HasBody(R"({"code":1000,"data":{"a":1},"code":2001})"), EnvelopeFails(2001)},
    {"data_twice", HasBody(R"({"code":1000,"data":[],"data":{"a":1}})"), Succeeds()},
    {"text_of_100_megabytes", HasTextOf100Megabytes, Succeeds(), 60},
};

INSTANTIATE_TEST_SUITE_P(Bodies, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

}  // namespace
