// The result of a call as tree, JSON, table and raw exchange.
#include "support/Samples.h"
#include "support/ViewTest.h"

#include <explorer/views/CodeView.h>
#include <explorer/views/JsonHighlighter.h>
#include <explorer/views/RecordModel.h>
#include <explorer/views/RecordTable.h>
#include <explorer/views/ResultView.h>
#include <explorer/views/TotalsRow.h>

#include <explorer/support/ModelRows.h>
#include <support/Rows.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

using explorer::CallOutcome;
using explorer::CodeView;
using explorer::RecordModel;
using explorer::RecordTable;
using explorer::ResultView;
using explorer_test::RowsOf;
using nlohmann::json;
using testing_support::RowName;
using view_test::Child;

namespace {

explorer::SharedRecord Shared(const json& record)
{
    return std::make_shared<const json>(record);
}

QTableView& TableOf(const QWidget& view)
{
    return Child<QTableView>(view, "table");
}

int ColumnNamed(const QTableView& table, const char* title)
{
    const QAbstractItemModel& model = *table.model();
    int column = 0;
    while (column < model.columnCount() &&
           model.headerData(column, Qt::Horizontal).toString() != QLatin1String(title)) {
        ++column;
    }
    return column;
}

/// The texts in a column; none if there is no such column.
QStringList ColumnOf(const QTableView& table, const char* title)
{
    QStringList fields;
    const int column = ColumnNamed(table, title);
    for (int row = 0; row < table.model()->rowCount() && column < table.model()->columnCount(); ++row) {
        fields.append(table.model()->index(row, column).data().toString());
    }
    return fields;
}

QString TextOf(const QAbstractItemModel& model, const QModelIndex& parent, int row)
{
    QStringList cells;
    for (int column = 0; column < RecordModel::ColumnCount; ++column) {
        cells.append(model.index(row, column, parent).data().toString());
    }
    return cells.join(QLatin1Char('|'));
}

/// The text of the hint that covers a tab, empty if the tab shows content.
QString HintOn(const ResultView& view, int tab)
{
    const auto* pTabs = view.findChild<QTabWidget*>();
    const QList<QLabel*> labels = pTabs->widget(tab)->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    return labels.size() == 1 && labels[0]->isVisibleTo(pTabs->widget(tab)) ? labels[0]->text() : QString();
}

enum Tab {
    RecordTab,
    JsonTab,
    TableTab,
    ExchangeTab
};

class RecordModelTest : public testing::Test {
protected:
    void Set(const CallOutcome& outcome) { model.SetRecord(*outcome.call->result, Shared(outcome.record)); }

    RecordModel model;

private:
    const QAbstractItemModelTester m_tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

class RecordTableTest : public testing::Test {
protected:
    void Set(const CallOutcome& outcome)
    {
        EXPECT_TRUE(table.SetRecord(*outcome.call->result, Shared(outcome.record)));
    }

