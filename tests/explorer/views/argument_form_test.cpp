// The form of a call's arguments, as a user fills it in.
#include "support/Screenshots.h"
#include "support/ViewTest.h"

#include <explorer/views/ArgumentForm.h>
#include <explorer/views/Json.h>
#include <explorer/views/NumberBox.h>

#include <catalogue/Call.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QToolButton>

using explorer::ArgumentForm;
using explorer::NumberBox;
using nlohmann::json;

namespace {

const catalogue::Call& Call(const char* name)
{
    return *catalogue::FindCall(name);
}

template <typename Widget>
Widget& Child(const QWidget& form, const char* name, int index = 0)
{
    const QList<Widget*> found = form.findChildren<Widget*>(QString::fromLatin1(name));
    Q_ASSERT(index < found.size());
    return *found[index];
}

/// Replaces the text of a field by typing.
void Type(QWidget& field, const char* text)
{
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromUtf8(text));
}

json ArgumentsOf(const ArgumentForm& form)
{
    return explorer::FromQt(form.Arguments());
}

void SetClipboard(const char* text)
{
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
}

QString Problem(const ArgumentForm& form)
{
    const auto& problem = Child<QLabel>(form, "pasteProblem");
    return problem.isVisibleTo(&form) ? problem.text() : QString();
}

}  // namespace

class ArgumentFormTest : public QObject {
    Q_OBJECT

private slots:
    void IsInvalidWithoutCall();
    void IsValidForCallWithoutArguments();
    void StartsWithDefaultValuesForEveryCall();
    void ReturnsTheArgumentsThatWereSet();
    void TypedValuesBecomeArguments();
    void NumberBoxValidatesTypedText_data();
    void NumberBoxValidatesTypedText();
    void NumberBoxStepsWithinItsRange();
    void UnfocusedNumberBoxIgnoresTheWheel();
    void ListElementsCanBeAddedRemovedAndMoved();
    void TabKeyFollowsScreenOrder();
    void LabelsHaveTheirFieldsAsBuddies();
    void LabelToolTipsShowDescriptions();
    void ShowsLimitsAndExamples();
    void IsInvalidWhenServerWouldRefuseValue_data();
    void IsInvalidWhenServerWouldRefuseValue();
    void NamesRefusedValueInJson();
    void CompletesKnownValues();
    void ReportsValuesThatWereNotEntered();
    void NewElementIsNotEnteredUntilOneOfItsFieldsIs();
    void FormsFitIntoNarrowPane();
    void PastesCopiedArguments();
    void InvalidPasteShowsReasonAndChangesNothing_data();
    void InvalidPasteShowsReasonAndChangesNothing();
    void IgnoresArgumentsOfTheWrongType();
    void JsonViewShowsAndChangesArguments();
    void KeepsInvalidJsonAsTyped();
    void EmitsChangedWhenInputChanges();
    void Screenshots();
};

namespace {

constexpr const char* kGroup = R"({"groupId": "7", "group": {"groupName": "Night", "memo": "a \"b\""}})";
constexpr const char* kQuickCommand = R"({"command": {"id": "", "quickCommandName": "Open the gate",
    "enableShortcutKeys": true, "shortcutKeys": "Ctrl+1", "executeMode": 1, "remark": "",
    "httpUrls": [{"method": 0, "url": "http://10.0.0.1/open", "body": "", "seq": "1"},
                 {"method": 2, "url": "http://10.0.0.2/light", "body": "{\"on\": 1}", "seq": "2"},
                 {"method": 0, "url": "http://10.0.0.3/log", "body": "", "seq": "3"}]}})";

}  // namespace

void ArgumentFormTest::IsInvalidWithoutCall()
{
    const ArgumentForm form;
    QVERIFY(!form.IsValid());
    QVERIFY(form.Arguments().isEmpty());
    QVERIFY(!Child<QPushButton>(form, "copyArguments").isEnabled());
    QVERIFY(!Child<QPushButton>(form, "pasteArguments").isEnabled());
}

