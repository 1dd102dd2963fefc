// Preloaded into a program, this turns a rare race into a certain failure: a thread that used TLS seems to have ended,
// but libcrypto is still cleaning up its state when exit() runs libcrypto's global clean-up. Both free the same memory.
// Here the thread's clean-up waits until the global one has freed the memory that they share.
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <mutex>

#include <dlfcn.h>
#include <pthread.h>
#include <unistd.h>

namespace {

using Destructor = void (*)(void*);

constexpr int kLateExit = 86;  // known to the test
constexpr int kMostKeys = 8;
constexpr auto kPatience = std::chrono::seconds(5);

struct Key {
    pthread_key_t key;
    Destructor destructor;
};

std::mutex g_mutex;
std::condition_variable g_changed;
Key g_keys[kMostKeys];
int g_nKeys = 0;
int g_nOwing = 0;    // threads other than the first that hold libcrypto state
int g_nEntered = 0;  // those of them that have entered their clean-up
bool g_bCleaned = false;

template <typename Function>
Function Next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool IsFirstThread()
{
    return getpid() == gettid();
}

bool IsInLibcrypto(const void* pCode)
{
    Dl_info info;
    return dladdr(pCode, &info) != 0 && info.dli_fname && std::strstr(info.dli_fname, "libcrypto");
}

bool IsTracked(pthread_key_t key)
{
    for (int i = 0; i < g_nKeys; ++i) {
        if (g_keys[i].key == key) {
            return true;
        }
    }
    return false;
}

void CleanUpLate(Destructor destructor, void* pState)
{
    std::unique_lock<std::mutex> lock(g_mutex);
    ++g_nEntered;
    g_changed.notify_all();
    g_changed.wait_for(lock, kPatience, [] { return g_bCleaned; });
    const bool bLate = g_bCleaned;
    lock.unlock();
    destructor(pState);
    if (bLate) {  // glibc does not detect every double free
        (void)std::fputs("A thread's TLS state was cleaned up after the program's.\n", stderr);
        _exit(kLateExit);
    }
    lock.lock();
    --g_nEntered;
    --g_nOwing;
    g_changed.notify_all();
}

template <int nKey>
void CleanUp(void* pState)
{
    CleanUpLate(g_keys[nKey].destructor, pState);
}

constexpr Destructor kCleanUps[kMostKeys] = {CleanUp<0>, CleanUp<1>, CleanUp<2>, CleanUp<3>,
                                             CleanUp<4>, CleanUp<5>, CleanUp<6>, CleanUp<7>};

}  // namespace

// NOLINTBEGIN(readability-identifier-naming, readability-inconsistent-declaration-parameter-name): the names are those
// of the C library
extern "C" __attribute__((visibility("default"))) int pthread_key_create(pthread_key_t* pKey, Destructor destructor)
{
    static const auto next = Next<int (*)(pthread_key_t*, Destructor)>("pthread_key_create");
    if (!destructor || !IsInLibcrypto(__builtin_return_address(0))) {
        return next(pKey, destructor);
    }
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (g_nKeys == kMostKeys) {
        return next(pKey, destructor);
    }
    const int nResult = next(pKey, kCleanUps[g_nKeys]);
    g_keys[g_nKeys++] = {*pKey, destructor};
    return nResult;
}

extern "C" __attribute__((visibility("default"))) int pthread_setspecific(pthread_key_t key, const void* pState)
{
    static const auto next = Next<int (*)(pthread_key_t, const void*)>("pthread_setspecific");
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (IsTracked(key) && !IsFirstThread()) {
        g_nOwing += int(pState != nullptr) - int(pthread_getspecific(key) != nullptr);
    }
    return next(key, pState);
}

/// Called by libcrypto's clean-up after it has freed the state of all threads.
extern "C" __attribute__((visibility("default"))) int pthread_key_delete(pthread_key_t key)
{
    static const auto next = Next<int (*)(pthread_key_t)>("pthread_key_delete");
    std::unique_lock<std::mutex> lock(g_mutex);
    if (IsTracked(key)) {
        g_changed.wait_for(lock, kPatience, [] { return g_nEntered == g_nOwing; });
        g_bCleaned = true;
        g_changed.notify_all();
        g_changed.wait_for(lock, kPatience, [] { return g_nOwing == 0; });
    }
    return next(key);
}
// NOLINTEND(readability-identifier-naming, readability-inconsistent-declaration-parameter-name)