    RecordTable table;
    QTableView& view = TableOf(table);
};

class ResultViewTest : public testing::Test {
protected:
    ResultView view;
};

TEST_F(RecordModelTest, TreeShowsNameValueAndType)
{
    const CallOutcome outcome = view_test::AlarmLinkage();
    Set(outcome);

    const QModelIndex root = model.index(0, 0);
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(TextOf(model, {}, 0), QStringLiteral("Result||AlarmLinkControl"));
    EXPECT_EQ(TextOf(model, root, 0), QStringLiteral("linkAlarmOutputChannels|Elements: 1|AlarmLinkChannel[]"));
    EXPECT_EQ(model.index(0, RecordModel::TypeColumn, root).data(Qt::ToolTipRole).toString(),
              QStringLiteral("list of AlarmLinkChannel"));
    const QModelIndex audio = model.index(2, 0, root);
    EXPECT_EQ(TextOf(model, audio, 1), QString::fromUtf8("[1]|Horn \xC2\xB7 1$4$0$1|AlarmLinkAudioChannel"));
    const QModelIndex horn = model.index(1, 0, audio);
    EXPECT_EQ(TextOf(model, horn, 1), QStringLiteral("channelName|Horn|text"));

    const CallOutcome plain = view_test::Succeeded("BRMS.GetSupportDataBaseType", "{}", "[3, 1]");
    Set(plain);
    EXPECT_EQ(TextOf(model, {}, 0), QStringLiteral("Result|Elements: 2|int[]"));
    EXPECT_EQ(TextOf(model, model.index(0, 0), 1), QStringLiteral("[1]|1|int"));

    model.Clear();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(RecordModelTest, TreeListsFieldsInDeclarationOrder)
{
    const CallOutcome outcome = view_test::ParkingLots();
    Set(outcome);
    const QModelIndex lot = model.index(0, 0, model.index(0, 0));
    const auto& fields = outcome.call->result->element->fields;
    ASSERT_EQ(model.rowCount(lot), int(fields.size()));
    for (int row = 0; row < model.rowCount(lot); ++row) {
        EXPECT_EQ(model.index(row, 0, lot).data().toString().toStdString(), std::string(fields[std::size_t(row)].name));
    }
}

TEST_F(RecordModelTest, TreeShowsDefaultRecordOfEveryCall)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        if (call.result != nullptr) {
            model.SetRecord(*call.result, Shared(catalogue::Value(*call.result).ToJson()));
            ASSERT_EQ(model.rowCount(model.index(0, 0)), int(call.result->fields.size()));
        }
    }
}

TEST_F(RecordModelTest, TreeShowsNameAndIdentifierOfListElements)
{
    const auto first = [this](const CallOutcome& outcome) {
        Set(outcome);
        return model.index(0, RecordModel::ValueColumn, model.index(0, 0)).data().toString();
    };
    EXPECT_EQ(first(view_test::ParkingLots()), QString::fromUtf8("Headquarters \xC2\xB7 1"));
    EXPECT_EQ(first(view_test::DeviceCategories()), QStringLiteral("deviceCategory: 1"));  // no name, no identifier
}

TEST_F(RecordModelTest, TreeFilterKeepsParentsAndChildrenOfMatches)
{
    const CallOutcome outcome = view_test::ParkingLots();
    Set(outcome);
    model.Filter(QStringLiteral("MAIN gate"));
    EXPECT_EQ(model.Matches(), 3);  // a position, its point and its reference point
    const QModelIndex root = model.index(0, 0);
    EXPECT_EQ(model.rowCount(root), 1);
    const QModelIndex lot = model.index(0, 0, root);
    EXPECT_EQ(lot.data().toString(), QStringLiteral("[0]"));
    EXPECT_EQ(model.rowCount(lot), 1);
    const QModelIndex positions = model.index(0, 0, lot);
    EXPECT_EQ(positions.data().toString(), QStringLiteral("positions"));
    EXPECT_EQ(model.rowCount(positions), 1);
    EXPECT_EQ(model.Path(model.index(0, 0, positions)), QStringLiteral("/0/positions/0"));

    model.Filter(QStringLiteral("positions"));
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 3);
    const QModelIndex all = model.index(0, 0, model.index(0, 0, model.index(0, 0)));
    EXPECT_EQ(model.rowCount(all), 2);  // complete, although none of its children matches
    EXPECT_TRUE(model.rowCount(model.index(1, 0, all)) > 1);

    model.Filter(QStringLiteral("no such text"));
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.Matches(), 0);
    model.Filter(QString());
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 3);
}

TEST_F(ResultViewTest, FindKeyFocusesTreeFilter)
{
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    view.Show(view_test::ParkingLots());
    auto& tree = Child<QTreeView>(view, "record");
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ramp"));
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return Child<QLabel>(view, "recordMatches").text() == QStringLiteral("Matches: 1"); }));
    const QModelIndex root = tree.model()->index(0, 0);
    EXPECT_EQ(tree.model()->rowCount(root), 1);
    EXPECT_TRUE(tree.isExpanded(tree.model()->index(0, 0, root)));
}

