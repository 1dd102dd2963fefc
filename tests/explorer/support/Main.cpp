#include <explorer/window/Start.h>

#include <support/TestApplication.h>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    explorer::PrepareApplication();
    const testing_support::TestApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
