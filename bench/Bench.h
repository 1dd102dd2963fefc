#pragma once

#include <string>

/// Benchmarks that compare the library with its peers.
///
/// A program registers its benchmarks with Google Benchmark under names "work/contender", where the work may contain
/// further slashes: "read detailed parking lots/300/APIModule". The table that scripts/bench prints has one row for
/// each work; the contender APIModule is this library. bench/targets.json defines which contender it is compared with
/// and the highest acceptable ratio.
namespace bench {

/// The contender that is compared with the others.
constexpr const char* kLibrary = "APIModule";

/// Ends the program.
[[noreturn]] void Fail(const std::string& why);

/// Ends the program unless @p isSame, because a contender that does less work would win unfairly.
void Require(bool isSame, const std::string& what);

/// Registers the benchmarks of a program. Each program defines this function; an application object exists.
void RegisterBenchmarks();

}  // namespace bench
