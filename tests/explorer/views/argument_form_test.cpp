// The form of a call's arguments, as a user fills it in.
#include "support/ViewTest.h"

#include <explorer/views/ArgumentForm.h>
#include <explorer/views/Json.h>
#include <explorer/views/NumberBox.h>

#include <catalogue/Call.h>

#include <support/Rows.h>

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
using testing_support::RowName;
using view_test::Child;

namespace {

const catalogue::Call& Call(const char* name)
{
    return *catalogue::FindCall(name);
}

class ArgumentFormTest : public testing::Test {
protected:
    ArgumentForm form;
};

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

constexpr const char* kGroup = R"({"groupId": "7", "group": {"groupName": "Night", "memo": "a \"b\""}})";
constexpr const char* kQuickCommand = R"({"command": {"id": "", "quickCommandName": "Open the gate",
    "enableShortcutKeys": true, "shortcutKeys": "Ctrl+1", "executeMode": 1, "remark": "",
    "httpUrls": [{"method": 0, "url": "http://10.0.0.1/open", "body": "", "seq": "1"},
                 {"method": 2, "url": "http://10.0.0.2/light", "body": "{\"on\": 1}", "seq": "2"},
                 {"method": 0, "url": "http://10.0.0.3/log", "body": "", "seq": "3"}]}})";

TEST_F(ArgumentFormTest, IsInvalidWithoutCall)
{
    EXPECT_FALSE(form.IsValid());
    EXPECT_TRUE(form.Arguments().isEmpty());
    EXPECT_FALSE(Child<QPushButton>(form, "copyArguments").isEnabled());
    EXPECT_FALSE(Child<QPushButton>(form, "pasteArguments").isEnabled());
}

TEST_F(ArgumentFormTest, IsValidForCallWithoutArguments)
{
    form.SetCall(Call("BRMS.GetTimeSyncConfig"));
    EXPECT_TRUE(form.IsValid());
    EXPECT_TRUE(form.Arguments().isEmpty());
}

TEST_F(ArgumentFormTest, StartsWithDefaultValuesForEveryCall)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        form.SetCall(call);
        EXPECT_TRUE(form.IsValid()) << call.name;
        json fresh = json::object();
        for (const catalogue::Argument& argument : call.arguments) {
            fresh[std::string(argument.name)] = catalogue::Value(*argument.type).ToJson();
        }
        EXPECT_EQ(ArgumentsOf(form), fresh);
    }
}

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

TEST_F(ArgumentFormTest, ReturnsTheArgumentsThatWereSet)
{
    int next = 0;
    for (const catalogue::Call& call : catalogue::Calls()) {
        json arguments = json::object();
        for (const catalogue::Argument& argument : call.arguments) {
            arguments[std::string(argument.name)] = Distinct(*argument.type, next);
        }
        form.SetCall(call);
        form.SetArguments(explorer::ToQt(arguments));
        EXPECT_TRUE(form.IsValid()) << call.name;
        EXPECT_EQ(ArgumentsOf(form), arguments);
    }
}

TEST_F(ArgumentFormTest, TypedValuesBecomeArguments)
{
    form.SetCall(Call("BRMS.SetTimeSyncConfig"));
    Child<QCheckBox>(form, "enableNtp").click();
    Type(Child<QLineEdit>(form, "startTime"), "02:00:00");
    Type(Child<NumberBox>(form, "interval"), "-7");
    const json config = ArgumentsOf(form).at("config");
    EXPECT_EQ(config.at("enableNtp"), json(true));
    EXPECT_EQ(config.at("startTime"), json("02:00:00"));
    EXPECT_EQ(config.at("interval"), json(-7));
}

struct TypedNumber {
    const char* name;
    catalogue::Kind kind;
    const char* typed;
    const char* problem;
    const char* value;
};
class TypedNumberTest : public testing::TestWithParam<TypedNumber> {};

TEST_P(TypedNumberTest, IsValidatedByTheNumberBox)
{
    NumberBox box(GetParam().kind);
    Type(box, GetParam().typed);
    EXPECT_EQ(box.text(), QLatin1String(GetParam().typed));
    EXPECT_EQ(box.Problem(), QLatin1String(GetParam().problem));
    EXPECT_EQ(explorer::CompactJsonText(box.Value()), QLatin1String(GetParam().value));
}

