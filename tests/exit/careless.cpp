// Returns from main while a thread that has apparently ended still owns state of libcrypto.
#include <openssl/rand.h>

#include <atomic>
#include <thread>

int main()
{
    std::atomic<bool> bDone{false};
    std::thread([&bDone] {
        unsigned char byte = 0;
        (void)RAND_bytes(&byte, 1);
        bDone = true;
    }).detach();
    while (!bDone) {
        std::this_thread::yield();
    }
    return 0;
}
