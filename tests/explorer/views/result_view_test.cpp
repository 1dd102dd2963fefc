// The result of a call as tree, JSON, table and raw exchange.
#include "support/Samples.h"
#include "support/Screenshots.h"
#include "support/ViewTest.h"

#include <explorer/views/CodeView.h>
#include <explorer/views/JsonHighlighter.h>
#include <explorer/views/RecordModel.h>
#include <explorer/views/RecordTable.h>
#include <explorer/views/ResultView.h>
#include <explorer/views/TotalsRow.h>

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
using nlohmann::json;

class ResultViewTest : public QObject {
    Q_OBJECT

private slots:
    void TreeShowsNameValueAndType();
    void TreeListsFieldsInDeclarationOrder();
    void TreeShowsDefaultRecordOfEveryCall();
    void TreeShowsNameAndIdentifierOfListElements();
    void TreeFilterKeepsParentsAndChildrenOfMatches();
    void FindKeyFocusesTreeFilter();
    void CopiesValuePathAndSubtree();
    void MarksFieldsMissingInReply_data();
    void MarksFieldsMissingInReply();
    void MarksFieldsFromUnreadableKeyOn();
    void TreeColumnsFitNamesAndTypes();
    void ExpandsOnlyFirstLevelOfLargeRecord();
    void CopiesCompleteJson();
    void JsonCanBeSearchedByKeyboard();
    void SearchFindsTextOutsideTheShownPart();
    void SearchSelectsMatchAfterCrLf();
    void ShowsCompleteLongTextOnDemand();
    void JsonColoursFollowThePalette();
    void TableHasRowForEachElement();
    void ColumnsSortByValue();
    void TextsSortNaturally();
    void TableFilterSearchesEveryColumn();
    void TotalsCoverOnlyVisibleRows();
    void TotalsAlignWithTheirColumns();
    void ListCanBeChosenAmongSeveral();
    void PlainListsHaveOneColumn();
    void ExportsVisibleRowsInTheirOrder();
    void ExportButtonAsksForFileName();
    void ExportFailsWhenFileCannotBeWritten();
    void ShowsRawExchange();
    void ShowsHintWithoutRecord();
    void Screenshots();
};

namespace {

explorer::SharedRecord Shared(const json& record)
{
    return std::make_shared<const json>(record);
}

QTableView& TableOf(const QWidget& view)
{
    return *view.findChild<QTableView*>(QStringLiteral("table"));
}

/// What the table shows, row by row.
QList<QStringList> RowsOf(const QTableView& table)
{
    QList<QStringList> rows;
    const QAbstractItemModel& model = *table.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < model.columnCount(); ++column) {
            fields.append(model.index(row, column).data().toString());
        }
        rows.append(fields);
    }
    return rows;
}

QStringList ColumnOf(const QTableView& table, const char* title)
{
    QStringList fields;
    const QAbstractItemModel& model = *table.model();
    for (int column = 0; column < model.columnCount(); ++column) {
        for (int row = 0;
             row < model.rowCount() && model.headerData(column, Qt::Horizontal).toString() == QLatin1String(title);
             ++row) {
            fields.append(model.index(row, column).data().toString());
        }
    }
    return fields;
}

int ColumnNamed(const QTableView& table, const char* title)
{
    const QAbstractItemModel& model = *table.model();
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.headerData(column, Qt::Horizontal).toString() == QLatin1String(title)) {
            return column;
        }
    }
    return -1;
}

void Set(RecordTable& table, const CallOutcome& outcome)
{
    QVERIFY(table.SetRecord(*outcome.call->result, Shared(outcome.record)));
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

}  // namespace

