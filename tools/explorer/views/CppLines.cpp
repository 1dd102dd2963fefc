#include "CppLines.h"

#include "Json.h"
#include "Plain.h"

#include <explorer/CallOutcome.h>

#include <catalogue/Call.h>

#include <nlohmann/json.hpp>

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <utility>

namespace explorer {
namespace {

using catalogue::Kind;
using catalogue::Type;
using nlohmann::json;

QString FromView(std::string_view text)
{
    return QString::fromUtf8(text.data(), int(text.size()));
}

QString TypeName(const Type& type)
{
    switch (type.kind) {
    case Kind::Bool:
        return QStringLiteral("bool");
    case Kind::Int:
        return QStringLiteral("int");
    case Kind::Int64:
        return QStringLiteral("APIModule::int64");
    case Kind::Double:
        return QStringLiteral("double");
    case Kind::Text:
        return QStringLiteral("std::string");
    case Kind::Record:
        return QLatin1String("APIModule::") + FromView(type.name);
    case Kind::List:
        return QLatin1String("std::vector<") + TypeName(*type.element) + QLatin1Char('>');
    }
    return {};
}

QString IntegerLiteral(long long value)
{
    // The smallest number has no literal: the minus sign is not part of one.
    return value == std::numeric_limits<long long>::min() ? QStringLiteral("%1 - 1").arg(value + 1)
                                                          : QString::number(value);
}

QString DoubleLiteral(double value)
{
    const QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    const bool looksWhole =
        std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.isDigit() || letter == u'-'; });
    return looksWhole ? text + QLatin1String(".0") : text;
}

QString Literal(const Type& type, const json& value)
{
    switch (type.kind) {
    case Kind::Bool:
        return value.get<bool>() ? QStringLiteral("true") : QStringLiteral("false");
    case Kind::Double:
        return DoubleLiteral(value.get<double>());
    case Kind::Text:
        return CppText(value.get_ref<const std::string&>());
    default:
        return IntegerLiteral(value.get<long long>());
    }
}

QString PlainList(const Type& type, const json& list)
{
    QStringList literals;
    for (const json& element : list) {
        literals.append(Literal(*type.element, element));
    }
    return QLatin1Char('{') + literals.join(QLatin1String(", ")) + QLatin1Char('}');
}

/// The statements that assign the value to a new object, element by element and field by field.
void AddFilling(QStringList& lines, const QString& place, const Type& type, const json& value)
{
    if (type.kind == Kind::Record) {
        for (const catalogue::Field& field : type.fields) {
            const auto given = value.find(std::string(field.name));
            if (given != value.end()) {
                AddFilling(lines, place + QLatin1Char('.') + FromView(field.name), *field.type, *given);
            }
        }
        return;
    }
    if (IsPlain(type)) {
        lines.append(place + QLatin1String(" = ") + Literal(type, value) + QLatin1Char(';'));
        return;
    }
    if (value.empty()) {
        return;
    }
    if (IsPlain(*type.element)) {
        lines.append(place + QLatin1String(" = ") + PlainList(type, value) + QLatin1Char(';'));
        return;
    }
    lines.append(QStringLiteral("%1.resize(%2);").arg(place).arg(value.size()));
    for (std::size_t index = 0; index < value.size(); ++index) {
        AddFilling(lines, QStringLiteral("%1[%2]").arg(place).arg(index), *type.element, value[index]);
    }
}

void AddVariable(QStringList& lines, const catalogue::Argument& argument, const json& value)
{
    const Type& type = *argument.type;
    const QString name = FromView(argument.name);
    const QString declaration = TypeName(type) + QLatin1Char(' ') + name;
    if (IsPlain(type)) {
        lines.append(declaration + QLatin1String(" = ") + Literal(type, value) + QLatin1Char(';'));
    } else if (type.kind == Kind::List && IsPlain(*type.element) && !value.empty()) {
        lines.append(declaration + QLatin1String(" = ") + PlainList(type, value) + QLatin1Char(';'));
    } else {
        lines.append(declaration + QLatin1Char(';'));
        AddFilling(lines, name, type, value);
    }
}