constexpr const char* kIntRange = "Must be from -2147483648 to 2147483647";
constexpr const char* kInt64Range = "Must be from -9223372036854775808 to 9223372036854775807";
constexpr TypedNumber kTypedNumbers[] = {
    {"IntSmallest", catalogue::Kind::Int, "-2147483648", "", "-2147483648"},
    {"IntLargest", catalogue::Kind::Int, "2147483647", "", "2147483647"},
    {"IntTooSmall", catalogue::Kind::Int, "-2147483649", kIntRange, "0"},
    {"IntTooLarge", catalogue::Kind::Int, "2147483648", kIntRange, "0"},
    {"IntBeyond64Bits", catalogue::Kind::Int, "99999999999999999999", kIntRange, "0"},
    {"IntEmpty", catalogue::Kind::Int, "", "Enter a number", "0"},
    {"IntOnlyAMinus", catalogue::Kind::Int, "-", "Not a whole number", "0"},
    {"IntAFraction", catalogue::Kind::Int, "1.5", "Not a whole number", "0"},
    {"IntLetters", catalogue::Kind::Int, "twelve", "Not a whole number", "0"},
    {"IntSpacesAround", catalogue::Kind::Int, " 12 ", "", "12"},
    {"Int64Smallest", catalogue::Kind::Int64, "-9223372036854775808", "", "-9223372036854775808"},
    {"Int64Largest", catalogue::Kind::Int64, "9223372036854775807", "", "9223372036854775807"},
    {"Int64TooLarge", catalogue::Kind::Int64, "9223372036854775808", kInt64Range, "0"},
    {"Int64TooSmall", catalogue::Kind::Int64, "-9223372036854775809", kInt64Range, "0"},
    {"DoubleAFraction", catalogue::Kind::Double, "-0.25", "", "-0.25"},
    {"DoubleAnExponent", catalogue::Kind::Double, "1e3", "", "1000.0"},
    {"DoubleAComma", catalogue::Kind::Double, "1,5", "Must be a number, such as 0.5", "0"},
    {"DoubleNotFinite", catalogue::Kind::Double, "inf", "Must be a number, such as 0.5", "0"},
    {"DoubleEmpty", catalogue::Kind::Double, "", "Enter a number", "0"},
};
INSTANTIATE_TEST_SUITE_P(Numbers, TypedNumberTest, testing::ValuesIn(kTypedNumbers), RowName());

TEST(NumberBoxTest, StepsWithinItsRange)
{
    NumberBox box(catalogue::Kind::Int64);
    box.SetValue(std::numeric_limits<qint64>::max() - 1);
    QTest::keyClick(&box, Qt::Key_PageUp);
    EXPECT_EQ(box.Value(), json(std::numeric_limits<qint64>::max()));
    box.SetValue(std::numeric_limits<qint64>::min() + 1);
    QTest::keyClick(&box, Qt::Key_PageDown);
    EXPECT_EQ(box.Value(), json(std::numeric_limits<qint64>::min()));
    box.SetValue(5);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.Value(), json(6));
}

TEST(NumberBoxTest, IgnoresTheWheelWithoutFocus)
{
    NumberBox box(catalogue::Kind::Int);
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_EQ(box.Value(), json(0));
}