void ResultViewTest::TreeShowsNameValueAndType()
{
    RecordModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const CallOutcome outcome = view_test::AlarmLinkage();
    model.SetRecord(*outcome.call->result, Shared(outcome.record));

    const QModelIndex root = model.index(0, 0);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(TextOf(model, {}, 0), QStringLiteral("Result||AlarmLinkControl"));
    QCOMPARE(TextOf(model, root, 0), QStringLiteral("linkAlarmOutputChannels|Elements: 1|AlarmLinkChannel[]"));
    QCOMPARE(model.index(0, RecordModel::TypeColumn, root).data(Qt::ToolTipRole).toString(),
             QStringLiteral("list of AlarmLinkChannel"));
    const QModelIndex audio = model.index(2, 0, root);
    QCOMPARE(TextOf(model, audio, 1), QString::fromUtf8("[1]|Horn \xC2\xB7 1$4$0$1|AlarmLinkAudioChannel"));
    const QModelIndex horn = model.index(1, 0, audio);
    QCOMPARE(TextOf(model, horn, 1), QStringLiteral("channelName|Horn|text"));

    const CallOutcome plain = view_test::Succeeded("BRMS.GetSupportDataBaseType", "{}", "[3, 1]");
    model.SetRecord(*plain.call->result, Shared(plain.record));
    QCOMPARE(TextOf(model, {}, 0), QStringLiteral("Result|Elements: 2|int[]"));
    QCOMPARE(TextOf(model, model.index(0, 0), 1), QStringLiteral("[1]|1|int"));

    model.Clear();
    QCOMPARE(model.rowCount(), 0);
}

void ResultViewTest::TreeListsFieldsInDeclarationOrder()
{
    RecordModel model;
    const CallOutcome outcome = view_test::ParkingLots();
    model.SetRecord(*outcome.call->result, Shared(outcome.record));
    const QModelIndex lot = model.index(0, 0, model.index(0, 0));
    const auto& fields = outcome.call->result->element->fields;
    QCOMPARE(model.rowCount(lot), int(fields.size()));
    for (int row = 0; row < model.rowCount(lot); ++row) {
        QCOMPARE(model.index(row, 0, lot).data().toString().toStdString(), std::string(fields[std::size_t(row)].name));
    }
}

void ResultViewTest::TreeShowsDefaultRecordOfEveryCall()
{
    RecordModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (const catalogue::Call& call : catalogue::Calls()) {
        if (call.result != nullptr) {
            model.SetRecord(*call.result, Shared(catalogue::Value(*call.result).ToJson()));
            QCOMPARE(model.rowCount(model.index(0, 0)), int(call.result->fields.size()));
        }
    }
}

void ResultViewTest::TreeShowsNameAndIdentifierOfListElements()
{
    RecordModel model;
    const auto first = [&model](const CallOutcome& outcome) {
        model.SetRecord(*outcome.call->result, Shared(outcome.record));
        return model.index(0, RecordModel::ValueColumn, model.index(0, 0)).data().toString();
    };
    QCOMPARE(first(view_test::ParkingLots()), QString::fromUtf8("Headquarters \xC2\xB7 1"));
    QCOMPARE(first(view_test::DeviceCategories()), QStringLiteral("deviceCategory: 1"));  // no name, no identifier
}

void ResultViewTest::TreeFilterKeepsParentsAndChildrenOfMatches()
{
    RecordModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const CallOutcome outcome = view_test::ParkingLots();
    model.SetRecord(*outcome.call->result, Shared(outcome.record));
    model.Filter(QStringLiteral("MAIN gate"));
    QCOMPARE(model.Matches(), 3);  // a position, its point and its reference point
    const QModelIndex root = model.index(0, 0);
    QCOMPARE(model.rowCount(root), 1);
    const QModelIndex lot = model.index(0, 0, root);
    QCOMPARE(lot.data().toString(), QStringLiteral("[0]"));
    QCOMPARE(model.rowCount(lot), 1);
    const QModelIndex positions = model.index(0, 0, lot);
    QCOMPARE(positions.data().toString(), QStringLiteral("positions"));
    QCOMPARE(model.rowCount(positions), 1);
    QCOMPARE(model.Path(model.index(0, 0, positions)), QStringLiteral("/0/positions/0"));

    model.Filter(QStringLiteral("positions"));
    QCOMPARE(model.rowCount(model.index(0, 0)), 3);
    const QModelIndex all = model.index(0, 0, model.index(0, 0, model.index(0, 0)));
    QCOMPARE(model.rowCount(all), 2);  // complete, although none of its children matches
    QVERIFY(model.rowCount(model.index(1, 0, all)) > 1);

    model.Filter(QStringLiteral("no such text"));
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.Matches(), 0);
    model.Filter(QString());
    QCOMPARE(model.rowCount(model.index(0, 0)), 3);
}

