#pragma once

#include "support/TestApplication.h"

#include <QtTest>

#include <string>

/// Lets QCOMPARE print a std::string when it fails.
inline char* toString(const std::string& text)
{
    return QTest::toString(QString::fromStdString(text));
}

namespace view_test {

/// The body of a test program's main.
template <typename Test>
int Run(int argc, char** argv)
{
    const testing_support::TestApplication application(argc, argv);
    constexpr int kPoints = 10;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), kPoints));
    QApplication::setOrganizationName(QStringLiteral("view-test"));
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace view_test
