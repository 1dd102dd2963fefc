#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <initializer_list>
#include <string>
#include <vector>

/// How values are sent. The calls differ on purpose: each names the conversion of each of its values.
namespace APIModule::detail {

/// The complete text, including zero bytes.
inline QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

/// The text up to its first zero byte.
inline QString CText(const std::string& text)
{
    return QString::fromUtf8(text.c_str());
}

/// The bytes up to the first zero byte, each as one character.
inline QString Latin1Text(const std::string& text)
{
    return QString::fromLatin1(text.c_str());
}

/// The text "1" or "0".
inline QString FlagText(bool flag)
{
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

/// The decimal text of a number.
inline QString NumberText(int number)
{
    return QString::number(number);
}

/// A JSON number.
inline QJsonValue Number(int number)
{
    return {number};
}

/// A flag as the JSON number 1 or 0.
inline QJsonValue FlagNumber(bool flag)
{
    return {flag ? 1 : 0};
}

/// A JSON array of complete texts.
QJsonArray TextList(const std::vector<std::string>& texts);

/// Several texts joined by commas.
QString JoinedTexts(const std::vector<std::string>& texts);

/// A JSON array of the results of @p toValue for each element.
template <typename Element, typename ToValue>
QJsonArray List(const std::vector<Element>& elements, ToValue toValue)
{
    QJsonArray array;
    for (const Element& element : elements) {
        array.append(toValue(element));
    }
    return array;
}

/// One key of a JSON object with its value.
struct Member {
    QLatin1String key;
    QJsonValue value;

    template <std::size_t N>
    Member(const char (&name)[N], QJsonValue memberValue)  // NOLINT(modernize-pass-by-value): moved below
        : key(name, int(N) - 1), value(std::move(memberValue))
    {}
};

/// A JSON object inside a body.
QJsonObject Object(std::initializer_list<Member> members);

/// The text of a request body: one JSON object, compact.
QString Body(std::initializer_list<Member> members);

/// A path whose placeholders %1, %2, ... are replaced by successive calls of QString::arg, without escaping.
template <typename... Arguments>
QString Url(QString path, const Arguments&... arguments)
{
    ((path = path.arg(arguments)), ...);
    return path;
}

}  // namespace APIModule::detail
