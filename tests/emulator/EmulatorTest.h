#pragma once

#include "PlatformEmulator.h"
#include "TestClient.h"

#include <support/Rows.h>

#include <gtest/gtest.h>

inline std::unique_ptr<TestClient> ClientOf(const emulator::PlatformEmulator& platform,
                                            TestClient::Scheme scheme = TestClient::Scheme::Http,
                                            const std::string& token = emulator::kDefaultToken)
{
    const int port = scheme == TestClient::Scheme::Http ? platform.httpPort() : platform.httpsPort();
    return std::make_unique<TestClient>(scheme, port, token);
}

/// Starts a new emulator for each test, on free ports.
class EmulatorTest : public testing::Test {
protected:
    EmulatorTest() { m_platform.start(); }

    emulator::PlatformEmulator m_platform;
};

/// Shares one emulator between all rows of a table and resets it to its seeds for each.
class EmulatorTableTest : public testing::Test {
protected:
    EmulatorTableTest() { m_platform.reset(); }

    emulator::PlatformEmulator& m_platform = shared();

private:
    static emulator::PlatformEmulator& shared()
    {
        static emulator::PlatformEmulator platform;
        static const bool started = (platform.start(), true);
        EXPECT_TRUE(started);
        return platform;
    }
};

using testing_support::RowName;

inline std::string SchemeName(const testing::TestParamInfo<TestClient::Scheme>& scheme)
{
    return scheme.param == TestClient::Scheme::Http ? "Http" : "Https";
}