void ArgumentFormTest::IsValidForCallWithoutArguments()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.GetTimeSyncConfig"));
    QVERIFY(form.IsValid());
    QVERIFY(form.Arguments().isEmpty());
}

void ArgumentFormTest::StartsWithDefaultValuesForEveryCall()
{
    ArgumentForm form;
    for (const catalogue::Call& call : catalogue::Calls()) {
        form.SetCall(call);
        QVERIFY2(form.IsValid(), call.name.c_str());
        json fresh = json::object();
        for (const catalogue::Argument& argument : call.arguments) {
            fresh[std::string(argument.name)] = catalogue::Value(*argument.type).ToJson();
        }
        QCOMPARE(ArgumentsOf(form), fresh);
    }
}

namespace {

/// A value of the type that differs from a default value in every field. Lists have two elements.
json Distinct(const catalogue::Type& type, int& next)
{
    switch (type.kind) {
    case catalogue::Kind::Bool:
        return true;
    case catalogue::Kind::Double:
        return ++next + 0.5;
    case catalogue::Kind::Text:
        return "text \xC3\xBC\n" + std::to_string(++next);
    case catalogue::Kind::Record: {
        json record = json::object();
        for (const catalogue::Field& field : type.fields) {
            record[std::string(field.name)] = Distinct(*field.type, next);
        }
        return record;
    }
    case catalogue::Kind::List:
        return {Distinct(*type.element, next), Distinct(*type.element, next)};
    default:
        return ++next;
    }
}

}  // namespace

void ArgumentFormTest::ReturnsTheArgumentsThatWereSet()
{
    ArgumentForm form;
    int next = 0;
    for (const catalogue::Call& call : catalogue::Calls()) {
        json arguments = json::object();
        for (const catalogue::Argument& argument : call.arguments) {
            arguments[std::string(argument.name)] = Distinct(*argument.type, next);
        }
        form.SetCall(call);
        form.SetArguments(explorer::ToQt(arguments));
        QVERIFY2(form.IsValid(), call.name.c_str());
        QCOMPARE(ArgumentsOf(form), arguments);
    }
}

void ArgumentFormTest::TypedValuesBecomeArguments()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.SetTimeSyncConfig"));
    Child<QCheckBox>(form, "enableNtp").click();
    Type(Child<QLineEdit>(form, "startTime"), "02:00:00");
    Type(Child<NumberBox>(form, "interval"), "-7");
    const json config = ArgumentsOf(form).at("config");
    QCOMPARE(config.at("enableNtp"), json(true));
    QCOMPARE(config.at("startTime"), json("02:00:00"));
    QCOMPARE(config.at("interval"), json(-7));
}

void ArgumentFormTest::NumberBoxValidatesTypedText_data()
{
    using catalogue::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<QString>("value");
    const auto add = [](const char* name, Kind kind, const char* typed, const char* problem, const char* value) {
        QTest::newRow(name) << int(kind) << QString::fromLatin1(typed) << QString::fromLatin1(problem)
                            << QString::fromLatin1(value);
    };
    const char* intRange = "Must be from -2147483648 to 2147483647";
    const char* int64Range = "Must be from -9223372036854775808 to 9223372036854775807";
    add("int: smallest", Kind::Int, "-2147483648", "", "-2147483648");
    add("int: largest", Kind::Int, "2147483647", "", "2147483647");
    add("int: too small", Kind::Int, "-2147483649", intRange, "0");
    add("int: too large", Kind::Int, "2147483648", intRange, "0");
    add("int: beyond 64 bits", Kind::Int, "99999999999999999999", intRange, "0");
    add("int: empty", Kind::Int, "", "Enter a number", "0");
    add("int: only a minus", Kind::Int, "-", "Not a whole number", "0");
    add("int: a fraction", Kind::Int, "1.5", "Not a whole number", "0");
    add("int: letters", Kind::Int, "twelve", "Not a whole number", "0");
    add("int: spaces around", Kind::Int, " 12 ", "", "12");
    add("int64: smallest", Kind::Int64, "-9223372036854775808", "", "-9223372036854775808");
    add("int64: largest", Kind::Int64, "9223372036854775807", "", "9223372036854775807");
    add("int64: too large", Kind::Int64, "9223372036854775808", int64Range, "0");
    add("int64: too small", Kind::Int64, "-9223372036854775809", int64Range, "0");
    add("double: a fraction", Kind::Double, "-0.25", "", "-0.25");
    add("double: an exponent", Kind::Double, "1e3", "", "1000.0");
    add("double: a comma", Kind::Double, "1,5", "Must be a number, such as 0.5", "0");
    add("double: not finite", Kind::Double, "inf", "Must be a number, such as 0.5", "0");
    add("double: empty", Kind::Double, "", "Enter a number", "0");
}

