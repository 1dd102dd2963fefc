// A wait dialog that the client provides: a plain modal dialog, which Escape, accept(), hiding and closing end. The
// functions below replace those of the bundled dialog.
#include "support/Host.h"
#include "support/Rows.h"
#include "support/Waiting.h"
#include "support/Watchdog.h"

#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

bool g_bReturnsAtOnce = false;

}  // namespace

namespace ORNGUI {

int OrnWaitDialog::exec()
{
    return g_bReturnsAtOnce ? int(Accepted) : QDialog::exec();
}

void OrnWaitDialog::done(int nResult)
{
    QDialog::done(nResult);
}

}  // namespace ORNGUI

namespace {

RawReply Respond(const RawRequest& request)
{
    return request.target == "/silent" ? RawReply{} : HttpReply(200, R"({"code":1000})");
}

class ClientDialogTest : public Host {
protected:
    ClientDialogTest() : m_server(Respond)
    {
        Use(m_server);
        m_parent.show();
    }

    int Run(const QString& url)
    {
        HostCall call;
        call.url = url;
        call.timeout = 20;
        call.parent = &m_parent;
        return Execute(call);
    }

    /// Makes a call without a reply and expects it to end as timed out long before its time-out.
    void ExpectTimeOutAtOnce()
    {
        QElapsedTimer elapsed;
        elapsed.start();
        EXPECT_EQ(Run(QStringLiteral("/silent")), -1);
        EXPECT_LT(elapsed.elapsed(), 10000);
        const std::string url = "http://127.0.0.1:" + std::to_string(m_server.Port()) + "/silent";
        EXPECT_EQ(logs.Take().back(),
                  (LogLine{kFacadeFile, FunctionOf(BehindDialog), 6, "Request time out, request url: " + url}));
        EXPECT_EQ(notifications.Take(), QStringList{CAPIModule::GetErroCodeInfor(QString(), -101, true)});
    }

    Watchdog m_watchdog;
    RawServer m_server;
    QWidget m_parent;
    QObject m_context;
};

TEST_F(ClientDialogTest, SucceedsWhenTheReplyArrives)
{
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(ClientDialogTest, DialogThatReturnsImmediatelyEndsTheWait)
{
    g_bReturnsAtOnce = true;
    ExpectTimeOutAtOnce();
    g_bReturnsAtOnce = false;
}

/// An action that ends a plain dialog.
struct Ending {
    const char* name;
    void (*act)(QWidget& dialog);
};

class EndedClientDialogTest : public ClientDialogTest, public testing::WithParamInterface<Ending> {};

const Ending kEndings[] = {
    {"escape", [](QWidget& dialog) { QTest::keyPress(&dialog, Qt::Key_Escape); }},
    {"accept", [](QWidget& dialog) { static_cast<QDialog&>(dialog).accept(); }},
    {"close", [](QWidget& dialog) { dialog.close(); }},
    {"hide", [](QWidget& dialog) { dialog.hide(); }},
    {"delete", [](QWidget& dialog) { delete &dialog; }},
};

INSTANTIATE_TEST_SUITE_P(Endings, EndedClientDialogTest, testing::ValuesIn(kEndings), RowName());

TEST_P(EndedClientDialogTest, EndsTheWaitWithATimeOut)
{
    QTimer::singleShot(100, &m_context, [] {
        QWidget* const pDialog = QApplication::activeModalWidget();
        ASSERT_NE(pDialog, nullptr);
        GetParam().act(*pDialog);
    });
    ExpectTimeOutAtOnce();
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0);
}

}  // namespace
