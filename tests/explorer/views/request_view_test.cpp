// The request of a call, and the commands that send it.
#include "support/Samples.h"
#include "support/ViewTest.h"

#include <explorer/views/CodeView.h>
#include <explorer/views/CppLines.h>
#include <explorer/views/Json.h>
#include <explorer/views/RequestView.h>
#include <explorer/views/ShellLines.h>

#include <explorer/support/ModelRows.h>

#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

#include <algorithm>

using explorer::CodeView;
using explorer::RequestDraft;
using explorer::RequestView;
using explorer_test::RowsOf;
using view_test::Child;

namespace {

class RequestViewTest : public testing::Test {
protected:
    RequestViewTest()
    {
        const explorer::CallOutcome outcome = view_test::EncodeUpdate();
        const QStringList options{QStringLiteral("--server"), QStringLiteral("http://h:1")};
        draft = {outcome.call, outcome.arguments, outcome.request, options};
        view.Show(draft);
    }

    [[nodiscard]] QString Text(const char* page) const { return Child<CodeView>(view, page).Text(); }
    [[nodiscard]] QString Target() const { return Child<QPlainTextEdit>(view, "target").toPlainText(); }
    [[nodiscard]] QStringList Headers() const { return RowsOf(*Child<QTreeWidget>(view, "headers").model()); }

    RequestView view;
    RequestDraft draft;
};

TEST_F(RequestViewTest, ShowsMethodUrlHeadersAndBody)
{
    EXPECT_EQ(Target(), QStringLiteral("PUT ") + draft.request.url);
    const QStringList headers = Headers();
    ASSERT_EQ(headers.size(), draft.request.headers.size());
    EXPECT_EQ(headers[0], QStringLiteral("Host|127.0.0.1:8443"));
    EXPECT_EQ(headers[4], QStringLiteral("X-Subject-Token|**********"));
    EXPECT_EQ(Text("body"), explorer::JsonText(nlohmann::json::parse(draft.request.body.toStdString())));
}

TEST_F(RequestViewTest, ShowsNonJsonBodyUnchanged)
{
    draft.request.body = "{\"a\": T\xC3\xBCr";
    view.Show(draft);
    EXPECT_EQ(Text("body"), QString::fromUtf8("{\"a\": T\xC3\xBCr"));
}

TEST_F(RequestViewTest, CopiesCommands)
{
    const auto copied = [this](const char* page) {
        QGuiApplication::clipboard()->clear();
        Child<QPushButton>(Child<CodeView>(view, page), "copyText").click();
        return QGuiApplication::clipboard()->text();
    };
    EXPECT_EQ(copied("curl"), explorer::CurlLine(draft.request));
    EXPECT_TRUE(copied("curl").contains(QStringLiteral("\"$TOKEN\"")));
    EXPECT_EQ(copied("cpp"), explorer::CppLines(*draft.call, explorer::FromQt(draft.arguments), -1));
    EXPECT_EQ(copied("apicall"), explorer::ApicallLine(draft));
}

TEST_F(RequestViewTest, ShowsNoRequestWhenCallCannotBePacked)
{
    draft.request = {};
    draft.arguments = {};  // the C++ lines then contain default values
    view.Show(draft);
    EXPECT_EQ(Target(), QString());
    EXPECT_TRUE(Headers().isEmpty());
    EXPECT_EQ(Text("body"), QString());
    EXPECT_EQ(Text("curl"), QString());
    EXPECT_TRUE(Text("cpp").contains(QStringLiteral("std::string channelId = \"\";")));
}

TEST_F(RequestViewTest, HintReplacesRequest)
{
    const QString hint = QStringLiteral("Nothing is chosen");
    view.ShowHint(hint);
    const auto& labels = view.findChildren<QLabel*>();
    const auto shown = std::count_if(labels.begin(), labels.end(), [&](const QLabel* pLabel) {
        return pLabel->text() == hint && pLabel->isVisibleTo(&view);
    });
    EXPECT_EQ(int(shown), 1);
    view.Show(draft);
    EXPECT_TRUE(Child<CodeView>(view, "body").parentWidget()->isVisibleTo(&view));
}

TEST_F(RequestViewTest, Screenshots)
{
    using view_test::TakeScreenshots;
    const QSize size(700, 420);
    auto& tabs = *view.findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        TakeScreenshots(view, QStringLiteral("request-%1").arg(tab), size);
    }
}

}  // namespace