TEST_F(ResultViewTest, CopiesValuePathAndSubtree)
{
    const CallOutcome outcome = view_test::ParkingLots();
    view.Show(outcome);
    auto& tree = Child<QTreeView>(view, "record");
    const QAbstractItemModel& model = *tree.model();
    const QModelIndex lot = model.index(1, 0, model.index(0, 0));
    const auto copied = [&tree](const QModelIndex& index, const char* action) {
        tree.setCurrentIndex(index);
        tree.findChild<QAction*>(QLatin1String(action))->trigger();
        return QGuiApplication::clipboard()->text();
    };
    EXPECT_EQ(copied(model.index(1, 1, lot), "copyValue"), QStringLiteral("Underground car park"));
    EXPECT_EQ(copied(model.index(1, 0, lot), "copyPath"), QStringLiteral("/1/parkingLotName"));
    EXPECT_EQ(json::parse(copied(lot, "copySubtree").toStdString()), outcome.record[1]);
    EXPECT_EQ(json::parse(copied(lot, "copyValue").toStdString()), outcome.record[1]);
}

struct Reply {
    const char* name;
    const char* call;
    const char* data;
    bool isReadable;
    const char* marked;  // paths of the marked fields
};
class MissingFieldsTest : public ResultViewTest, public testing::WithParamInterface<Reply> {};

TEST_P(MissingFieldsTest, AreMarkedInTheTree)
{
    CallOutcome outcome = view_test::Succeeded(GetParam().call, "{}", "null");
    const catalogue::Value record(*outcome.call->result);
    const QJsonObject object = QJsonDocument::fromJson(GetParam().data).object();
    outcome.succeeded = outcome.call->parse(object, record.Data()) == 0;
    outcome.record = record.ToJson();
    outcome.missing = FindMissingFields(*outcome.call, object, outcome.record, outcome.succeeded);
    EXPECT_EQ(outcome.succeeded, GetParam().isReadable);
    view.Show(outcome);

    const auto& model = *qobject_cast<RecordModel*>(Child<QTreeView>(view, "record").model());
    QStringList paths;
    const QModelIndexList marked =
        model.match(model.index(0, RecordModel::ValueColumn), Qt::DisplayRole, QStringLiteral("(not in the reply)"), -1,
                    Qt::MatchContains | Qt::MatchRecursive);
    for (const QModelIndex& index : marked) {
        paths.append(model.Path(index));
    }
    EXPECT_EQ(paths.join(QLatin1Char(' ')).toStdString(), GetParam().marked);
}

constexpr Reply kReplies[] = {
    {"IdentifierThatOnlyTheRequestContains", "BRMS.GetImageConfig",
     R"({"brightness": 0, "saturation": 50, "contrast": "55", "sharpness": 40})", true, "/channelId"},
    {"EveryElementOfAList", "BRMS.GetEncodeConfig", R"({"encodeConfigurations": [
         {"streamType": 1, "bitRate": 0, "bitRateControl": 0, "compression": 7, "enable": 1, "frameRate": 25,
          "iFrameInterval": 50, "height": 0, "width": 0},
         {"streamType": 2, "bitRate": 9, "bitRateControl": 0, "compression": 7, "enable": 1, "frameRate": 25,
          "iFrameInterval": 50, "height": 0, "width": 0}]})",
     true, "/0/channelId /1/channelId"},
    {"CompleteReply", "BRMS.GetRemoteLogConfig", R"({"enable": false, "ip": "", "port": 0, "platformId": ""})", true,
     ""},
    {"KeyThatDiffersFromTheFieldName", "BRMS.GetDeviceLoginModel", R"({"deviceLoginModel": 0})", true, ""},
    {"EmptyListInTheReply", "BRMS.GetMultiCastConfig", R"({"status": false, "streams": []})", true, "/channelId"},
    {"FieldsFromAnUnreadableKeyOn", "BRMS.GetRemoteLogConfig",
     R"({"enable": false, "ip": "10.0.0.1", "platformId": "p"})", false, "/port /platformId"},
};
INSTANTIATE_TEST_SUITE_P(Replies, MissingFieldsTest, testing::ValuesIn(kReplies), RowName());