void ArgumentFormTest::NumberBoxValidatesTypedText()
{
    QFETCH(int, kind);
    QFETCH(QString, typed);
    QFETCH(QString, problem);
    QFETCH(QString, value);
    NumberBox box(catalogue::Kind{kind});
    Type(box, typed.toUtf8().constData());
    QCOMPARE(box.text(), typed);
    QCOMPARE(box.Problem(), problem);
    QCOMPARE(explorer::CompactJsonText(box.Value()), value);
}

void ArgumentFormTest::NumberBoxStepsWithinItsRange()
{
    NumberBox box(catalogue::Kind::Int64);
    box.SetValue(std::numeric_limits<qint64>::max() - 1);
    QTest::keyClick(&box, Qt::Key_PageUp);
    QCOMPARE(box.Value(), json(std::numeric_limits<qint64>::max()));
    box.SetValue(std::numeric_limits<qint64>::min() + 1);
    QTest::keyClick(&box, Qt::Key_PageDown);
    QCOMPARE(box.Value(), json(std::numeric_limits<qint64>::min()));
    box.SetValue(5);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.Value(), json(6));
}

void ArgumentFormTest::UnfocusedNumberBoxIgnoresTheWheel()
{
    NumberBox box(catalogue::Kind::Int);
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &event);
    QVERIFY(!event.isAccepted());
    QCOMPARE(box.Value(), json(0));
}