void ResultViewTest::FindKeyFocusesTreeFilter()
{
    ResultView view;
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.Show(view_test::ParkingLots());
    auto& tree = *view.findChild<QTreeView*>(QStringLiteral("record"));
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ramp"));
    QTRY_COMPARE(view.findChild<QLabel*>(QStringLiteral("recordMatches"))->text(), QStringLiteral("Matches: 1"));
    const QModelIndex root = tree.model()->index(0, 0);
    QCOMPARE(tree.model()->rowCount(root), 1);
    QVERIFY(tree.isExpanded(tree.model()->index(0, 0, root)));
}

void ResultViewTest::CopiesValuePathAndSubtree()
{
    ResultView view;
    const CallOutcome outcome = view_test::ParkingLots();
    view.Show(outcome);
    auto& tree = *view.findChild<QTreeView*>(QStringLiteral("record"));
    const QAbstractItemModel& model = *tree.model();
    const QModelIndex lot = model.index(1, 0, model.index(0, 0));
    const auto copied = [&tree](const QModelIndex& index, const char* action) {
        tree.setCurrentIndex(index);
        tree.findChild<QAction*>(QLatin1String(action))->trigger();
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(copied(model.index(1, 1, lot), "copyValue"), QStringLiteral("Underground car park"));
    QCOMPARE(copied(model.index(1, 0, lot), "copyPath"), QStringLiteral("/1/parkingLotName"));
    QCOMPARE(json::parse(copied(lot, "copySubtree").toStdString()), outcome.record[1]);
    QCOMPARE(json::parse(copied(lot, "copyValue").toStdString()), outcome.record[1]);
}

namespace {

/// Appends the paths of the values that the tree marks as missing in the reply.
void AddMarked(const RecordModel& model, const QModelIndex& parent, QStringList& marked)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.index(row, RecordModel::ValueColumn, parent)
                .data()
                .toString()
                .contains(QLatin1String("(not in the reply)"))) {
            marked.append(model.Path(index));
        }
        AddMarked(model, index, marked);
    }
}

QStringList MarkedIn(const ResultView& view)
{
    QStringList marked;
    const auto* pTree = view.findChild<QTreeView*>(QStringLiteral("record"));
    AddMarked(*qobject_cast<RecordModel*>(pTree->model()), {}, marked);
    return marked;
}

}  // namespace

void ResultViewTest::MarksFieldsMissingInReply_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("data");
    QTest::addColumn<QStringList>("marked");
    QTest::newRow("identifier that only the request contains")
        << QStringLiteral("BRMS.GetImageConfig")
        << QStringLiteral(R"({"brightness": 0, "saturation": 50, "contrast": "55", "sharpness": 40})")
        << QStringList{QStringLiteral("/channelId")};
    QTest::newRow("every element of a list")
        << QStringLiteral("BRMS.GetEncodeConfig") << QStringLiteral(R"({"encodeConfigurations": [
            {"streamType": 1, "bitRate": 0, "bitRateControl": 0, "compression": 7, "enable": 1, "frameRate": 25,
             "iFrameInterval": 50, "height": 0, "width": 0},
            {"streamType": 2, "bitRate": 9, "bitRateControl": 0, "compression": 7, "enable": 1, "frameRate": 25,
             "iFrameInterval": 50, "height": 0, "width": 0}]})")
        << QStringList{QStringLiteral("/0/channelId"), QStringLiteral("/1/channelId")};
    QTest::newRow("complete reply") << QStringLiteral("BRMS.GetRemoteLogConfig")
                                    << QStringLiteral(R"({"enable": false, "ip": "", "port": 0, "platformId": ""})")
                                    << QStringList{};
    QTest::newRow("key differs from the field name")
        << QStringLiteral("BRMS.GetDeviceLoginModel") << QStringLiteral(R"({"deviceLoginModel": 0})") << QStringList{};
    QTest::newRow("empty list in the reply")
        << QStringLiteral("BRMS.GetMultiCastConfig") << QStringLiteral(R"({"status": false, "streams": []})")
        << QStringList{QStringLiteral("/channelId")};
}