TEST_F(ArgumentFormTest, ListElementsCanBeAddedRemovedAndMoved)
{
    form.SetCall(Call("DMS.BatchWashOpen"));
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    auto& add = Child<QPushButton>(form, "channelIds.add");
    for (const char* channel : {"a", "b", "c"}) {
        add.click();
        ASSERT_TRUE(QApplication::focusWidget() != nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(channel));
    }
    const auto channels = [this] { return ArgumentsOf(form).at("channelIds"); };
    EXPECT_EQ(channels(), (json{"a", "b", "c"}));

    Child<QToolButton>(form, "channelIds.up", 2).click();
    EXPECT_EQ(channels(), (json{"a", "c", "b"}));
    Child<QToolButton>(form, "channelIds.down", 0).click();
    EXPECT_EQ(channels(), (json{"c", "a", "b"}));

    // The first element cannot move up, the last cannot move down. Buttons are found in the order of their creation.
    EXPECT_FALSE(Child<QToolButton>(form, "channelIds.up", 2).isEnabled());
    EXPECT_FALSE(Child<QToolButton>(form, "channelIds.down", 1).isEnabled());

    Child<QToolButton>(form, "channelIds.remove", 0).click();
    EXPECT_EQ(channels(), (json{"c", "b"}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Child<QToolButton>(form, "channelIds.remove", 0).click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Child<QToolButton>(form, "channelIds.remove", 0).click();
    EXPECT_EQ(channels(), json::array());
    ASSERT_EQ(QApplication::focusWidget(), &add);
}

TEST_F(ArgumentFormTest, TabKeyFollowsScreenOrder)
{
    form.SetCall(Call("BRMS.AddQuickCommand"));
    form.SetArguments(explorer::ToQt(json::parse(kQuickCommand)));
    form.resize(900, 700);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
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
        EXPECT_TRUE(position.y() > last.y() || position.x() > last.x()) << pFocus->objectName().toStdString();
        last = position;
        ++stops;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (pContent->isAncestorOf(QApplication::focusWidget()) && stops < 100);

    // Six fields, three elements of four fields and three buttons (one fewer at either end), and the add button.
    EXPECT_EQ(stops, 6 + 3 * 7 - 2 + 1);
    ASSERT_EQ(QApplication::focusWidget(), &Child<QPushButton>(form, "copyArguments"));
}

TEST_F(ArgumentFormTest, LabelsHaveTheirFieldsAsBuddies)
{
    form.SetCall(Call("BRMS.GetEncodeCapability"));
    int labels = 0;
    const QList<QLabel*> all = form.findChildren<QLabel*>();
    for (const QLabel* pLabel : all) {
        if (pLabel->buddy() != nullptr) {
            EXPECT_EQ(pLabel->buddy()->accessibleName(), QString(pLabel->text()).remove(QChar(0x200B)));
            ++labels;
        }
    }
    EXPECT_EQ(labels, 2);
}

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

TEST_F(ArgumentFormTest, LabelToolTipsShowDescriptions)
{
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
    EXPECT_EQ(shown.join(QLatin1Char('|')).toUtf8(),
              QByteArray("channelId|text||"
                         "status|<p>bool. Of the channel, &lt;b&gt; &amp; all.</p>|Of the channel, <b> & all.|"
                         "multicastIp|text||multicastPort|text||streamType|int||"
                         "status|<p>bool. Of the stream.</p>|Of the stream."));
}

TEST_F(ArgumentFormTest, ShowsLimitsAndExamples)
{
    form.SetCall(Call("BRMS.SetRemoteLogConfig"));
    explorer::FieldFacts port = Limited({}, 1, 65535);
    port.example = QStringLiteral("514");
    port.description = QStringLiteral("Of the log server.");
    form.Describe({{QStringLiteral("port"), port}});
    EXPECT_EQ(Child<QLabel>(form, "port.limits").text(), QString::fromUtf8("\xE2\x89\xA5 1, \xE2\x89\xA4 65535"));
    EXPECT_EQ(Child<NumberBox>(form, "port").accessibleDescription(),
              QString::fromUtf8("Of the log server.\nAllowed: \xE2\x89\xA5 1, \xE2\x89\xA4 65535\nExample: 514"));
    explorer::FieldFacts address;
    address.example = QStringLiteral("192.168.10.9");
    form.Describe({{QStringLiteral("ip"), address}});
    EXPECT_EQ(Child<QLineEdit>(form, "ip").placeholderText(), QStringLiteral("e.g. 192.168.10.9"));
    EXPECT_FALSE(Child<QLabel>(form, "port.limits").isVisibleTo(&form));
}

struct LimitedValue {
    const char* name;
    const char* field;
    const char* typed;
    const char* problem;  // empty if the server accepts the value
};
class LimitedValueTest : public ArgumentFormTest, public testing::WithParamInterface<LimitedValue> {};

TEST_P(LimitedValueTest, IsInvalidWhenServerWouldRefuseIt)
{
    const QString problem = QLatin1String(GetParam().problem);
    form.SetCall(Call("BRMS.SetRemoteLogConfig"));
    form.SetArguments(explorer::ToQt(json::parse(R"({"config": {"port": 5, "platformId": "b"}})")));
    form.Describe({{QStringLiteral("port"), Limited({}, 1, 9)},
                   {QStringLiteral("platformId"), Limited({QStringLiteral("a"), QStringLiteral("b")})}});
    EXPECT_TRUE(form.IsValid());
    Type(Child<QWidget>(form, GetParam().field), GetParam().typed);
    EXPECT_EQ(form.IsValid(), problem.isEmpty());
    EXPECT_EQ(Child<QLabel>(form, (std::string(GetParam().field) + ".problem").c_str()).text(), problem);
}

constexpr LimitedValue kLimitedValues[] = {
    {"SmallestPort", "port", "1", ""},
    {"LargestPort", "port", "9", ""},
    {"PortTooSmall", "port", "0", "Must be 1 or more"},
    {"PortTooLarge", "port", "10", "Must be 9 or less"},
    {"PortNotANumber", "port", "many", "Not a whole number"},
    {"KnownText", "platformId", "a", ""},
    {"TextInAnotherCase", "platformId", "A", "Must be one of: a, b"},
    {"EmptyText", "platformId", "", "Must be one of: a, b"},
};
INSTANTIATE_TEST_SUITE_P(Values, LimitedValueTest, testing::ValuesIn(kLimitedValues), RowName());

TEST_F(ArgumentFormTest, NamesRefusedValueInJson)
{
    form.SetCall(Call("BRMS.GetLocalSetting"));
    form.Describe({{QStringLiteral("settingType"), Limited({}, 0)}});
    Child<QPushButton>(form, "argumentsAsJson").click();
    Child<QPlainTextEdit>(form, "argumentsJson").setPlainText(QStringLiteral(R"({"settingType": -1})"));
    EXPECT_FALSE(form.IsValid());
    EXPECT_EQ(Problem(form), QStringLiteral("settingType: Must be 0 or more"));
}

TEST_F(ArgumentFormTest, CompletesKnownValues)
{
    form.SetCall(Call("DMS.BatchWashOpen"));
    form.Describe({}, [](const QString& name) {
        return name == QLatin1String("channelIds")
                   ? QVector<explorer::Completion>{{QStringLiteral("7$1"), QStringLiteral("Main gate")},
                                                   {QStringLiteral("8$1"), QString()}}
                   : QVector<explorer::Completion>();
    });
    Child<QPushButton>(form, "channelIds.add").click();  // an element added after Describe()
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    auto& field = Child<QLineEdit>(form, "channelIds");
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("GATE"));
    QAbstractItemView* const pList = field.completer()->popup();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pList->isVisible(); }));
    EXPECT_EQ(pList->model()->rowCount(), 1);
    EXPECT_EQ(pList->model()->index(0, 0).data().toString(), QString::fromUtf8("7$1  \xC2\xB7  Main gate"));
    QTest::keyClick(pList, Qt::Key_Down);
    QTest::keyClick(pList, Qt::Key_Return);
    EXPECT_EQ(field.text(), QStringLiteral("7$1"));
}