QString ConstantName(const catalogue::Call& call)
{
    return QString::fromStdString(call.name.substr(call.name.find('.') + 1));
}

/// The call with the variables as its arguments.
QString Request(const catalogue::Call& call, int serverId)
{
    QStringList arguments;
    for (const catalogue::Argument& argument : call.arguments) {
        arguments.append(FromView(argument.name));
    }
    const QString request =
        QStringLiteral("APIModule::%1::%2(%3)")
            .arg(QString::fromStdString(call.family), ConstantName(call), arguments.join(QLatin1String(", ")));
    const bool isCurrentServer = serverId == -1 || !call.takesServerId;
    return isCurrentServer ? request : QStringLiteral("%1.OnServer(%2)").arg(request).arg(serverId);
}

QString Signature(const catalogue::Call& call)
{
    const QString record = call.result == nullptr ? QStringLiteral("APIModule::NoRecord") : TypeName(*call.result);
    return QStringLiteral("APIModule::Outcome<%1> %2(QWidget* pParent)").arg(record, ConstantName(call));
}

QString Function(const catalogue::Call& call, const json& arguments, int serverId)
{
    QStringList lines;
    for (const catalogue::Argument& argument : call.arguments) {
        const auto given = arguments.find(std::string(argument.name));
        AddVariable(lines, argument, given == arguments.end() ? catalogue::Value(*argument.type).ToJson() : *given);
    }
    if (!lines.isEmpty()) {
        lines.append(QString());
    }

    QString text = Signature(call) + QLatin1String("\n{\n");
    for (const QString& line : std::as_const(lines)) {
        text += line.isEmpty() ? QStringLiteral("\n") : QLatin1String("    ") + line + QLatin1Char('\n');
    }
    return text + QStringLiteral("    return APIModule::Run(%1, pParent);\n}\n").arg(Request(call, serverId));
}

constexpr const char* kTestBegin = R"(#include <emulator/PlatformEmulator.h>

#include <QApplication>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

/// The user manager of the test, with the emulator as its only server.
class EmulatedServer : public UserLogical::IServer, public UserLogical::IUserManager {
public:
    explicit EmulatedServer(int port) : m_port(port) {}

    void GetConnection(UserLogical::ServerConnection& connection) override
    {
        connection.strHost = "127.0.0.1";
        connection.nPort = m_port;
    }
    std::string GetToken() override { return emulator::kDefaultToken; }
    int GetCurrentServerId() override { return 1; }
    std::shared_ptr<UserLogical::IServer> GetServer(int /*id*/) override
    {
        return std::shared_ptr<UserLogical::IServer>(std::shared_ptr<void>(), this);  // does not own it
    }

private:
    int m_port;
};

void Check(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

void AnswerNext(emulator::PlatformEmulator& platform, int status, const std::string& body)
{
    emulator::Fault answer;
    answer.kind = emulator::Fault::Kind::Status;
    answer.status = status;
    answer.body = body;
    platform.addFault(answer);
}

void CheckRequest(const emulator::PlatformEmulator& platform, const std::string& method, const std::string& target,
                  const std::string& body)
{
    const auto request = platform.requests().back();
    Check(request.method == method && request.target == target && request.body == body, target.c_str());
}
)";

constexpr const char* kTestMain = R"(
void Test(emulator::PlatformEmulator& platform)
{
)";

constexpr const char* kTestEnd = R"(}

}  // namespace