void ArgumentFormTest::ListElementsCanBeAddedRemovedAndMoved()
{
    ArgumentForm form;
    form.SetCall(Call("DMS.BatchWashOpen"));
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    auto& add = Child<QPushButton>(form, "channelIds.add");
    for (const char* channel : {"a", "b", "c"}) {
        add.click();
        QVERIFY(QApplication::focusWidget() != nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(channel));
    }
    const auto channels = [&form] { return ArgumentsOf(form).at("channelIds"); };
    QCOMPARE(channels(), (json{"a", "b", "c"}));

    Child<QToolButton>(form, "channelIds.up", 2).click();
    QCOMPARE(channels(), (json{"a", "c", "b"}));
    Child<QToolButton>(form, "channelIds.down", 0).click();
    QCOMPARE(channels(), (json{"c", "a", "b"}));

    // The first element cannot move up, the last cannot move down. Buttons are found in the order of their creation.
    QVERIFY(!Child<QToolButton>(form, "channelIds.up", 2).isEnabled());
    QVERIFY(!Child<QToolButton>(form, "channelIds.down", 1).isEnabled());

    Child<QToolButton>(form, "channelIds.remove", 0).click();
    QCOMPARE(channels(), (json{"c", "b"}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Child<QToolButton>(form, "channelIds.remove", 0).click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Child<QToolButton>(form, "channelIds.remove", 0).click();
    QCOMPARE(channels(), json::array());
    QCOMPARE(QApplication::focusWidget(), &add);
}

void ArgumentFormTest::TabKeyFollowsScreenOrder()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.AddQuickCommand"));
    form.SetArguments(explorer::ToQt(json::parse(kQuickCommand)));
    form.resize(900, 700);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    Child<QToolButton>(form, "httpUrls.up", 2).click();  // the third element becomes the second
    QCoreApplication::processEvents();

    auto& first = Child<QLineEdit>(form, "id");
    first.setFocus();
    int stops = 0;
    QPoint last(0, -1);
    const auto* const pContent = form.findChild<QScrollArea*>()->widget();
    do {
        const QWidget* pFocus = QApplication::focusWidget();
        const QPoint position = pFocus->mapTo(pContent, QPoint(0, 0));
        QVERIFY2(position.y() > last.y() || position.x() > last.x(), qPrintable(pFocus->objectName()));
        last = position;
        ++stops;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (pContent->isAncestorOf(QApplication::focusWidget()) && stops < 100);

    // Six fields, three elements of four fields and three buttons (one fewer at either end), and the add button.
    QCOMPARE(stops, 6 + 3 * 7 - 2 + 1);
    QCOMPARE(QApplication::focusWidget(), &Child<QPushButton>(form, "copyArguments"));
}

void ArgumentFormTest::LabelsHaveTheirFieldsAsBuddies()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.GetEncodeCapability"));
    int labels = 0;
    const QList<QLabel*> all = form.findChildren<QLabel*>();
    for (const QLabel* pLabel : all) {
        if (pLabel->buddy() != nullptr) {
            QCOMPARE(pLabel->buddy()->accessibleName(), QString(pLabel->text()).remove(QChar(0x200B)));
            ++labels;
        }
    }
    QCOMPARE(labels, 2);
}

namespace {

explorer::FieldFacts Described(const char* description)
{
    explorer::FieldFacts facts;
    facts.description = QString::fromUtf8(description);
    return facts;
}

/// The facts of a field that accepts only these texts or this range.
explorer::FieldFacts Limited(const QStringList& values, std::optional<double> minimum = {},
                             std::optional<double> maximum = {})
{
    explorer::FieldFacts facts;
    facts.values = values;
    facts.minimum = minimum;
    facts.maximum = maximum;
    return facts;
}

}  // namespace

void ArgumentFormTest::LabelToolTipsShowDescriptions()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.SetMultiCastConfig"));
    form.Describe({{QStringLiteral("status"), Described("Of the channel, <b> & all.")},
                   {QStringLiteral("streams/status"), Described("Of the stream.")}});
    Child<QPushButton>(form, "streams.add").click();
    QStringList shown;
    const QList<QLabel*> all = form.findChildren<QLabel*>();
    for (const QLabel* pLabel : all) {
        if (pLabel->buddy() != nullptr) {
            shown << pLabel->accessibleName() << pLabel->toolTip() << pLabel->buddy()->accessibleDescription();
        }
    }
    QCOMPARE(shown.join(QLatin1Char('|')).toUtf8(),
             QByteArray("channelId|text||"
                        "status|<p>bool. Of the channel, &lt;b&gt; &amp; all.</p>|Of the channel, <b> & all.|"
                        "multicastIp|text||multicastPort|text||streamType|int||"
                        "status|<p>bool. Of the stream.</p>|Of the stream."));
}

void ArgumentFormTest::ShowsLimitsAndExamples()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.SetRemoteLogConfig"));
    explorer::FieldFacts port = Limited({}, 1, 65535);
    port.example = QStringLiteral("514");
    port.description = QStringLiteral("Of the log server.");
    form.Describe({{QStringLiteral("port"), port}});
    QCOMPARE(Child<QLabel>(form, "port.limits").text(), QString::fromUtf8("\xE2\x89\xA5 1, \xE2\x89\xA4 65535"));
    QCOMPARE(Child<NumberBox>(form, "port").accessibleDescription(),
             QString::fromUtf8("Of the log server.\nAllowed: \xE2\x89\xA5 1, \xE2\x89\xA4 65535\nExample: 514"));
    explorer::FieldFacts address;
    address.example = QStringLiteral("192.168.10.9");
    form.Describe({{QStringLiteral("ip"), address}});
    QCOMPARE(Child<QLineEdit>(form, "ip").placeholderText(), QStringLiteral("e.g. 192.168.10.9"));
    QVERIFY(!Child<QLabel>(form, "port.limits").isVisibleTo(&form));
}