TEST_F(ResultViewTest, TreeColumnsFitNamesAndTypes)
{
    constexpr QSize kSmallPane(560, 400);
    view.resize(kSmallPane);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    view.Show(view_test::AlarmLinkage());
    auto& tree = *view.findChild<QTreeView*>();
    for (const int column : {RecordModel::NameColumn, RecordModel::TypeColumn}) {
        const int width = tree.columnWidth(column);
        tree.resizeColumnToContents(column);
        EXPECT_TRUE(width >= tree.columnWidth(column));
    }
    EXPECT_EQ(tree.header()->length(), tree.viewport()->width());
}

TEST_F(ResultViewTest, ExpandsOnlyFirstLevelOfLargeRecord)
{
    CallOutcome outcome = view_test::ParkingLots();
    const json lots = outcome.record;
    view.Show(outcome);
    const auto& tree = *view.findChild<QTreeView*>();
    const QModelIndex firstLot = tree.model()->index(0, 0, tree.model()->index(0, 0));
    EXPECT_TRUE(tree.isExpanded(firstLot));

    for (int times = 0; times < 20; ++times) {
        outcome.record.insert(outcome.record.end(), lots.begin(), lots.end());
    }
    view.Show(outcome);
    EXPECT_TRUE(tree.isExpanded(tree.model()->index(0, 0)));
    EXPECT_FALSE(tree.isExpanded(tree.model()->index(0, 0, tree.model()->index(0, 0))));
}

TEST_F(ResultViewTest, CopiesCompleteJson)
{
    CallOutcome outcome = view_test::Succeeded("BRMS.GetDeriveToken", "{}", "\"\"");
    constexpr std::size_t kLong = 600000;
    outcome.record = std::string(kLong, 'x');
    view.Show(outcome);
    auto& page = *qobject_cast<CodeView*>(view.findChild<QTabWidget*>()->widget(JsonTab));
    ASSERT_TRUE(page.findChild<QPlainTextEdit*>()->toPlainText().size() < int(kLong));
    Child<QPushButton>(page, "copyText").click();
    EXPECT_EQ(json::parse(QGuiApplication::clipboard()->text().toStdString()), outcome.record);
}

/// Numbered lines: "line 0", "line 1" and so on.
QString Lines(int count)
{
    QString text;
    for (int line = 0; line < count; ++line) {
        text += QStringLiteral("line %1\n").arg(line);
    }
    return text;
}

QString Selected(const CodeView& view)
{
    return view.findChild<QPlainTextEdit*>()->textCursor().selectedText();
}

QString CountOf(const CodeView& view)
{
    return Child<QLabel>(view, "findCount").text();
}