namespace {

/// The outcome of a read whose reply contains this data.
CallOutcome Replied(const QString& call, const QString& data)
{
    CallOutcome outcome = view_test::Succeeded(call.toLatin1().constData(), "{}", "null");
    const catalogue::Value record(*outcome.call->result);
    const QJsonObject object = QJsonDocument::fromJson(data.toUtf8()).object();
    outcome.succeeded = outcome.call->parse(object, record.Data()) == 0;
    outcome.record = record.ToJson();
    outcome.missing = FindMissingFields(*outcome.call, object, outcome.record, outcome.succeeded);
    return outcome;
}

}  // namespace

void ResultViewTest::MarksFieldsMissingInReply()
{
    QFETCH(QString, call);
    QFETCH(QString, data);
    QFETCH(QStringList, marked);
    const CallOutcome outcome = Replied(call, data);
    QVERIFY(outcome.succeeded);
    ResultView view;
    view.Show(outcome);
    QCOMPARE(MarkedIn(view), marked);
}

void ResultViewTest::MarksFieldsFromUnreadableKeyOn()
{
    const CallOutcome outcome = Replied(QStringLiteral("BRMS.GetRemoteLogConfig"),
                                        QStringLiteral(R"({"enable": false, "ip": "10.0.0.1", "platformId": "p"})"));
    QVERIFY(!outcome.succeeded);
    ResultView view;
    view.Show(outcome);
    QCOMPARE(MarkedIn(view), (QStringList{QStringLiteral("/port"), QStringLiteral("/platformId")}));
}

void ResultViewTest::TreeColumnsFitNamesAndTypes()
{
    constexpr QSize kSmallPane(560, 400);
    ResultView view;
    view.resize(kSmallPane);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.Show(view_test::AlarmLinkage());
    auto& tree = *view.findChild<QTreeView*>();
    for (const int column : {RecordModel::NameColumn, RecordModel::TypeColumn}) {
        const int width = tree.columnWidth(column);
        tree.resizeColumnToContents(column);
        QVERIFY(width >= tree.columnWidth(column));
    }
    QCOMPARE(tree.header()->length(), tree.viewport()->width());
}

void ResultViewTest::ExpandsOnlyFirstLevelOfLargeRecord()
{
    CallOutcome outcome = view_test::ParkingLots();
    const json lots = outcome.record;
    ResultView view;
    view.Show(outcome);
    const auto& tree = *view.findChild<QTreeView*>();
    const QModelIndex firstLot = tree.model()->index(0, 0, tree.model()->index(0, 0));
    QVERIFY(tree.isExpanded(firstLot));

    for (int times = 0; times < 20; ++times) {
        outcome.record.insert(outcome.record.end(), lots.begin(), lots.end());
    }
    view.Show(outcome);
    QVERIFY(tree.isExpanded(tree.model()->index(0, 0)));
    QVERIFY(!tree.isExpanded(tree.model()->index(0, 0, tree.model()->index(0, 0))));
}

void ResultViewTest::CopiesCompleteJson()
{
    CallOutcome outcome = view_test::Succeeded("BRMS.GetDeriveToken", "{}", "\"\"");
    constexpr std::size_t kLong = 600000;
    outcome.record = std::string(kLong, 'x');
    ResultView view;
    view.Show(outcome);
    auto& page = *qobject_cast<CodeView*>(view.findChild<QTabWidget*>()->widget(JsonTab));
    QVERIFY(page.findChild<QPlainTextEdit*>()->toPlainText().size() < int(kLong));
    page.findChild<QPushButton*>(QStringLiteral("copyText"))->click();
    QCOMPARE(json::parse(QGuiApplication::clipboard()->text().toStdString()), outcome.record);
}

