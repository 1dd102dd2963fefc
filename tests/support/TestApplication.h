#pragma once

#include <QApplication>
#include <QScreen>

extern "C" void __lsan_ignore_object(const void*) __attribute__((weak));  // NOLINT(bugprone-reserved-identifier)

namespace testing_support {

/// The application object of a test. Ignores the screens, which the offscreen plugin never deletes, in the leak check.
class TestApplication : public QApplication {
public:
    TestApplication(int& argc, char** argv) : QApplication(argc, argv)
    {
        if (__lsan_ignore_object) {
            const QList<QScreen*> all = screens();
            for (const QScreen* pScreen : all) {
                __lsan_ignore_object(pScreen);
            }
        }
    }
};

}  // namespace testing_support