void ArgumentFormTest::IsInvalidWhenServerWouldRefuseValue_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char* field, const char* typed, const char* problem) {
        QTest::addRow("%s %s", field, typed)
            << QString::fromLatin1(field) << QString::fromLatin1(typed) << QString::fromLatin1(problem);
    };
    add("port", "1", "");
    add("port", "9", "");
    add("port", "0", "Must be 1 or more");
    add("port", "10", "Must be 9 or less");
    add("port", "many", "Not a whole number");
    add("platformId", "a", "");
    add("platformId", "A", "Must be one of: a, b");
    add("platformId", "", "Must be one of: a, b");
}

void ArgumentFormTest::IsInvalidWhenServerWouldRefuseValue()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, problem);
    ArgumentForm form;
    form.SetCall(Call("BRMS.SetRemoteLogConfig"));
    form.SetArguments(explorer::ToQt(json::parse(R"({"config": {"port": 5, "platformId": "b"}})")));
    form.Describe({{QStringLiteral("port"), Limited({}, 1, 9)},
                   {QStringLiteral("platformId"), Limited({QStringLiteral("a"), QStringLiteral("b")})}});
    QVERIFY(form.IsValid());
    Type(Child<QWidget>(form, field.toLatin1().constData()), typed.toUtf8().constData());
    QCOMPARE(form.IsValid(), problem.isEmpty());
    QCOMPARE(Child<QLabel>(form, (field + QLatin1String(".problem")).toLatin1().constData()).text(), problem);
}

void ArgumentFormTest::NamesRefusedValueInJson()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.GetLocalSetting"));
    form.Describe({{QStringLiteral("settingType"), Limited({}, 0)}});
    Child<QPushButton>(form, "argumentsAsJson").click();
    Child<QPlainTextEdit>(form, "argumentsJson").setPlainText(QStringLiteral(R"({"settingType": -1})"));
    QVERIFY(!form.IsValid());
    QCOMPARE(Problem(form), QStringLiteral("settingType: Must be 0 or more"));
}

void ArgumentFormTest::CompletesKnownValues()
{
    ArgumentForm form;
    form.SetCall(Call("DMS.BatchWashOpen"));
    form.Describe({}, [](const QString& name) {
        return name == QLatin1String("channelIds")
                   ? QVector<explorer::Completion>{{QStringLiteral("7$1"), QStringLiteral("Main gate")},
                                                   {QStringLiteral("8$1"), QString()}}
                   : QVector<explorer::Completion>();
    });
    Child<QPushButton>(form, "channelIds.add").click();  // an element added after Describe()
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    auto& field = Child<QLineEdit>(form, "channelIds");
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("GATE"));
    QAbstractItemView* const pList = field.completer()->popup();
    QTRY_VERIFY(pList->isVisible());
    QCOMPARE(pList->model()->rowCount(), 1);
    QCOMPARE(pList->model()->index(0, 0).data().toString(), QString::fromUtf8("7$1  \xC2\xB7  Main gate"));
    QTest::keyClick(pList, Qt::Key_Down);
    QTest::keyClick(pList, Qt::Key_Return);
    QCOMPARE(field.text(), QStringLiteral("7$1"));
}

