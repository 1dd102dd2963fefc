#include "Census.h"

#include <QObject>
#include <QThread>

#include <filesystem>
#include <mutex>
#include <ostream>
#include <private/qhooks_p.h>
#include <system_error>
#include <unordered_set>

namespace testing_support {

namespace {

struct LiveObjects {
    std::mutex mutex;
    std::unordered_set<QObject*> objects;
};

/// Never deleted, because objects are created and destroyed until the process ends.
LiveObjects& Live()
{
    static auto* const pLive = new LiveObjects;
    return *pLive;
}

void OnAdded(QObject* pObject)
{
    const std::lock_guard<std::mutex> lock(Live().mutex);
    Live().objects.insert(pObject);
}

void OnRemoved(QObject* pObject)
{
    const std::lock_guard<std::mutex> lock(Live().mutex);
    Live().objects.erase(pObject);
}

/// Qt looks up host names on pool threads, which run for some seconds longer.
bool IsThreadOfPool(const QObject& object)
{
    return qstrcmp(object.metaObject()->className(), "QThreadPoolThread") == 0;
}

/// Toasts stay on the screen for a while, with their children; single-shot timers end them.
bool IsOfToasts(const QObject& object)
{
    if (qstrcmp(object.metaObject()->className(), "QSingleShotTimer") == 0) {
        return true;
    }
    const QObject* pTop = &object;
    while (pTop->parent()) {
        pTop = pTop->parent();
    }
    return QByteArray(pTop->metaObject()->className()).contains("Toast") ||
           pTop->objectName().contains(QLatin1String("Toast"));
}

}  // namespace

void CountObjects()
{
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&OnAdded);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&OnRemoved);
}

Census Census::Now()
{
    Census census;
    {
        // An object of another thread may be in its destructor, but has not yet passed the hook.
        const std::lock_guard<std::mutex> lock(Live().mutex);
        for (const QObject* pObject : Live().objects) {
            if (pObject->thread() == QThread::currentThread() && !IsOfToasts(*pObject) && !IsThreadOfPool(*pObject)) {
                ++census.objects[pObject->metaObject()->className()];
            }
        }
    }
    for (const auto& descriptor : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code error;  // the iterator's descriptor is closed by the time its link is read
        if (std::filesystem::read_symlink(descriptor, error).string().rfind("socket:", 0) == 0) {
            ++census.sockets;
        }
    }
    return census;
}

bool Census::IsWithin(const Census& before) const
{
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        if (object.value() > before.objects.value(object.key())) {
            return false;
        }
    }
    return sockets <= before.sockets;
}

std::ostream& operator<<(std::ostream& stream, const Census& census)
{
    stream << census.sockets << " sockets";
    for (auto object = census.objects.begin(); object != census.objects.end(); ++object) {
        stream << ", " << object.value() << ' ' << object.key().constData();
    }
    return stream;
}

}  // namespace testing_support
