// Compares the readers of JSON values with conversions.txt, a table of the conversions of Qt 5. Each row has fields
// separated by tabs: a value, and the result of each overload for it.
//   <program> --write conversions.txt   rewrites the rows with the conversions of the Qt 5 that it was built with
// A value is a JSON text or, after "=", a number that JSON text cannot express: an integer, or a double in the format
// of %a.
#include "families/support/SlowReading.h"

#include <public/CommonFunc.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace {

const QString kKey = QStringLiteral("k");

/// The value in ASCII, without loss of precision.
QByteArray Shown(double number)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%a", number);
    return text.data();
}

QByteArray Shown(APIModule::int64 number)
{
    return QByteArray::number(number);
}

QByteArray Shown(int number)
{
    return QByteArray::number(number);
}

QByteArray Shown(bool flag)
{
    return flag ? "true" : "false";
}

QByteArray Shown(const QString& text)
{
    QByteArray shown = "\"";
    for (const QChar character : text) {
        const ushort code = character.unicode();
        const bool bPlain = code >= ' ' && code <= '~' && code != '"' && code != '\\';
        shown += bPlain ? QByteArray(1, char(code)) : "\\u" + QByteArray::number(code, 16).rightJustified(4, '0');
    }
    return shown + '"';
}

QByteArray Shown(const std::string& text)
{
    return Shown(QString::fromStdString(text));
}

QByteArray Shown(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return Shown(value.toBool());
    case QJsonValue::Double: {
        const QVariant number = value.toVariant();
        return number.userType() == QMetaType::LongLong ? Shown(APIModule::int64(number.toLongLong()))
                                                        : Shown(number.toDouble());
    }
    case QJsonValue::String:
        return Shown(value.toString());
    case QJsonValue::Array: {
        QByteArray shown = "[";
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            shown += (i > 0 ? "," : "") + Shown(array.at(i));
        }
        return shown + ']';
    }
    case QJsonValue::Object: {
        QByteArray shown = "{";
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            shown += (shown.size() > 1 ? "," : "") + Shown(member.key()) + ':' + Shown(member.value());
        }
        return shown + '}';
    }
    default:
        return "null";
    }
}

QByteArray Shown(const QJsonObject& object)
{
    return Shown(QJsonValue(object));
}

QByteArray Shown(const QJsonArray& array)
{
    return Shown(QJsonValue(array));
}

/// An object that holds the value of a row under kKey.
QJsonObject ObjectOf(const QByteArray& value)
{
    if (value.startsWith('=')) {
        const QByteArray number = value.mid(1);
        bool bInteger = false;
        const qint64 integer = number.toLongLong(&bInteger);
        return {{kKey, bInteger ? QJsonValue(integer) : QJsonValue(std::strtod(number.constData(), nullptr))}};
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson("{\"k\":" + value + '}', &error);
    if (error.error != QJsonParseError::NoError) {
        throw std::runtime_error(("no JSON value: " + value).toStdString());
    }
    return document.object();
}

template <typename T>
QByteArray Read(const QJsonObject& object)
{
    T value{};
    return APIModule::CCommonFunc::GetJsonValue(object, kKey, value) == 0 ? Shown(value) : "failed";
}

template <typename T>
QByteArray ReadSlowly(const QJsonObject& object)
{
    return Shown(family_testing::Converted<T>(object.value(kKey)));
}

/// A single number, one in an array and one in an object are converted by different code.
template <template <typename> class Reading>
QByteArray Row(const QByteArray& value)
{
    const QJsonObject object = ObjectOf(value);
    const QJsonObject inObject{{kKey, object}};
    const QJsonObject inArray{{kKey, QJsonArray{object.value(kKey)}}};
    return QList<QByteArray>{value,
                             Reading<int>()(object),
                             Reading<double>()(object),
                             Reading<APIModule::int64>()(object),
                             Reading<bool>()(object),
                             Reading<std::string>()(object),
                             Reading<QJsonObject>()(object),
                             Reading<QJsonArray>()(object),
                             Reading<QJsonObject>()(inObject),
                             Reading<QJsonArray>()(inArray)}
        .join('\t');
}

template <typename T>
struct Library {
    QByteArray operator()(const QJsonObject& object) const { return Read<T>(object); }
};

template <typename T>
struct Variants {
    QByteArray operator()(const QJsonObject& object) const { return ReadSlowly<T>(object); }
};

QList<QByteArray> RowsOf(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + name.toStdString());
    }
    QList<QByteArray> rows = file.readAll().split('\n');
    rows.removeLast();
    return rows;
}

class ConversionTable : public testing::Test {
protected:
    const QList<QByteArray> rows = RowsOf(QStringLiteral(CONVERSIONS_FILE));
};

TEST_F(ConversionTable, EveryOverloadConvertsLikeQt5)
{
    ASSERT_GT(rows.size(), 1000);
    for (const QByteArray& row : rows) {
        EXPECT_EQ(Row<Library>(row.left(row.indexOf('\t'))).toStdString(), row.toStdString());
    }
}

TEST_F(ConversionTable, ReferenceRulesMatchQt5)
{
    for (const QByteArray& row : rows) {
        EXPECT_EQ(Row<Variants>(row.left(row.indexOf('\t'))).toStdString(), row.toStdString());
    }
}

int Write(const QString& name)
{
    if (QT_VERSION_MAJOR != 5) {
        std::cerr << "the table can only be written with Qt 5\n";
        return 1;
    }
    const QList<QByteArray> rows = RowsOf(name);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly)) {
        return 1;
    }
    for (const QByteArray& row : rows) {
        file.write(Row<Variants>(row.split('\t').constFirst()) + '\n');
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--write") {
        return Write(QString::fromLocal8Bit(argv[2]));
    }
    return RUN_ALL_TESTS();
}
