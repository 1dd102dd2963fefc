#include "Tally.h"

#include "Fault.h"

#include <faults/Census.h>

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>

namespace soak {
namespace {

constexpr std::size_t kMostShown = 20;
/// A shorter run ends while the process is still warming up.
constexpr std::size_t kLongRun = 50'000;
constexpr double kResidentBound = 0.02;
constexpr double kResidentBoundOfShortRun = 0.1;
/// The number of connections kept for reuse varies: up to six for each port, each with a few objects.
constexpr int kSpareDescriptors = 12;
constexpr int kSpareObjects = 96;

/// Summarizes the samples of a tenth: the median of the resident set, which fluctuates, and the minimum of the counts,
/// which only a leak keeps high.
struct Summary {
    double residentKiB;
    int descriptors;
    int objects;
};

Summary SummaryOf(std::vector<ResourceUsage> tenth)
{
    Summary summary{};
    if (tenth.empty()) {
        return summary;
    }
    const auto byDescriptors = [](const ResourceUsage& a, const ResourceUsage& b) {
        return a.descriptors < b.descriptors;
    };
    const auto byObjects = [](const ResourceUsage& a, const ResourceUsage& b) { return a.objects < b.objects; };
    summary.descriptors = std::min_element(tenth.begin(), tenth.end(), byDescriptors)->descriptors;
    summary.objects = std::min_element(tenth.begin(), tenth.end(), byObjects)->objects;
    const auto middle = std::next(tenth.begin(), static_cast<std::ptrdiff_t>(tenth.size() / 2));
    std::nth_element(tenth.begin(), middle, tenth.end(),
                     [](const ResourceUsage& a, const ResourceUsage& b) { return a.residentKiB < b.residentKiB; });
    summary.residentKiB = middle->residentKiB;
    return summary;
}

double ResidentKiB()
{
    constexpr double kKiB = 1024;
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE)) / kKiB;
}

int Descriptors()
{
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<int>(std::distance(begin(all), end(all)));
}

int Objects()
{
    int objects = 0;
    const QMap<QByteArray, int> byClass = testing_support::Census::Now().objects;
    for (const int count : byClass) {
        objects += count;
    }
    return objects;
}

}  // namespace

ResourceUsage ResourceUsage::Now()
{
    return {ResidentKiB(), Descriptors(), Objects()};
}

void Tally::Count(const FinishedCall& call)
{
    ++m_calls;
    m_withDialog += call.withDialog ? 1 : 0;
    m_nested += call.depth > 1 ? 1 : 0;
    ++m_byFamily[call.family];
    ++m_byCall[call.call];
    ++m_byFault[call.fault][{call.result, call.code}];
}

void Tally::Fail(const std::string& what)
{
    if (++m_failures <= kMostShown) {
        std::cout << "FAILED: " << what << std::endl;
    }
}

void Tally::Sample(double progress)
{
    const auto tenth = std::min(kTenths - 1, static_cast<std::size_t>(progress * kTenths));
    m_tenths.at(tenth).push_back(ResourceUsage::Now());
    m_callsUntil.at(tenth) = m_calls;
    const ResourceUsage& now = m_tenths.at(tenth).back();
    std::cout << std::setw(3) << std::lround(progress * 100) << " %  " << m_calls << " calls, " << m_failures
              << " failed, " << std::lround(now.residentKiB) << " KiB, " << now.descriptors << " descriptors, "
              << now.objects << " objects" << std::endl;
}

void Tally::PrintTables() const
{
    std::cout << "\nCalls by family\n";
    for (const auto& [family, calls] : m_byFamily) {
        std::cout << "  " << family << std::setw(10) << calls << '\n';
    }
    const auto fewest = std::min_element(m_byCall.begin(), m_byCall.end(),
                                         [](const auto& a, const auto& b) { return a.second < b.second; });
    std::cout << "  all " << std::setw(10) << m_calls << ", " << m_withDialog << " with a wait dialog, " << m_nested
              << " during the wait of another\n  " << m_byCall.size() << " different calls, each made "
              << (fewest == m_byCall.end() ? 0 : fewest->second) << " times or more\n";

    std::cout << "\nFaults, and how often each result occurred (the notified code after a -1)\n";
    for (const std::string& name : FaultNames()) {
        const auto drawn = m_byFault.find(name);
        std::cout << "  " << std::left << std::setw(13) << name << std::right;
        std::size_t all = 0;
        std::string results;
        if (drawn != m_byFault.end()) {
            for (const auto& [result, count] : drawn->second) {
                const auto& [value, code] = result;
                all += count;
                results += "  " + std::to_string(value) + (value == code ? "" : " (" + std::to_string(code) + ")") +
                           ": " + std::to_string(count);
            }
        }
        std::cout << std::setw(8) << all << results << '\n';
    }

    std::cout << "\nTenth      calls  resident KiB (median)  descriptors (least)  objects (least)\n";
    for (std::size_t i = 0; i < kTenths; ++i) {
        const Summary summary = SummaryOf(m_tenths.at(i));
        std::cout << std::setw(5) << i + 1 << std::setw(11) << m_callsUntil.at(i) << std::setw(23)
                  << std::lround(summary.residentKiB) << std::setw(21) << summary.descriptors << std::setw(17)
                  << summary.objects << '\n';
    }
    std::cout << std::endl;
}

bool Tally::IsGood(std::size_t allCalls) const
{
    const Summary second = SummaryOf(m_tenths.at(1));
    const Summary last = SummaryOf(m_tenths.back());
    const double growth = last.residentKiB / second.residentKiB - 1;
    std::cout << "resident set: " << std::showpos << std::fixed << std::setprecision(2) << growth * 100
              << std::noshowpos << " % from the second tenth to the last\n";
    const std::vector<std::pair<bool, const char*>> demands = {
        {m_failures == 0, "a call did not end as expected"},
        {m_byCall.size() == allCalls, "a call was never made"},
        {std::abs(growth) <= (m_calls < kLongRun ? kResidentBoundOfShortRun : kResidentBound),
         "the resident set grows"},
        {last.descriptors <= second.descriptors + kSpareDescriptors, "descriptors are left open"},
        {last.objects <= second.objects + kSpareObjects, "objects leak"}};
    bool isGood = true;
    for (const auto& [holds, complaint] : demands) {
        if (!holds) {
            std::cout << "soak: " << complaint << '\n';
            isGood = false;
        }
    }
    std::cout << (isGood ? "soak: passed" : "soak: failed") << std::endl;
    return isGood;
}

}  // namespace soak
