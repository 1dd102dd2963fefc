#include <support/TestApplication.h>

#include <QFont>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const testing_support::TestApplication application(argc, argv);
    constexpr int kPoints = 10;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), kPoints));
    QApplication::setOrganizationName(QStringLiteral("view-test"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
