#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnSingleton.h>

#include <QLibrary>

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <vector>

using ORNGUI::OrnMessageNotify;
using ORNGUI::OrnSingleton;

namespace {

struct PrivateToThisFile {
    int nValue = 3;
};

struct alignas(64) Counted {
    Counted() { ++s_nMade; }
    static std::atomic<int> s_nMade;
};
std::atomic<int> Counted::s_nMade = 0;

class KeepsItsDestructor {
public:
    KeepsItsDestructor() = default;

private:
    ~KeepsItsDestructor() = default;
};

TEST(SingletonTest, WorksForAnyDefaultConstructibleType)
{
    EXPECT_EQ(OrnSingleton<PrivateToThisFile>::Instance().nValue, 3);
    EXPECT_EQ(OrnSingleton<int>::Instance(), 0);
    EXPECT_EQ(OrnSingleton<std::string>::Instance(), "");
    OrnSingleton<std::string>::Instance() = "kept";
    EXPECT_EQ(OrnSingleton<std::string>::Instance(), "kept");
    EXPECT_EQ(&OrnSingleton<KeepsItsDestructor>::Instance(), &OrnSingleton<KeepsItsDestructor>::Instance());
}

TEST(SingletonTest, IsCreatedOnceWhenManyThreadsAsk)
{
    constexpr std::size_t kThreads = 16;
    std::vector<const Counted*> seen(kThreads);
    std::vector<std::thread> threads;
    std::atomic<bool> bGo = false;
    for (std::size_t i = 0; i < kThreads; ++i) {
        threads.emplace_back([&, i] {
            while (!bGo) {
            }
            seen[i] = &OrnSingleton<Counted>::Instance();
        });
    }
    bGo = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(Counted::s_nMade, 1);
    EXPECT_EQ(std::set<const Counted*>(seen.begin(), seen.end()).size(), 1U);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(seen[0]) % alignof(Counted), 0U);
}

TEST(SingletonTest, NotificationsAreSharedByAllLibraries)
{
    for (const char* path : {PROBE_A, PROBE_B}) {
        QLibrary library(QString::fromUtf8(path));
        const auto ask = reinterpret_cast<void* (*)()>(library.resolve("MessageNotifyInstance"));
        ASSERT_NE(ask, nullptr) << library.errorString().toStdString();
        EXPECT_EQ(ask(), &OrnSingleton<OrnMessageNotify>::Instance()) << path;
    }
}

}  // namespace
