// The exported names of the library, and properties of its types that clients rely on.
#include <APIModule.h>
#include <APIWaitDialog.h>
#include <BRMS/BRMSModule.h>
#include <DMS/DMSModule.h>
#include <ECOS/ECOSModule.h>
#include <EMAP/EMAPModule.h>
#include <ERMS/ERMSModule.h>
#include <IAMS/IAMSModule.h>
#include <IPMS/IPMSModule.h>
#include <OBMS/OBMSModule.h>
#include <OMMS/OMMSModule.h>
#include <public/CommonFunc.h>

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QWidget>

#include <gtest/gtest.h>

#include <type_traits>

namespace {

/// The names of all defined dynamic symbols of the library, as a debugger shows them.
QStringList ExportedNames()
{
    QProcess nm;
    nm.start(QStringLiteral("nm"),
             {QStringLiteral("-DC"), QStringLiteral("--defined-only"), QStringLiteral("--extern-only"),
              QStringLiteral("--format=posix"), QStringLiteral(API_MODULE_LIBRARY)});
    EXPECT_TRUE(nm.waitForFinished());
    EXPECT_EQ(nm.exitCode(), 0) << nm.readAllStandardError().constData();
    return QString::fromUtf8(nm.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

TEST(Interface, OnlyPublicNamesAreExported)
{
    const QRegularExpression own(
        QStringLiteral("^((typeinfo|typeinfo name|vtable) for )?(non-virtual thunk to )?"
                       "APIModule::(C[A-Za-z]+(Module|Func|WaitDialog|Handle)|OutcomeBase|ServerPin|"
                       "detail::(Run|Start|Preview)Call)(::|\\b)"));
    const QStringList names = ExportedNames();
    EXPECT_GT(names.size(), 50);
    for (const QString& name : names) {
        EXPECT_TRUE(own.match(name).hasMatch()) << name.toStdString();
        EXPECT_FALSE(name.contains(QLatin1String("Private"))) << name.toStdString();
    }
}

TEST(Interface, EveryClassIsExported)
{
    const QString names = ExportedNames().join(QLatin1Char('\n'));
    for (const char* const name :
         {"CAPIModule::GetInstance()", "CAPIModule::staticMetaObject", "CallHandle::Cancel()", "OutcomeBase::Text()",
          "CAPIWaitDialog::CAPIWaitDialog(QWidget*)", "CCommonFunc::TransformToEscaped(", "CBRMSModule::operator=(",
          "CDMSModule::operator=(", "CIAMSModule::operator=(", "CIPMSModule::operator=(", "COBMSModule::operator=(",
          "COMMSModule::operator=(", "CECOSModule::operator=(", "CEMAPModule::operator=(", "CERMSModule::operator=("}) {
        EXPECT_TRUE(names.contains(QLatin1String("APIModule::") + QLatin1String(name))) << name;
    }
}

template <typename Family>
class FamilyTest : public testing::Test {};

using Families = testing::Types<APIModule::CBRMSModule, APIModule::CDMSModule, APIModule::CIAMSModule,
                                APIModule::CIPMSModule, APIModule::COBMSModule, APIModule::COMMSModule,
                                APIModule::CECOSModule, APIModule::CEMAPModule, APIModule::CERMSModule>;
TYPED_TEST_SUITE(FamilyTest, Families);

TYPED_TEST(FamilyTest, IsAnEmptyAssignableClass)
{
    EXPECT_TRUE(std::is_empty_v<TypeParam>);
    EXPECT_FALSE(std::is_polymorphic_v<TypeParam>);
    EXPECT_TRUE(std::is_copy_assignable_v<TypeParam>);
    EXPECT_TRUE(std::is_move_assignable_v<TypeParam>);
    TypeParam first;
    TypeParam second;
    EXPECT_EQ(&(first = second), &first);
    EXPECT_EQ(&(first = std::move(second)), &first);
}

TEST(Interface, TypesHaveTheirPublishedProperties)
{
    EXPECT_TRUE(std::is_aggregate_v<APIModule::RequestParam>);
    EXPECT_TRUE((std::is_same_v<APIModule::int64, long long>));
    EXPECT_TRUE((std::is_convertible_v<APIModule::Method, int>));
    EXPECT_TRUE((std::is_base_of_v<QObject, APIModule::CAPIModule>));
    EXPECT_FALSE(std::is_default_constructible_v<APIModule::CAPIModule>);
    EXPECT_FALSE(std::is_copy_constructible_v<APIModule::CAPIModule>);
    EXPECT_TRUE(std::has_virtual_destructor_v<APIModule::CAPIModule>);
    EXPECT_FALSE((std::is_base_of_v<QWidget, APIModule::CAPIWaitDialog>));
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
