#pragma once

#include "PlatformEmulator.h"
#include "TestClient.h"

#include <support/ErrorOf.h>
#include <support/Rows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

constexpr const char* kTimeSync = "/brms/api/v1.1/config/time-sync";

/// Options with one value other than the default.
template <typename Value>
emulator::Options With(Value emulator::Options::*option, const Value& value)
{
    emulator::Options options;
    options.*option = value;
    return options;
}

/// An emulator that is started on free ports, or on those of its options.
class RunningEmulator : public emulator::PlatformEmulator {
public:
    explicit RunningEmulator(const emulator::Options& options = {}) : PlatformEmulator(options) { start(); }
};

inline std::unique_ptr<TestClient> ClientOf(const emulator::PlatformEmulator& platform,
                                            TestClient::Scheme scheme = TestClient::Scheme::Http,
                                            const std::string& token = emulator::kDefaultToken)
{
    const int port = scheme == TestClient::Scheme::Http ? platform.httpPort() : platform.httpsPort();
    return std::make_unique<TestClient>(scheme, port, token);
}

/// The number of threads of a process, whose identifier may be "self".
inline std::size_t ThreadsOf(const std::string& process)
{
    const std::filesystem::directory_iterator all("/proc/" + process + "/task");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

/// Adds a fault in the format of the control path.
inline void AddFault(emulator::PlatformEmulator& platform, const Json& fault)
{
    platform.addFault(emulator::Fault::FromJson(fault));
}

/// Starts a new emulator for each test.
class EmulatorTest : public testing::Test {
protected:
    RunningEmulator m_platform;
};

/// Shares one emulator between all rows of a table, with its seeds and without recorded requests before each.
class EmulatorTableTest : public testing::Test {
protected:
    EmulatorTableTest()
    {
        m_platform.reset();
        m_platform.clearRequests();
    }

    RunningEmulator& m_platform = shared();

private:
    static RunningEmulator& shared()
    {
        static RunningEmulator platform;
        return platform;
    }
};

/// A temporary folder, removed after the test.
class Folder {
public:
    Folder()
    {
        std::string name = std::filesystem::temp_directory_path() / "emulator-test-XXXXXX";
        m_path = ::mkdtemp(name.data());
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    Folder(Folder&&) = delete;
    Folder& operator=(Folder&&) = delete;
    ~Folder() { std::filesystem::remove_all(m_path); }

    void write(const std::string& name, const std::string& text) const { std::ofstream(m_path / name) << text; }
    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

using testing_support::ErrorOf;
using testing_support::RowName;

inline std::string SchemeName(const testing::TestParamInfo<TestClient::Scheme>& scheme)
{
    return scheme.param == TestClient::Scheme::Http ? "Http" : "Https";
}
