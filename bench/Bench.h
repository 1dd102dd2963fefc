#pragma once

#include <string>

/// Benchmarks of the library beside its peers.
///
/// A program registers its benchmarks with Google Benchmark. The name is "work/contender", where the work may hold
/// further slashes: "read detailed parking lots/300/APIModule". The table that scripts/bench prints has one row for
/// each work; the contender APIModule is this library. bench/targets.json says which of the others it is held against
/// and how much of that it may cost.
namespace bench {

/// The contender that is measured against the others.
constexpr const char* kLibrary = "APIModule";

/// Ends the program.
[[noreturn]] void Fail(const std::string& why);

/// Ends the program when the results of contenders differ, because one that does less work would win unfairly.
void Require(bool isSame, const std::string& what);

/// Registers the benchmarks of a program; each of them defines it. There is an application object.
void RegisterBenchmarks();

}  // namespace bench