TEST(CodeViewTest, JsonCanBeSearchedByKeyboard)
{
    CodeView view(CodeView::Kind::Json, QString());
    view.SetText(QStringLiteral("Gate, GATE and gate"));
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    const auto& edit = *view.findChild<QPlainTextEdit*>();
    view.findChild<QPlainTextEdit*>()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("find"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("gate"));
    EXPECT_EQ(CountOf(view), QStringLiteral("1 of 3"));
    EXPECT_EQ(Selected(view), QStringLiteral("Gate"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Selected(view), QStringLiteral("GATE"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    EXPECT_EQ(Selected(view), QStringLiteral("gate"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    EXPECT_EQ(CountOf(view), QStringLiteral("1 of 3"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(CountOf(view), QStringLiteral("3 of 3"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(CountOf(view), QStringLiteral("2 of 3"));
    EXPECT_EQ(edit.textCursor().selectionStart(), 6);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    EXPECT_EQ(CountOf(view), QStringLiteral("No match"));
    EXPECT_FALSE(Child<QToolButton>(view, "findNext").isEnabled());

    // A new text is searched for the same pattern.
    view.SetText(QStringLiteral("a gatex"));
    EXPECT_EQ(CountOf(view), QStringLiteral("0 of 1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    EXPECT_EQ(Selected(view), QStringLiteral("gatex"));
}

TEST(CodeViewTest, SearchFindsTextOutsideTheShownPart)
{
    CodeView view(CodeView::Kind::Text, QString());
    view.SetText(Lines(60000));
    const auto& edit = *view.findChild<QPlainTextEdit*>();
    EXPECT_FALSE(edit.toPlainText().contains(QLatin1String("line 55555")));
    Child<QLineEdit>(view, "find").setText(QStringLiteral("line 55555"));
    EXPECT_EQ(CountOf(view), QStringLiteral("1 of 1"));
    EXPECT_EQ(Selected(view), QStringLiteral("line 55555"));
    EXPECT_EQ(edit.textCursor().block().text(), QStringLiteral("line 55555"));
    ASSERT_TRUE(edit.toPlainText().size() < view.Text().size());
}

TEST(CodeViewTest, SearchSelectsMatchAfterCrLf)
{
    CodeView view(CodeView::Kind::Text, QString());
    view.SetText(QStringLiteral("one\r\ntwo\r\nthree"));
    Child<QLineEdit>(view, "find").setText(QStringLiteral("three"));
    EXPECT_EQ(Selected(view), QStringLiteral("three"));
}

TEST(CodeViewTest, ShowsCompleteLongTextOnDemand)
{
    CodeView view(CodeView::Kind::Text, QString());
    const QString text = Lines(60000);
    view.SetText(text);
    const auto& shortened = Child<QLabel>(view, "shortened");
    auto& all = Child<QPushButton>(view, "showAll");
    ASSERT_EQ(shortened.text(), QStringLiteral("Characters 1 to %1 of %2; search and copy cover the whole text.")
                                    .arg(QLocale().toString(200000), QLocale().toString(text.size())));
    EXPECT_TRUE(shortened.isVisibleTo(&view) && all.isVisibleTo(&view));
    all.click();
    EXPECT_EQ(view.findChild<QPlainTextEdit*>()->toPlainText(), text);
    EXPECT_TRUE(!shortened.isVisibleTo(&view) && !all.isVisibleTo(&view));
    view.SetText(Lines(3));
    EXPECT_FALSE(shortened.isVisibleTo(&view));
}

TEST(CodeViewTest, JsonColoursFollowThePalette)
{
    QPlainTextEdit edit;
    const explorer::JsonHighlighter highlighter(edit);
    const auto colours = [&edit] {
        QCoreApplication::processEvents();
        QList<QRgb> found;
        const auto formats = edit.document()->firstBlock().layout()->formats();
        for (const auto& range : formats) {
            found.append(range.format.foreground().color().rgb());
        }
        return found;
    };
    edit.setPlainText(QStringLiteral(R"({"a": "b: 1", "c": -1.5e3, "d": null})"));
    const QList<QRgb> light = colours();
    ASSERT_EQ(light.size(), 6);  // three keys, a string, a number and null
    EXPECT_EQ(light[0], light[2]);
    EXPECT_EQ(light[0], light[4]);
    EXPECT_TRUE(light[0] != light[1] && light[1] != light[3] && light[3] != light[5]);

    edit.setPalette(view_test::DarkPalette());
    const QList<QRgb> dark = colours();
    ASSERT_EQ(dark.size(), light.size());
    EXPECT_TRUE(QColor(dark[0]).lightness() > QColor(light[0]).lightness());
}

TEST_F(RecordTableTest, TableHasRowForEachElement)
{
    Set(view_test::DeviceCategories());
    EXPECT_EQ(view.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("deviceCategory"));
    EXPECT_EQ(view.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("deviceCount"));
    EXPECT_EQ(RowsOf(*view.model()), (QStringList{QStringLiteral("1|412"), QStringLiteral("5|36"),
                                                  QStringLiteral("8|7"), QStringLiteral("34|1250")}));
    EXPECT_EQ(Child<QLabel>(table, "rows").text(), QStringLiteral("Rows: 4"));
}

TEST_F(RecordTableTest, ColumnsSortByValue)
{
    Set(view_test::DeviceCategories());
    view.sortByColumn(1, Qt::AscendingOrder);
    EXPECT_EQ(ColumnOf(view, "deviceCount"),
              (QStringList{QStringLiteral("7"), QStringLiteral("36"), QStringLiteral("412"), QStringLiteral("1250")}));
    view.sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(ColumnOf(view, "deviceCount").constFirst(), QStringLiteral("1250"));

    // A new record is shown in its original order.
    Set(view_test::ParkingLots());
    EXPECT_EQ(ColumnOf(view, "id"), (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
    view.sortByColumn(ColumnNamed(view, "positions"), Qt::AscendingOrder);
    EXPECT_EQ(ColumnOf(view, "id"), (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
    view.sortByColumn(ColumnNamed(view, "parkingLotName"), Qt::DescendingOrder);
    EXPECT_EQ(ColumnOf(view, "id"), (QStringList{QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("1")}));
}

TEST_F(RecordTableTest, TextsSortNaturally)
{
    Set(view_test::Succeeded("BRMS.GetMemoryOutOfServerList", "{}",
                             R"(["10", "9", "b", "A", "18446744073709551616", "Gate 10", "gate 9",
                                        "1000021$1$0$10", "1000021$1$0$2"])"));
    view.sortByColumn(0, Qt::AscendingOrder);
    EXPECT_EQ(
        ColumnOf(view, "Value"),
        (QStringList{QStringLiteral("9"), QStringLiteral("10"), QStringLiteral("1000021$1$0$2"),
                     QStringLiteral("1000021$1$0$10"), QStringLiteral("18446744073709551616"), QStringLiteral("A"),
                     QStringLiteral("b"), QStringLiteral("gate 9"), QStringLiteral("Gate 10")}));
}

TEST_F(RecordTableTest, TableFilterSearchesEveryColumn)
{
    Set(view_test::ParkingLots());
    auto& filter = Child<QLineEdit>(table, "filter");
    QTest::keyClicks(&filter, QStringLiteral("HEADQUARTERS"));
    EXPECT_EQ(ColumnOf(view, "id"), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
    EXPECT_EQ(Child<QLabel>(table, "rows").text(), QStringLiteral("Rows: 2 of 3"));
    filter.setText(QStringLiteral("240"));
    EXPECT_EQ(ColumnOf(view, "id"), (QStringList{QStringLiteral("1")}));
    filter.setText(QStringLiteral(".*"));
    EXPECT_EQ(view.model()->rowCount(), 0);
    EXPECT_FALSE(Child<QPushButton>(table, "export").isEnabled());
    Set(view_test::ParkingLots());
    EXPECT_EQ(view.model()->rowCount(), 3);
}

TEST_F(RecordTableTest, TotalsCoverOnlyVisibleRows)
{
    Set(view_test::ParkingLots());
    const auto& totals = *table.findChild<explorer::TotalsRow*>();
    const auto total = [&](const char* column) { return totals.Total(ColumnNamed(view, column)); };
    EXPECT_EQ(total("totalParkingSpaceCount"), QStringLiteral("329"));
    EXPECT_EQ(total("idleParkingSpaceCount"), QStringLiteral("66"));
    EXPECT_EQ(total("positions"), QStringLiteral("3"));
    EXPECT_EQ(total("parkingLotMode"), QString());  // a code, not a count
    EXPECT_EQ(total("id"), QString());

    Child<QLineEdit>(table, "filter").setText(QStringLiteral("car park"));
    EXPECT_EQ(total("totalParkingSpaceCount"), QStringLiteral("80"));

    Set(view_test::Succeeded("OMMS.GetAlertTypes", "{}", R"([{"alertTypeId": 1, "alertTypeName": "a"}])"));
    EXPECT_FALSE(totals.isVisibleTo(&table));
}

TEST_F(RecordTableTest, TotalsAlignWithTheirColumns)
{
    Set(view_test::ParkingLots());
    table.resize(500, 300);
    table.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&table));
    const auto& cells = *table.findChild<explorer::TotalsRow*>()->findChild<QHeaderView*>();
    const auto compare = [&] {
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            const QPoint above = view.viewport()->mapTo(&table, QPoint(view.columnViewportPosition(column), 0));
            const QPoint below = cells.viewport()->mapTo(&table, QPoint(cells.sectionViewportPosition(column), 0));
            EXPECT_EQ(below.x(), above.x());
            EXPECT_EQ(cells.sectionSize(column), view.columnWidth(column));
        }
    };
    compare();
    view.setColumnWidth(2, 200);
    compare();
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    EXPECT_TRUE(view.horizontalScrollBar()->value() > 0);
    compare();
}

TEST_F(RecordTableTest, ListCanBeChosenAmongSeveral)
{
    Set(view_test::AlarmLinkage());
    auto& list = Child<QComboBox>(table, "list");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.currentText(), QStringLiteral("linkAlarmOutputChannels"));
    EXPECT_EQ(ColumnOf(view, "channelName"), (QStringList{QStringLiteral("Siren")}));
    list.setCurrentIndex(2);
    EXPECT_EQ(ColumnOf(view, "channelName"), (QStringList{QStringLiteral("Speaker"), QStringLiteral("Horn")}));
    list.setCurrentIndex(1);
    EXPECT_EQ(view.model()->rowCount(), 0);

    Set(view_test::DeviceCategories());
    EXPECT_FALSE(list.isVisibleTo(&table));
}

TEST_F(RecordTableTest, PlainListsHaveOneColumn)
{
    Set(view_test::Succeeded("BRMS.GetSupportDataBaseType", "{}", "[3, 1, 20]"));
    EXPECT_EQ(ColumnOf(view, "Value"), (QStringList{QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("20")}));
}

TEST_F(RecordTableTest, ExportsVisibleRowsInTheirOrder)
{
    CallOutcome outcome = view_test::AlarmLinkage();
    outcome.record["linkAudioChannels"][1]["channelName"] = "Horn, \"loud\"\nT\xC3\xBCr";
    Set(outcome);
    Child<QComboBox>(table, "list").setCurrentIndex(2);
    view.sortByColumn(1, Qt::AscendingOrder);

    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("table.csv"));
    EXPECT_TRUE(table.ExportTo(fileName));
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("channelId,channelName,fileIds\r\n"
                                         "1$4$0$1,\"Horn, \"\"loud\"\"\nT\xC3\xBCr\",c\r\n"
                                         "1$4$0$0,Speaker,\"a,b\"\r\n"));

    Child<QLineEdit>(table, "filter").setText(QStringLiteral("Speaker"));
    EXPECT_EQ(table.ToCsv().count("\r\n"), 2);

    Set(view_test::ParkingLots());  // nested lists are exported as JSON
    EXPECT_TRUE(
        table.ToCsv().contains(R"("[{""id"":""31"",""points"":[],""positionName"":""Ramp"",""remark"":""""}]")"));
}

/// Enters a name in the next file dialog and confirms it.
void AnswerFileDialog(RecordTable& table, const QString& fileName)
{
    QTimer::singleShot(0, &table, [fileName] {
        auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pDialog != nullptr);
        pDialog->findChild<QLineEdit*>()->setText(fileName);
        QTest::keyClick(pDialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
}

TEST_F(RecordTableTest, ExportButtonAsksForFileName)
{
    Set(view_test::DeviceCategories());
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("devices.csv"));
    AnswerFileDialog(table, fileName);
    Child<QPushButton>(table, "export").click();
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), table.ToCsv());
}

TEST_F(RecordTableTest, ExportFailsWhenFileCannotBeWritten)
{
    Set(view_test::DeviceCategories());
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("devices.csv"));
    EXPECT_TRUE(QDir().mkdir(fileName));
    EXPECT_FALSE(table.ExportTo(fileName));
    EXPECT_FALSE(table.ExportTo(QStringLiteral("/no/such/folder/table.csv")));
}

TEST_F(ResultViewTest, ShowsRawExchange)
{
    CallOutcome outcome = view_test::EncodeUpdate();
    outcome.request.headers = {{QStringLiteral("X-B"), QStringLiteral("2")}};
    outcome.request.body = "{}";
    outcome.reply->body = "{\"code\":1000,\n \"desc\": \"T\xC3\xBCr\"}";
    outcome.reply->headers = {{QStringLiteral("X-A"), QStringLiteral("1")}};
    view.Show(outcome);
    const auto& page = *qobject_cast<CodeView*>(view.findChild<QTabWidget*>()->widget(ExchangeTab));
    const QString sent = QStringLiteral("PUT ") + outcome.request.url + QStringLiteral("\nX-B: 2\n\n{}");
    EXPECT_EQ(page.Text(), sent + QString::fromUtf8("\n\nHTTP 200\nX-A: 1\n\n"
                                                    "{\"code\":1000,\n \"desc\": \"T\xC3\xBCr\"}"));
    outcome.reply.reset();
    view.Show(outcome);
    EXPECT_EQ(page.Text(), sent);
    outcome.request.headers.clear();
    outcome.request.body.clear();
    view.Show(outcome);
    EXPECT_TRUE(page.Text().endsWith(QStringLiteral("\n\nNothing was sent.")));
}

TEST_F(ResultViewTest, ShowsHintWithoutRecord)
{
    EXPECT_EQ(HintOn(view, RecordTab), QStringLiteral("Run a call to see its result here."));
    view.Show(view_test::EncodeUpdate());
    EXPECT_EQ(HintOn(view, RecordTab), QStringLiteral("This call returns no record."));
    view.Show(view_test::Succeeded("BRMS.GetDeviceLoginModel", "{}", "1"));
    EXPECT_EQ(HintOn(view, RecordTab), QString());
    EXPECT_EQ(HintOn(view, TableTab), QStringLiteral("There is no list in this record."));
    view.Show(view_test::ParkingLots());
    EXPECT_EQ(HintOn(view, TableTab), QString());
    view.Clear();
    EXPECT_EQ(HintOn(view, TableTab), QStringLiteral("Run a call to see its result here."));
}

TEST_F(ResultViewTest, Screenshots)
{
    using view_test::TakeScreenshots;
    const QSize size(700, 420);
    auto& tabs = *view.findChild<QTabWidget*>();
    TakeScreenshots(view, QStringLiteral("result-empty"), size);
    view.Show(view_test::AlarmLinkage());
    TakeScreenshots(view, QStringLiteral("result-tree"), size);
    tabs.setCurrentIndex(JsonTab);
    TakeScreenshots(view, QStringLiteral("result-json"), size);
    tabs.setCurrentIndex(TableTab);
    TakeScreenshots(view, QStringLiteral("result-table-lists"), size);
    view.Show(view_test::ParkingLots());
    TableOf(view).sortByColumn(1, Qt::AscendingOrder);
    TableOf(view).horizontalScrollBar()->setValue(TableOf(view).horizontalScrollBar()->maximum());
    TakeScreenshots(view, QStringLiteral("result-table-totals"), size);
    view.Show(view_test::DeviceCategories());
    TakeScreenshots(view, QStringLiteral("result-table-counts"), size);
    tabs.setCurrentIndex(ExchangeTab);
    view.Show(view_test::CutShort());
    TakeScreenshots(view, QStringLiteral("result-cut-short"), size);
}

}  // namespace