TEST_F(ArgumentFormTest, ReportsValuesThatWereNotEntered)
{
    using explorer::Origin;
    using Paths = std::vector<std::string>;
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    EXPECT_EQ(form.NotEntered().values, (Paths{"/groupId", "/group/groupName", "/group/memo"}));
    Type(Child<QLineEdit>(form, "memo"), "x");
    EXPECT_EQ(form.NotEntered().values, (Paths{"/groupId", "/group/groupName"}));

    // Values that the edited JSON changes count as entered.
    Child<QPushButton>(form, "argumentsAsJson").click();
    Child<QPlainTextEdit>(form, "argumentsJson")
        .setPlainText(QStringLiteral(R"({"groupId": "7", "group": {"groupName": "", "memo": "x"}})"));
    EXPECT_EQ(form.NotEntered().values, (Paths{"/group/groupName"}));
    form.SetArguments(form.Arguments(), Origin::Known);
    EXPECT_EQ(form.NotEntered().values, Paths{});
    form.SetArguments(form.Arguments());
    ASSERT_EQ(form.NotEntered().values.size(), std::size_t(3));
}

TEST_F(ArgumentFormTest, NewElementIsNotEnteredUntilOneOfItsFieldsIs)
{
    using Paths = std::vector<std::string>;
    form.SetCall(Call("BRMS.AddQuickCommand"));
    form.SetArguments(explorer::ToQt(json::parse(kQuickCommand)));
    EXPECT_EQ(form.NotEntered().elements, Paths{});
    Child<QPushButton>(form, "httpUrls.add").click();
    EXPECT_EQ(form.NotEntered().elements, (Paths{"/command/httpUrls/3"}));
    Child<QToolButton>(form, "httpUrls.up", 3).click();
    EXPECT_EQ(form.NotEntered().elements, (Paths{"/command/httpUrls/2"}));
    Type(Child<QLineEdit>(form, "url", 3), "http://10.0.0.4");
    EXPECT_EQ(form.NotEntered().elements, Paths{});
}

