// Packing of requests: the cost of the library's Packs compared with hand-written Qt code, one Pack for each shape of a
// request.
#include "Bench.h"
#include "packing/ByHand.h"

#include <catalogue/Call.h>
#include <catalogue/OneServer.h>
#include <e2e/rows/Rows.h>

#include <RequestParamFields.h>

#include <boost/describe/operators.hpp>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace bench {
namespace {

using APIModule::RequestParam;

/// The arguments that the tests with the emulator use.
std::vector<catalogue::Value> MakeArguments(const catalogue::Call& call)
{
    const e2e::Json& arguments = e2e::RowOf(call.name).arguments;
    return catalogue::ReadArguments(call, arguments.is_null() ? e2e::Json::object() : arguments);
}

/// A Pack with its arguments.
class Packing {
public:
    Packing(decltype(HandWritten::pack) pack, const catalogue::Call& call) : m_pack(pack), m_values(MakeArguments(call))
    {
        for (const catalogue::Value& value : m_values) {
            m_arguments.push_back(value.Data());
        }
    }

    [[nodiscard]] RequestParam Run() const
    {
        RequestParam request;
        if (m_pack(&request, m_arguments.data(), -1) != 0) {
            Fail("a request was not packed");
        }
        return request;
    }

private:
    decltype(HandWritten::pack) m_pack;
    std::vector<catalogue::Value> m_values;
    std::vector<void*> m_arguments;
};

void Register(const std::string& name, const std::shared_ptr<const Packing>& pPacking)
{
    benchmark::RegisterBenchmark(name.c_str(), [pPacking](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(pPacking->Run());
        }
    });
}

void Register(const catalogue::Call& call, decltype(HandWritten::pack) byHand)
{
    const auto pLibrary = std::make_shared<const Packing>(call.pack, call);
    const auto pByHand = std::make_shared<const Packing>(byHand, call);
    Require(boost::describe::operators::operator==(pLibrary->Run(), pByHand->Run()), call.name + " packed by hand");

    Register("pack " + call.name + "/" + kLibrary, pLibrary);
    Register("pack " + call.name + "/by hand", pByHand);
}

}  // namespace

void RegisterBenchmarks()
{
    static catalogue::OneServer userManager;
    userManager.Use("192.168.10.2", 443, "0123456789abcdef0123456789abcdef");
    APIModule::CAPIModule::GetInstance().Init(&userManager);

    for (const HandWritten& row : PackedByHand()) {
        const catalogue::Call* pCall = catalogue::FindCall(row.call);
        if (!pCall) {
            Fail(std::string(row.call) + " is not a call");
        }
        Register(*pCall, row.pack);
    }
}

}  // namespace bench