void ArgumentFormTest::ReportsValuesThatWereNotEntered()
{
    using explorer::Origin;
    using Paths = std::vector<std::string>;
    ArgumentForm form;
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    QCOMPARE(form.NotEntered().values, (Paths{"/groupId", "/group/groupName", "/group/memo"}));
    Type(Child<QLineEdit>(form, "memo"), "x");
    QCOMPARE(form.NotEntered().values, (Paths{"/groupId", "/group/groupName"}));

    // Values that the edited JSON changes count as entered.
    Child<QPushButton>(form, "argumentsAsJson").click();
    Child<QPlainTextEdit>(form, "argumentsJson")
        .setPlainText(QStringLiteral(R"({"groupId": "7", "group": {"groupName": "", "memo": "x"}})"));
    QCOMPARE(form.NotEntered().values, (Paths{"/group/groupName"}));
    form.SetArguments(form.Arguments(), Origin::Known);
    QCOMPARE(form.NotEntered().values, Paths{});
    form.SetArguments(form.Arguments());
    QCOMPARE(form.NotEntered().values.size(), std::size_t(3));
}

void ArgumentFormTest::NewElementIsNotEnteredUntilOneOfItsFieldsIs()
{
    using Paths = std::vector<std::string>;
    ArgumentForm form;
    form.SetCall(Call("BRMS.AddQuickCommand"));
    form.SetArguments(explorer::ToQt(json::parse(kQuickCommand)));
    QCOMPARE(form.NotEntered().elements, Paths{});
    Child<QPushButton>(form, "httpUrls.add").click();
    QCOMPARE(form.NotEntered().elements, (Paths{"/command/httpUrls/3"}));
    Child<QToolButton>(form, "httpUrls.up", 3).click();
    QCOMPARE(form.NotEntered().elements, (Paths{"/command/httpUrls/2"}));
    Type(Child<QLineEdit>(form, "url", 3), "http://10.0.0.4");
    QCOMPARE(form.NotEntered().elements, Paths{});
}

void ArgumentFormTest::FormsFitIntoNarrowPane()
{
    constexpr QSize kSmallPane(336, 400);
    ArgumentForm form;
    form.resize(kSmallPane);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    for (const catalogue::Call& call : catalogue::Calls()) {
        int next = 0;
        json arguments = json::object();
        for (const catalogue::Argument& argument : call.arguments) {
            arguments[std::string(argument.name)] = Distinct(*argument.type, next);
        }
        form.SetCall(call);
        form.SetArguments(explorer::ToQt(arguments));
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();  // nested layouts need a second pass
        QCOMPARE(form.size(), kSmallPane);
        const auto& area = *form.findChild<QScrollArea*>();
        QVERIFY2(area.widget()->width() <= area.viewport()->width(), call.name.c_str());
        const QList<QLabel*> labels = area.widget()->findChildren<QLabel*>();
        for (const QLabel* pLabel : labels) {
            if (pLabel->isVisible()) {
                const QSize needed(pLabel->minimumSizeHint().width(), pLabel->heightForWidth(pLabel->width()));
                QVERIFY2(pLabel->width() >= needed.width() && pLabel->height() >= needed.height(),
                         qPrintable(pLabel->text()));
            }
            if (pLabel->buddy() != nullptr) {
                QVERIFY2(pLabel->sizeHint().height() < 2 * pLabel->fontMetrics().height(), "the name wraps");
            }
        }
        const QList<NumberBox*> numbers = area.widget()->findChildren<NumberBox*>();
        for (const NumberBox* pNumber : numbers) {
            const auto& line = *pNumber->findChild<QLineEdit*>();
            QVERIFY2(line.width() > line.fontMetrics().horizontalAdvance(line.text()), qPrintable(line.text()));
        }
        const QList<QLineEdit*> fields = area.widget()->findChildren<QLineEdit*>();
        for (const QLineEdit* pField : fields) {
            QVERIFY2(pField->width() >= pField->fontMetrics().horizontalAdvance(QStringLiteral("00000000")),
                     qPrintable(pField->objectName()));
        }
    }
}

