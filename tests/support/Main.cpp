#include "TestApplication.h"

#include <gtest/gtest.h>

// The application object is created before the tests, as a host creates it before calling the library.
int main(int argc, char** argv)
{
    const testing_support::TestApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