namespace {

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
    return view.findChild<QLabel*>(QStringLiteral("findCount"))->text();
}

}  // namespace

void ResultViewTest::JsonCanBeSearchedByKeyboard()
{
    CodeView view(CodeView::Kind::Json, QString());
    view.SetText(QStringLiteral("Gate, GATE and gate"));
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    const auto& edit = *view.findChild<QPlainTextEdit*>();
    view.findChild<QPlainTextEdit*>()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("find"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("gate"));
    QCOMPARE(CountOf(view), QStringLiteral("1 of 3"));
    QCOMPARE(Selected(view), QStringLiteral("Gate"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(Selected(view), QStringLiteral("GATE"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    QCOMPARE(Selected(view), QStringLiteral("gate"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    QCOMPARE(CountOf(view), QStringLiteral("1 of 3"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(CountOf(view), QStringLiteral("3 of 3"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(CountOf(view), QStringLiteral("2 of 3"));
    QCOMPARE(edit.textCursor().selectionStart(), 6);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    QCOMPARE(CountOf(view), QStringLiteral("No match"));
    QVERIFY(!view.findChild<QToolButton*>(QStringLiteral("findNext"))->isEnabled());

    // A new text is searched for the same pattern.
    view.SetText(QStringLiteral("a gatex"));
    QCOMPARE(CountOf(view), QStringLiteral("0 of 1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
    QCOMPARE(Selected(view), QStringLiteral("gatex"));
}

void ResultViewTest::SearchFindsTextOutsideTheShownPart()
{
    CodeView view(CodeView::Kind::Text, QString());
    view.SetText(Lines(60000));
    const auto& edit = *view.findChild<QPlainTextEdit*>();
    QVERIFY(!edit.toPlainText().contains(QLatin1String("line 55555")));
    view.findChild<QLineEdit*>(QStringLiteral("find"))->setText(QStringLiteral("line 55555"));
    QCOMPARE(CountOf(view), QStringLiteral("1 of 1"));
    QCOMPARE(Selected(view), QStringLiteral("line 55555"));
    QCOMPARE(edit.textCursor().block().text(), QStringLiteral("line 55555"));
    QVERIFY(edit.toPlainText().size() < view.Text().size());
}

void ResultViewTest::SearchSelectsMatchAfterCrLf()
{
    CodeView view(CodeView::Kind::Text, QString());
    view.SetText(QStringLiteral("one\r\ntwo\r\nthree"));
    view.findChild<QLineEdit*>(QStringLiteral("find"))->setText(QStringLiteral("three"));
    QCOMPARE(Selected(view), QStringLiteral("three"));
}

void ResultViewTest::ShowsCompleteLongTextOnDemand()
{
    CodeView view(CodeView::Kind::Text, QString());
    const QString text = Lines(60000);
    view.SetText(text);
    const auto& shortened = *view.findChild<QLabel*>(QStringLiteral("shortened"));
    auto& all = *view.findChild<QPushButton*>(QStringLiteral("showAll"));
    QCOMPARE(shortened.text(), QStringLiteral("Characters 1 to %1 of %2; search and copy cover the whole text.")
                                   .arg(QLocale().toString(200000), QLocale().toString(text.size())));
    QVERIFY(shortened.isVisibleTo(&view) && all.isVisibleTo(&view));
    all.click();
    QCOMPARE(view.findChild<QPlainTextEdit*>()->toPlainText(), text);
    QVERIFY(!shortened.isVisibleTo(&view) && !all.isVisibleTo(&view));
    view.SetText(Lines(3));
    QVERIFY(!shortened.isVisibleTo(&view));
}

void ResultViewTest::JsonColoursFollowThePalette()
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
    QCOMPARE(light.size(), 6);  // three keys, a string, a number and null
    QCOMPARE(light[0], light[2]);
    QCOMPARE(light[0], light[4]);
    QVERIFY(light[0] != light[1] && light[1] != light[3] && light[3] != light[5]);

    edit.setPalette(view_test::DarkPalette());
    const QList<QRgb> dark = colours();
    QCOMPARE(dark.size(), light.size());
    QVERIFY(QColor(dark[0]).lightness() > QColor(light[0]).lightness());
}

void ResultViewTest::TableHasRowForEachElement()
{
    RecordTable table;
    Set(table, view_test::DeviceCategories());
    const QTableView& view = TableOf(table);
    QCOMPARE(view.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("deviceCategory"));
    QCOMPARE(view.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("deviceCount"));
    QCOMPARE(RowsOf(view), (QList<QStringList>{{QStringLiteral("1"), QStringLiteral("412")},
                                               {QStringLiteral("5"), QStringLiteral("36")},
                                               {QStringLiteral("8"), QStringLiteral("7")},
                                               {QStringLiteral("34"), QStringLiteral("1250")}}));
    QCOMPARE(table.findChild<QLabel*>(QStringLiteral("rows"))->text(), QStringLiteral("Rows: 4"));
}

void ResultViewTest::ColumnsSortByValue()
{
    RecordTable table;
    Set(table, view_test::DeviceCategories());
    QTableView& view = TableOf(table);
    view.sortByColumn(1, Qt::AscendingOrder);
    QCOMPARE(ColumnOf(view, "deviceCount"),
             (QStringList{QStringLiteral("7"), QStringLiteral("36"), QStringLiteral("412"), QStringLiteral("1250")}));
    view.sortByColumn(1, Qt::DescendingOrder);
    QCOMPARE(ColumnOf(view, "deviceCount").constFirst(), QStringLiteral("1250"));

    // A new record is shown in its original order.
    Set(table, view_test::ParkingLots());
    QCOMPARE(ColumnOf(view, "id"), (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));
    view.sortByColumn(ColumnNamed(view, "positions"), Qt::AscendingOrder);
    QCOMPARE(ColumnOf(view, "id"), (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
    view.sortByColumn(ColumnNamed(view, "parkingLotName"), Qt::DescendingOrder);
    QCOMPARE(ColumnOf(view, "id"), (QStringList{QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("1")}));
}

void ResultViewTest::TextsSortNaturally()
{
    RecordTable table;
    Set(table, view_test::Succeeded("BRMS.GetMemoryOutOfServerList", "{}",
                                    R"(["10", "9", "b", "A", "18446744073709551616", "Gate 10", "gate 9",
                                        "1000021$1$0$10", "1000021$1$0$2"])"));
    QTableView& view = TableOf(table);
    view.sortByColumn(0, Qt::AscendingOrder);
    QCOMPARE(ColumnOf(view, "Value"),
             (QStringList{QStringLiteral("9"), QStringLiteral("10"), QStringLiteral("1000021$1$0$2"),
                          QStringLiteral("1000021$1$0$10"), QStringLiteral("18446744073709551616"), QStringLiteral("A"),
                          QStringLiteral("b"), QStringLiteral("gate 9"), QStringLiteral("Gate 10")}));
}

void ResultViewTest::TableFilterSearchesEveryColumn()
{
    RecordTable table;
    Set(table, view_test::ParkingLots());
    const QTableView& view = TableOf(table);
    auto& filter = *table.findChild<QLineEdit*>(QStringLiteral("filter"));
    QTest::keyClicks(&filter, QStringLiteral("HEADQUARTERS"));
    QCOMPARE(ColumnOf(view, "id"), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
    QCOMPARE(table.findChild<QLabel*>(QStringLiteral("rows"))->text(), QStringLiteral("Rows: 2 of 3"));
    filter.setText(QStringLiteral("240"));
    QCOMPARE(ColumnOf(view, "id"), (QStringList{QStringLiteral("1")}));
    filter.setText(QStringLiteral(".*"));
    QCOMPARE(view.model()->rowCount(), 0);
    QVERIFY(!table.findChild<QPushButton*>(QStringLiteral("export"))->isEnabled());
    Set(table, view_test::ParkingLots());
    QCOMPARE(view.model()->rowCount(), 3);
}

void ResultViewTest::TotalsCoverOnlyVisibleRows()
{
    RecordTable table;
    Set(table, view_test::ParkingLots());
    const QTableView& view = TableOf(table);
    const auto& totals = *table.findChild<explorer::TotalsRow*>();
    const auto total = [&](const char* column) { return totals.Total(ColumnNamed(view, column)); };
    QCOMPARE(total("totalParkingSpaceCount"), QStringLiteral("329"));
    QCOMPARE(total("idleParkingSpaceCount"), QStringLiteral("66"));
    QCOMPARE(total("positions"), QStringLiteral("3"));
    QCOMPARE(total("parkingLotMode"), QString());  // a code, not a count
    QCOMPARE(total("id"), QString());

    table.findChild<QLineEdit*>(QStringLiteral("filter"))->setText(QStringLiteral("car park"));
    QCOMPARE(total("totalParkingSpaceCount"), QStringLiteral("80"));

    Set(table, view_test::Succeeded("OMMS.GetAlertTypes", "{}", R"([{"alertTypeId": 1, "alertTypeName": "a"}])"));
    QVERIFY(!totals.isVisibleTo(&table));
}

void ResultViewTest::TotalsAlignWithTheirColumns()
{
    RecordTable table;
    Set(table, view_test::ParkingLots());
    table.resize(500, 300);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QTableView& view = TableOf(table);
    const auto& cells = *table.findChild<explorer::TotalsRow*>()->findChild<QHeaderView*>();
    const auto compare = [&] {
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            const QPoint above = view.viewport()->mapTo(&table, QPoint(view.columnViewportPosition(column), 0));
            const QPoint below = cells.viewport()->mapTo(&table, QPoint(cells.sectionViewportPosition(column), 0));
            QCOMPARE(below.x(), above.x());
            QCOMPARE(cells.sectionSize(column), view.columnWidth(column));
        }
    };
    compare();
    view.setColumnWidth(2, 200);
    compare();
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    QVERIFY(view.horizontalScrollBar()->value() > 0);
    compare();
}

void ResultViewTest::ListCanBeChosenAmongSeveral()
{
    RecordTable table;
    Set(table, view_test::AlarmLinkage());
    auto& list = *table.findChild<QComboBox*>(QStringLiteral("list"));
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.currentText(), QStringLiteral("linkAlarmOutputChannels"));
    QCOMPARE(ColumnOf(TableOf(table), "channelName"), (QStringList{QStringLiteral("Siren")}));
    list.setCurrentIndex(2);
    QCOMPARE(ColumnOf(TableOf(table), "channelName"), (QStringList{QStringLiteral("Speaker"), QStringLiteral("Horn")}));
    list.setCurrentIndex(1);
    QCOMPARE(TableOf(table).model()->rowCount(), 0);

    Set(table, view_test::DeviceCategories());
    QVERIFY(!list.isVisibleTo(&table));
}

void ResultViewTest::PlainListsHaveOneColumn()
{
    RecordTable table;
    Set(table, view_test::Succeeded("BRMS.GetSupportDataBaseType", "{}", "[3, 1, 20]"));
    QCOMPARE(ColumnOf(TableOf(table), "Value"),
             (QStringList{QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("20")}));
}

void ResultViewTest::ExportsVisibleRowsInTheirOrder()
{
    RecordTable table;
    CallOutcome outcome = view_test::AlarmLinkage();
    outcome.record["linkAudioChannels"][1]["channelName"] = "Horn, \"loud\"\nT\xC3\xBCr";
    Set(table, outcome);
    table.findChild<QComboBox*>(QStringLiteral("list"))->setCurrentIndex(2);
    TableOf(table).sortByColumn(1, Qt::AscendingOrder);

    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("table.csv"));
    QVERIFY(table.ExportTo(fileName));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("channelId,channelName,fileIds\r\n"
                                        "1$4$0$1,\"Horn, \"\"loud\"\"\nT\xC3\xBCr\",c\r\n"
                                        "1$4$0$0,Speaker,\"a,b\"\r\n"));

    table.findChild<QLineEdit*>(QStringLiteral("filter"))->setText(QStringLiteral("Speaker"));
    QCOMPARE(table.ToCsv().count("\r\n"), 2);

    Set(table, view_test::ParkingLots());  // nested lists are exported as JSON
    QVERIFY(table.ToCsv().contains(R"("[{""id"":""31"",""points"":[],""positionName"":""Ramp"",""remark"":""""}]")"));
}

namespace {

/// Enters a name in the next file dialog and confirms it.
void AnswerFileDialog(RecordTable& table, const QString& fileName)
{
    QTimer::singleShot(0, &table, [fileName] {
        auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(pDialog != nullptr);
        pDialog->findChild<QLineEdit*>()->setText(fileName);
        QTest::keyClick(pDialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
}

}  // namespace

void ResultViewTest::ExportButtonAsksForFileName()
{
    RecordTable table;
    Set(table, view_test::DeviceCategories());
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("devices.csv"));
    AnswerFileDialog(table, fileName);
    table.findChild<QPushButton*>(QStringLiteral("export"))->click();
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), table.ToCsv());
}

void ResultViewTest::ExportFailsWhenFileCannotBeWritten()
{
    RecordTable table;
    Set(table, view_test::DeviceCategories());
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("devices.csv"));
    QVERIFY(QDir().mkdir(fileName));
    QVERIFY(!table.ExportTo(fileName));
    QVERIFY(!table.ExportTo(QStringLiteral("/no/such/folder/table.csv")));
}

void ResultViewTest::ShowsRawExchange()
{
    ResultView view;
    CallOutcome outcome = view_test::EncodeUpdate();
    outcome.request.headers = {{QStringLiteral("X-B"), QStringLiteral("2")}};
    outcome.request.body = "{}";
    outcome.reply->body = "{\"code\":1000,\n \"desc\": \"T\xC3\xBCr\"}";
    outcome.reply->headers = {{QStringLiteral("X-A"), QStringLiteral("1")}};
    view.Show(outcome);
    const auto& page = *qobject_cast<CodeView*>(view.findChild<QTabWidget*>()->widget(ExchangeTab));
    const QString sent = QStringLiteral("PUT ") + outcome.request.url + QStringLiteral("\nX-B: 2\n\n{}");
    QCOMPARE(page.Text(), sent + QString::fromUtf8("\n\nHTTP 200\nX-A: 1\n\n"
                                                   "{\"code\":1000,\n \"desc\": \"T\xC3\xBCr\"}"));
    outcome.reply.reset();
    view.Show(outcome);
    QCOMPARE(page.Text(), sent);
    outcome.request.headers.clear();
    outcome.request.body.clear();
    view.Show(outcome);
    QVERIFY(page.Text().endsWith(QStringLiteral("\n\nNothing was sent.")));
}

void ResultViewTest::ShowsHintWithoutRecord()
{
    ResultView view;
    QCOMPARE(HintOn(view, RecordTab), QStringLiteral("Run a call to see its result here."));
    view.Show(view_test::EncodeUpdate());
    QCOMPARE(HintOn(view, RecordTab), QStringLiteral("This call returns no record."));
    view.Show(view_test::Succeeded("BRMS.GetDeviceLoginModel", "{}", "1"));
    QCOMPARE(HintOn(view, RecordTab), QString());
    QCOMPARE(HintOn(view, TableTab), QStringLiteral("There is no list in this record."));
    view.Show(view_test::ParkingLots());
    QCOMPARE(HintOn(view, TableTab), QString());
    view.Clear();
    QCOMPARE(HintOn(view, TableTab), QStringLiteral("Run a call to see its result here."));
}

void ResultViewTest::Screenshots()
{
    using view_test::TakeScreenshots;
    const QSize size(700, 420);
    ResultView view;
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

int main(int argc, char** argv)
{
    return view_test::Run<ResultViewTest>(argc, argv);
}

#include "result_view_test.moc"
