// The request of a call as it went, and as commands to repeat it.
#include "support/Samples.h"
#include "support/Screenshots.h"
#include "support/ViewTest.h"

#include <explorer/views/CodeView.h>
#include <explorer/views/CppLines.h>
#include <explorer/views/CurlLine.h>
#include <explorer/views/Json.h>
#include <explorer/views/RequestView.h>

#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

using explorer::CallOutcome;
using explorer::CodeView;
using explorer::RequestView;

class RequestViewTest : public QObject {
    Q_OBJECT

private slots:
    void MethodUrlHeadersAndBodyAreShown();
    void ABodyThatIsNoJsonIsShownAsItIs();
    void TheCommandsAreReadyToCopy();
    void ARequestThatWasNotSentIsMarked();
    void ARequestThatWasNotMadeIsNotShown();
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

bool HasMark(const RequestView& view)
{
    const auto* pHeaderPage = view.findChild<QTreeWidget*>(QStringLiteral("headers"))->parentWidget();
    return pHeaderPage->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->isVisibleTo(pHeaderPage);
}

}  // namespace

void RequestViewTest::MethodUrlHeadersAndBodyAreShown()
{
    RequestView view;
    const CallOutcome outcome = view_test::EncodeUpdate();
    view.Show(outcome);
    QCOMPARE(Target(view), QStringLiteral("PUT ") + outcome.request.url);
    const QStringList headers = HeadersOf(view);
    QCOMPARE(headers.size(), outcome.request.headers.size());
    QCOMPARE(headers[0], QStringLiteral("Host=127.0.0.1:8443"));
    QCOMPARE(headers[4], QStringLiteral("X-Subject-Token=**********"));
    QCOMPARE(Page(view, "body").Text(), explorer::JsonText(nlohmann::json::parse(outcome.request.body.toStdString())));
}

void RequestViewTest::ABodyThatIsNoJsonIsShownAsItIs()
{
    RequestView view;
    CallOutcome outcome = view_test::EncodeUpdate();
    outcome.request.body = "{\"a\": T\xC3\xBCr";
    view.Show(outcome);
    QCOMPARE(Page(view, "body").Text(), QString::fromUtf8("{\"a\": T\xC3\xBCr"));
}

void RequestViewTest::TheCommandsAreReadyToCopy()
{
    RequestView view;
    const CallOutcome outcome = view_test::EncodeUpdate();
    view.Show(outcome);
    const auto copied = [&view](const char* page) {
        QGuiApplication::clipboard()->clear();
        Page(view, page).findChild<QPushButton*>()->click();
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(copied("curl"), explorer::CurlLine(outcome.request));
    QVERIFY(copied("curl").contains(QStringLiteral("\"$TOKEN\"")));
    QCOMPARE(copied("cpp"), explorer::CppLines(*outcome.call, explorer::FromQt(outcome.arguments), -1));
}

void RequestViewTest::ARequestThatWasNotSentIsMarked()
{
    RequestView view;
    CallOutcome outcome = view_test::EncodeUpdate();
    view.Show(outcome);
    QVERIFY(!HasMark(view));
    outcome.request.headers.clear();
    view.Show(outcome);
    QVERIFY(HasMark(view));
}

void RequestViewTest::ARequestThatWasNotMadeIsNotShown()
{
    RequestView view;
    CallOutcome outcome = view_test::EncodeUpdate();
    view.Show(outcome);
    outcome.request = {};
    outcome.arguments = {};  // the lines are then those of a fresh call
    view.Show(outcome);
    QCOMPARE(Target(view), QString());
    QVERIFY(HeadersOf(view).isEmpty());
    QVERIFY(!HasMark(view));
    QCOMPARE(Page(view, "body").Text(), QString());
    QCOMPARE(Page(view, "curl").Text(), QString());
    QVERIFY(Page(view, "cpp").Text().contains(QStringLiteral("std::string channelId = \"\";")));
}

void RequestViewTest::Screenshots()
{
    using view_test::TakeScreenshots;
    const QSize size(700, 420);
    RequestView view;
    TakeScreenshots(view, QStringLiteral("request-empty"), size);
    CallOutcome outcome = view_test::EncodeUpdate();
    view.Show(outcome);
    auto& tabs = *view.findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        TakeScreenshots(view, QStringLiteral("request-%1").arg(tab), size);
    }
    outcome.request.headers.clear();
    view.Show(outcome);
    tabs.setCurrentIndex(0);
    TakeScreenshots(view, QStringLiteral("request-not-sent"), size);
}

int main(int argc, char** argv)
{
    return view_test::Run<RequestViewTest>(argc, argv);
}

#include "request_view_test.moc"
