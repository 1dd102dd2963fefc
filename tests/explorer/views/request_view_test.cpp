// The request of a call, and the commands that send it.
#include "support/Samples.h"
#include "support/Screenshots.h"
#include "support/ViewTest.h"

#include <explorer/views/CodeView.h>
#include <explorer/views/CppLines.h>
#include <explorer/views/Json.h>
#include <explorer/views/RequestView.h>
#include <explorer/views/ShellLines.h>

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

class RequestViewTest : public QObject {
    Q_OBJECT

private slots:
    void ShowsMethodUrlHeadersAndBody();
    void ShowsNonJsonBodyUnchanged();
    void CopiesCommands();
    void ShowsNoRequestWhenCallCannotBePacked();
    void HintReplacesRequest();
    void Screenshots();
};

namespace {

const CodeView& Page(const RequestView& view, const char* name)
{
    return *view.findChild<CodeView*>(QString::fromLatin1(name));
}

QString Target(const RequestView& view)
{
    return view.findChild<QPlainTextEdit*>(QStringLiteral("target"))->toPlainText();
}

QStringList HeadersOf(const RequestView& view)
{
    const auto& tree = *view.findChild<QTreeWidget*>(QStringLiteral("headers"));
    QStringList headers;
    for (int row = 0; row < tree.topLevelItemCount(); ++row) {
        headers.append(tree.topLevelItem(row)->text(0) + QLatin1Char('=') + tree.topLevelItem(row)->text(1));
    }
    return headers;
}

RequestDraft EncodeUpdate()
{
    const explorer::CallOutcome outcome = view_test::EncodeUpdate();
    return {
        outcome.call, outcome.arguments, outcome.request, {QStringLiteral("--server"), QStringLiteral("http://h:1")}};
}

}  // namespace

void RequestViewTest::ShowsMethodUrlHeadersAndBody()
{
    RequestView view;
    const RequestDraft draft = EncodeUpdate();
    view.Show(draft);
    QCOMPARE(Target(view), QStringLiteral("PUT ") + draft.request.url);
    const QStringList headers = HeadersOf(view);
    QCOMPARE(headers.size(), draft.request.headers.size());
    QCOMPARE(headers[0], QStringLiteral("Host=127.0.0.1:8443"));
    QCOMPARE(headers[4], QStringLiteral("X-Subject-Token=**********"));
    QCOMPARE(Page(view, "body").Text(), explorer::JsonText(nlohmann::json::parse(draft.request.body.toStdString())));
}

void RequestViewTest::ShowsNonJsonBodyUnchanged()
{
    RequestView view;
    RequestDraft draft = EncodeUpdate();
    draft.request.body = "{\"a\": T\xC3\xBCr";
    view.Show(draft);
    QCOMPARE(Page(view, "body").Text(), QString::fromUtf8("{\"a\": T\xC3\xBCr"));
}

void RequestViewTest::CopiesCommands()
{
    RequestView view;
    const RequestDraft draft = EncodeUpdate();
    view.Show(draft);
    const auto copied = [&view](const char* page) {
        QGuiApplication::clipboard()->clear();
        Page(view, page).findChild<QPushButton*>(QStringLiteral("copyText"))->click();
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(copied("curl"), explorer::CurlLine(draft.request));
    QVERIFY(copied("curl").contains(QStringLiteral("\"$TOKEN\"")));
    QCOMPARE(copied("cpp"), explorer::CppLines(*draft.call, explorer::FromQt(draft.arguments), -1));
    QCOMPARE(copied("apicall"), explorer::ApicallLine(draft));
}

void RequestViewTest::ShowsNoRequestWhenCallCannotBePacked()
{
    RequestView view;
    RequestDraft draft = EncodeUpdate();
    view.Show(draft);
    draft.request = {};
    draft.arguments = {};  // the C++ lines then contain default values
    view.Show(draft);
    QCOMPARE(Target(view), QString());
    QVERIFY(HeadersOf(view).isEmpty());
    QCOMPARE(Page(view, "body").Text(), QString());
    QCOMPARE(Page(view, "curl").Text(), QString());
    QVERIFY(Page(view, "cpp").Text().contains(QStringLiteral("std::string channelId = \"\";")));
}

void RequestViewTest::HintReplacesRequest()
{
    RequestView view;
    const QString hint = QStringLiteral("Nothing is chosen");
    view.ShowHint(hint);
    const auto& labels = view.findChildren<QLabel*>();
    const auto shown = std::count_if(labels.begin(), labels.end(), [&](const QLabel* pLabel) {
        return pLabel->text() == hint && pLabel->isVisibleTo(&view);
    });
    QCOMPARE(int(shown), 1);
    view.Show(EncodeUpdate());
    QVERIFY(Page(view, "body").parentWidget()->isVisibleTo(&view));
}

void RequestViewTest::Screenshots()
{
    using view_test::TakeScreenshots;
    const QSize size(700, 420);
    RequestView view;
    view.Show(EncodeUpdate());
    auto& tabs = *view.findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        TakeScreenshots(view, QStringLiteral("request-%1").arg(tab), size);
    }
}

int main(int argc, char** argv)
{
    return view_test::Run<RequestViewTest>(argc, argv);
}

#include "request_view_test.moc"