int main(int argc, char** argv)
{
    try {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // before the application object
        const QApplication application(argc, argv);
        emulator::PlatformEmulator platform;
        platform.start();
        EmulatedServer server(platform.httpsPort());
        APIModule::CAPIModule::GetInstance().Init(&server);
        Test(platform);
        APIModule::CAPIModule::GetInstance().UnInit();
    } catch (const std::exception& failure) {
        std::cerr << "failed: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
)";

QString TargetOf(const QString& url)
{
    const QString afterScheme = url.section(QLatin1String("://"), 1);
    return afterScheme.mid(afterScheme.indexOf(QLatin1Char('/')));
}

/// The statements that repeat a run.
QString Checks(const RunSummary& run, int number)
{
    const auto line = [](const QString& text) { return QLatin1String("    ") + text + QLatin1Char('\n'); };
    const QString call = QStringLiteral("run%1::%2").arg(number).arg(ConstantName(*run.call));
    return line(QStringLiteral("AnswerNext(platform, %1, ").arg(run.reply->status) +
                CppText(run.reply->body.toStdString()) + QLatin1String(");")) +
           line(QStringLiteral("Check(%1(nullptr).Code() == %2, \"%1\");").arg(call).arg(run.result)) +
           line(QLatin1String("CheckRequest(platform, ") + CppText(run.request.method.toStdString()) +
                QLatin1String(", ") + CppText(TargetOf(run.request.url).toStdString()) + QLatin1String(", ") +
                CppText(run.request.body.toStdString()) + QLatin1String(");"));
}

QString EscapedByte(char byte)
{
    // Three octal digits, so that a following digit is not part of it.
    return QStringLiteral("\\%1").arg(uint(uchar(byte)), 3, 8, QLatin1Char('0'));
}

QString Escaped(QChar letter)
{
    switch (letter.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    case '"':
        return QStringLiteral("\\\"");
    case '\\':
        return QStringLiteral("\\\\");
    case '?':
        return QStringLiteral("\\?");  // two question marks begin a trigraph
    default:
        return letter;
    }
}

}  // namespace

QString CppText(const std::string& text)
{
    const QString decoded = QString::fromStdString(text);
    const bool isUtf8 = decoded.toStdString() == text;
    QString literal;
    if (isUtf8) {
        for (const QChar letter : decoded) {
            const QString escaped = Escaped(letter);
            const bool isControl = escaped.size() == 1 && (letter < u' ' || letter == QChar(0x7F));
            literal += isControl ? EscapedByte(char(letter.unicode())) : escaped;
        }
    } else {
        for (const char byte : text) {
            literal += EscapedByte(byte);
        }
    }
    literal = QLatin1Char('"') + literal + QLatin1Char('"');
    return text.find('\0') == std::string::npos ? literal
                                                : QStringLiteral("std::string(%1, %2)").arg(literal).arg(text.size());
}

QString CppLines(const catalogue::Call& call, const json& arguments, int serverId)
{
    return QStringLiteral("#include <%1/%1Calls.h>\n\n").arg(QString::fromStdString(call.family)) +
           Function(call, arguments, serverId);
}

QString CppTest(const std::vector<const RunSummary*>& runs)
{
    QStringList includes;
    QString functions;
    QString checks;
    int number = 0;
    for (const RunSummary* run : runs) {
        if (!run->reply || BringsToken(*run->call)) {
            continue;
        }
        ++number;
        includes.append(QStringLiteral("#include <%1/%1Calls.h>\n").arg(QString::fromStdString(run->call->family)));
        constexpr int kCurrentServer = -1;
        functions += QStringLiteral("\nnamespace run%1 {\n\n%2\n}  // namespace run%1\n")
                         .arg(number)
                         .arg(Function(*run->call, FromQt(run->arguments), kCurrentServer));
        checks += Checks(*run, number);
    }
    includes.sort();
    includes.removeDuplicates();
    // Not with arg(): the texts contain data of servers.
    return QLatin1String("#include <APIModule.h>\n") + includes.join(QString()) + QLatin1String(kTestBegin) +
           functions + QLatin1String(kTestMain) + checks + QLatin1String(kTestEnd);
}

}  // namespace explorer