void ArgumentFormTest::PastesCopiedArguments()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    SetClipboard(kGroup);
    form.Paste();
    QCOMPARE(Problem(form), QString());
    QCOMPARE(ArgumentsOf(form), json::parse(kGroup));

    SetClipboard("");
    Child<QPushButton>(form, "copyArguments").click();
    QCOMPARE(json::parse(QGuiApplication::clipboard()->text().toStdString()), json::parse(kGroup));

    ArgumentForm other;
    other.SetCall(Call("BRMS.UpdateUserGroup"));
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(&other, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(other.Arguments(), form.Arguments());
}

void ArgumentFormTest::InvalidPasteShowsReasonAndChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    const auto add = [](const char* name, const char* text, const char* reason) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(reason);
    };
    add("nothing", "", "not valid JSON");
    add("no JSON", "{\"groupId\": ", "not valid JSON");
    add("a list", "[]", "must be a JSON object");
    add("an argument is missing", R"({"groupId": "7"})", "requires the argument \"group\"");
    add("an unknown argument", R"({"groupId": "7", "group": {}, "x": 1})", "has no argument \"x\"");
    add("a wrong type", R"({"groupId": 7, "group": {}})", "/groupId: expected text, got integer");
    add("an unknown field", R"({"groupId": "7", "group": {"name": ""}})",
        "/group/name: AddUserGroupsParam has no such");
}

void ArgumentFormTest::InvalidPasteShowsReasonAndChangesNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    ArgumentForm form;
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    QSignalSpy changes(&form, &ArgumentForm::Changed);
    QGuiApplication::clipboard()->setText(text);
    Child<QPushButton>(form, "pasteArguments").click();
    QVERIFY2(Problem(form).contains(reason), qPrintable(Problem(form)));
    QCOMPARE(ArgumentsOf(form), json::parse(kGroup));
    QCOMPARE(changes.count(), 0);

    Type(Child<QLineEdit>(form, "groupId"), "8");
    QCOMPARE(Problem(form), QString());
}

void ArgumentFormTest::IgnoresArgumentsOfTheWrongType()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    form.SetArguments(explorer::ToQt({{"groupId", 1}, {"group", {{"memo", "new"}}}, {"other", 2}}));
    QCOMPARE(ArgumentsOf(form), (json{{"groupId", "7"}, {"group", {{"groupName", ""}, {"memo", "new"}}}}));
}

void ArgumentFormTest::JsonViewShowsAndChangesArguments()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    auto& button = Child<QPushButton>(form, "argumentsAsJson");
    auto& edit = Child<QPlainTextEdit>(form, "argumentsJson");
    QVERIFY(!edit.isVisibleTo(&form));
    button.click();
    QVERIFY(edit.isVisibleTo(&form));
    QVERIFY(!Child<QLineEdit>(form, "groupId").isVisibleTo(&form));
    QCOMPARE(json::parse(edit.toPlainText().toStdString()), ArgumentsOf(form));

    const QSignalSpy changes(&form, &ArgumentForm::Changed);
    const QString typed = QStringLiteral("{\"groupId\":\"8\",  \"group\": {\"groupName\": \"Day\"}}");
    edit.setPlainText(typed);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(edit.toPlainText(), typed);
    QCOMPARE(ArgumentsOf(form).at("group").at("groupName"), json("Day"));
    QCOMPARE(ArgumentsOf(form).at("group").at("memo"), json(""));

    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    QCOMPARE(json::parse(edit.toPlainText().toStdString()), ArgumentsOf(form));
    button.click();
    QVERIFY(!edit.isVisibleTo(&form));
    QCOMPARE(Child<QLineEdit>(form, "groupName").text(), QStringLiteral("Night"));

    button.click();
    form.SetCall(Call("BRMS.GetTimeSyncConfig"));
    QVERIFY(!edit.isVisibleTo(&form));
    QVERIFY(!button.isEnabled());
    form.SetCall(Call("BRMS.GetLocalSetting"));
    QCOMPARE(json::parse(edit.toPlainText().toStdString()), json({{"settingType", 0}}));
}