TEST_F(ArgumentFormTest, FormsFitIntoNarrowPane)
{
    constexpr QSize kSmallPane(336, 400);
    form.resize(kSmallPane);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
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
        ASSERT_EQ(form.size(), kSmallPane);
        const auto& area = *form.findChild<QScrollArea*>();
        EXPECT_TRUE(area.widget()->width() <= area.viewport()->width()) << call.name;
        const QList<QLabel*> labels = area.widget()->findChildren<QLabel*>();
        for (const QLabel* pLabel : labels) {
            if (pLabel->isVisible()) {
                const QSize needed(pLabel->minimumSizeHint().width(), pLabel->heightForWidth(pLabel->width()));
                EXPECT_TRUE(pLabel->width() >= needed.width() && pLabel->height() >= needed.height())
                    << pLabel->text().toStdString();
            }
            if (pLabel->buddy() != nullptr) {
                EXPECT_TRUE(pLabel->sizeHint().height() < 2 * pLabel->fontMetrics().height()) << "the name wraps";
            }
        }
        const QList<NumberBox*> numbers = area.widget()->findChildren<NumberBox*>();
        for (const NumberBox* pNumber : numbers) {
            const auto& line = *pNumber->findChild<QLineEdit*>();
            EXPECT_TRUE(line.width() > line.fontMetrics().horizontalAdvance(line.text())) << line.text().toStdString();
        }
        const QList<QLineEdit*> fields = area.widget()->findChildren<QLineEdit*>();
        for (const QLineEdit* pField : fields) {
            EXPECT_TRUE(pField->width() >= pField->fontMetrics().horizontalAdvance(QStringLiteral("00000000")))
                << pField->objectName().toStdString();
        }
    }
}

TEST_F(ArgumentFormTest, PastesCopiedArguments)
{
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    SetClipboard(kGroup);
    form.Paste();
    EXPECT_EQ(Problem(form), QString());
    EXPECT_EQ(ArgumentsOf(form), json::parse(kGroup));

    SetClipboard("");
    Child<QPushButton>(form, "copyArguments").click();
    EXPECT_EQ(json::parse(QGuiApplication::clipboard()->text().toStdString()), json::parse(kGroup));

    ArgumentForm other;
    other.SetCall(Call("BRMS.UpdateUserGroup"));
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(&other, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return other.Arguments() == form.Arguments(); }));
}

struct InvalidPaste {
    const char* name;
    const char* text;
    const char* reason;
};
class InvalidPasteTest : public ArgumentFormTest, public testing::WithParamInterface<InvalidPaste> {};

TEST_P(InvalidPasteTest, ShowsReasonAndChangesNothing)
{
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    QSignalSpy changes(&form, &ArgumentForm::Changed);
    SetClipboard(GetParam().text);
    Child<QPushButton>(form, "pasteArguments").click();
    EXPECT_TRUE(Problem(form).contains(QLatin1String(GetParam().reason))) << Problem(form).toStdString();
    EXPECT_EQ(ArgumentsOf(form), json::parse(kGroup));
    EXPECT_EQ(changes.count(), 0);

    Type(Child<QLineEdit>(form, "groupId"), "8");
    EXPECT_EQ(Problem(form), QString());
}

constexpr InvalidPaste kInvalidPastes[] = {
    {"Nothing", "", "not valid JSON"},
    {"NoJson", "{\"groupId\": ", "not valid JSON"},
    {"List", "[]", "must be a JSON object"},
    {"MissingArgument", R"({"groupId": "7"})", "requires the argument \"group\""},
    {"UnknownArgument", R"({"groupId": "7", "group": {}, "x": 1})", "has no argument \"x\""},
    {"WrongType", R"({"groupId": 7, "group": {}})", "/groupId: expected text, got integer"},
    {"UnknownField", R"({"groupId": "7", "group": {"name": ""}})", "/group/name: AddUserGroupsParam has no such"},
};
INSTANTIATE_TEST_SUITE_P(Texts, InvalidPasteTest, testing::ValuesIn(kInvalidPastes), RowName());

TEST_F(ArgumentFormTest, IgnoresArgumentsOfTheWrongType)
{
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    form.SetArguments(explorer::ToQt({{"groupId", 1}, {"group", {{"memo", "new"}}}, {"other", 2}}));
    EXPECT_EQ(ArgumentsOf(form), (json{{"groupId", "7"}, {"group", {{"groupName", ""}, {"memo", "new"}}}}));
}

