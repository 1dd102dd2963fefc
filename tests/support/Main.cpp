#include "TestApplication.h"

#include <gtest/gtest.h>

// The application object is made before the tests, as a host makes it before it calls the library.
int main(int argc, char** argv)
{
    const testing_support::TestApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