void ArgumentFormTest::KeepsInvalidJsonAsTyped()
{
    ArgumentForm form;
    form.SetCall(Call("BRMS.GetLocalSetting"));
    auto& button = Child<QPushButton>(form, "argumentsAsJson");
    auto& edit = Child<QPlainTextEdit>(form, "argumentsJson");
    button.click();
    for (const char* typed : {"{\"settingType\": 3", "{\"settingType\": \"3\"}", "[]"}) {
        edit.setPlainText(QString::fromUtf8(typed));
        QVERIFY2(!form.IsValid(), typed);
        QVERIFY(Problem(form).startsWith(QStringLiteral("Invalid arguments: ")));
        QCOMPARE(edit.toPlainText(), QString::fromUtf8(typed));
        QVERIFY(!button.isEnabled());
    }
    edit.setPlainText(QStringLiteral("{\"settingType\": 3}"));
    QVERIFY(form.IsValid());
    QCOMPARE(Problem(form), QString());
    QVERIFY(button.isEnabled());
    QCOMPARE(ArgumentsOf(form), json({{"settingType", 3}}));

    edit.setPlainText(QStringLiteral("{"));
    form.SetCall(Call("BRMS.UpdateUserGroup"));  // discards the edit
    QVERIFY(form.IsValid());
    QCOMPARE(Problem(form), QString());
}

void ArgumentFormTest::EmitsChangedWhenInputChanges()
{
    ArgumentForm form;
    QSignalSpy changes(&form, &ArgumentForm::Changed);
    form.SetCall(Call("BRMS.GetLocalSetting"));
    QVERIFY(changes.count() > 0);
    QVERIFY(form.IsValid());

    changes.clear();
    Type(Child<NumberBox>(form, "settingType"), "x");
    QVERIFY(changes.count() > 0);
    QVERIFY(!form.IsValid());
    QVERIFY(!Child<QPushButton>(form, "copyArguments").isEnabled());

    Type(Child<NumberBox>(form, "settingType"), "3");
    QVERIFY(form.IsValid());
    QVERIFY(Child<QPushButton>(form, "copyArguments").isEnabled());
}

void ArgumentFormTest::Screenshots()
{
    using view_test::TakeScreenshots;
    const QSize size(560, 520);
    ArgumentForm form;
    TakeScreenshots(form, QStringLiteral("form-without-call"), size);
    form.SetCall(Call("BRMS.GetTimeSyncConfig"));
    TakeScreenshots(form, QStringLiteral("form-no-arguments"), size);

    form.SetCall(Call("BRMS.SetTimeSyncConfig"));
    Type(Child<QLineEdit>(form, "startTime"), "02:00:00");
    Type(Child<NumberBox>(form, "interval"), "4294967296");
    Type(Child<NumberBox>(form, "ntpPort"), "ntp");
    TakeScreenshots(form, QStringLiteral("form-problems"), size);

    form.SetCall(Call("BRMS.UpdateUserGroup"));
    SetClipboard(R"({"groupId": 7, "group": {}})");
    form.Paste();
    TakeScreenshots(form, QStringLiteral("form-wrong-paste"), size);

    form.SetCall(Call("DMS.BatchWashOpen"));
    TakeScreenshots(form, QStringLiteral("form-empty-list"), size);
    form.SetArguments(explorer::ToQt({{"channelIds", {"1000021$1$0$0", "1000021$1$0$1", "1000022$1$0$0"}}}));
    TakeScreenshots(form, QStringLiteral("form-list"), size);

    form.SetCall(Call("BRMS.AddQuickCommand"));
    form.SetArguments(explorer::ToQt(json::parse(kQuickCommand)));
    TakeScreenshots(form, QStringLiteral("form-records"), QSize(640, 860));
    TakeScreenshots(form, QStringLiteral("form-narrow"), QSize(336, 860));
}

int main(int argc, char** argv)
{
    return view_test::Run<ArgumentFormTest>(argc, argv);
}

#include "argument_form_test.moc"