TEST_F(ArgumentFormTest, JsonViewShowsAndChangesArguments)
{
    form.SetCall(Call("BRMS.UpdateUserGroup"));
    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    auto& button = Child<QPushButton>(form, "argumentsAsJson");
    auto& edit = Child<QPlainTextEdit>(form, "argumentsJson");
    EXPECT_FALSE(edit.isVisibleTo(&form));
    button.click();
    EXPECT_TRUE(edit.isVisibleTo(&form));
    EXPECT_FALSE(Child<QLineEdit>(form, "groupId").isVisibleTo(&form));
    EXPECT_EQ(json::parse(edit.toPlainText().toStdString()), ArgumentsOf(form));

    const QSignalSpy changes(&form, &ArgumentForm::Changed);
    const QString typed = QStringLiteral("{\"groupId\":\"8\",  \"group\": {\"groupName\": \"Day\"}}");
    edit.setPlainText(typed);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(edit.toPlainText(), typed);
    EXPECT_EQ(ArgumentsOf(form).at("group").at("groupName"), json("Day"));
    EXPECT_EQ(ArgumentsOf(form).at("group").at("memo"), json(""));

    form.SetArguments(explorer::ToQt(json::parse(kGroup)));
    EXPECT_EQ(json::parse(edit.toPlainText().toStdString()), ArgumentsOf(form));
    button.click();
    EXPECT_FALSE(edit.isVisibleTo(&form));
    EXPECT_EQ(Child<QLineEdit>(form, "groupName").text(), QStringLiteral("Night"));

    button.click();
    form.SetCall(Call("BRMS.GetTimeSyncConfig"));
    EXPECT_FALSE(edit.isVisibleTo(&form));
    EXPECT_FALSE(button.isEnabled());
    form.SetCall(Call("BRMS.GetLocalSetting"));
    EXPECT_EQ(json::parse(edit.toPlainText().toStdString()), json({{"settingType", 0}}));
}

TEST_F(ArgumentFormTest, KeepsInvalidJsonAsTyped)
{
    form.SetCall(Call("BRMS.GetLocalSetting"));
    auto& button = Child<QPushButton>(form, "argumentsAsJson");
    auto& edit = Child<QPlainTextEdit>(form, "argumentsJson");
    button.click();
    for (const char* typed : {"{\"settingType\": 3", "{\"settingType\": \"3\"}", "[]"}) {
        edit.setPlainText(QString::fromUtf8(typed));
        EXPECT_FALSE(form.IsValid()) << typed;
        EXPECT_TRUE(Problem(form).startsWith(QStringLiteral("Invalid arguments: ")));
        EXPECT_EQ(edit.toPlainText(), QString::fromUtf8(typed));
        EXPECT_FALSE(button.isEnabled());
    }
    edit.setPlainText(QStringLiteral("{\"settingType\": 3}"));
    EXPECT_TRUE(form.IsValid());
    EXPECT_EQ(Problem(form), QString());
    EXPECT_TRUE(button.isEnabled());
    EXPECT_EQ(ArgumentsOf(form), json({{"settingType", 3}}));

    edit.setPlainText(QStringLiteral("{"));
    form.SetCall(Call("BRMS.UpdateUserGroup"));  // discards the edit
    EXPECT_TRUE(form.IsValid());
    EXPECT_EQ(Problem(form), QString());
}

TEST_F(ArgumentFormTest, EmitsChangedWhenInputChanges)
{
    QSignalSpy changes(&form, &ArgumentForm::Changed);
    form.SetCall(Call("BRMS.GetLocalSetting"));
    ASSERT_TRUE(changes.count() > 0);
    EXPECT_TRUE(form.IsValid());

    changes.clear();
    Type(Child<NumberBox>(form, "settingType"), "x");
    ASSERT_TRUE(changes.count() > 0);
    EXPECT_FALSE(form.IsValid());
    EXPECT_FALSE(Child<QPushButton>(form, "copyArguments").isEnabled());

    Type(Child<NumberBox>(form, "settingType"), "3");
    EXPECT_TRUE(form.IsValid());
    EXPECT_TRUE(Child<QPushButton>(form, "copyArguments").isEnabled());
}

TEST_F(ArgumentFormTest, Screenshots)
{
    using view_test::TakeScreenshots;
    const QSize size(560, 520);
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

}  // namespace
