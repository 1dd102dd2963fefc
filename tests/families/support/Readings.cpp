#include "Readings.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QVariant>

#include <stdexcept>

namespace family_testing {

namespace {

Reading Single(Reading::Type type, const std::string& key, const FieldName& field)
{
    return {type, key, field.value_or(key)};
}

/// Reads one reply into one record, both of which change from level to level.
class Reader {
public:
    explicit Reader(testing_support::LogLines& lines) : m_lines(lines) {}

    int Read(const QJsonObject& object, const Readings& readings, Json& record)
    {
        for (const Reading& reading : readings) {
            if (ReadOne(object, reading, record) != 0) {
                return -1;
            }
        }
        return 0;
    }

private:
    int ReadOne(const QJsonObject& object, const Reading& reading, Json& record)
    {
        QJsonValue value;
        if (!Find(object, reading.key, value)) {
            return -1;
        }
        const QVariant variant = value.toVariant();
        const QVariantList elements = variant.toJsonArray().toVariantList();
        Json& field = reading.field.empty() ? record : record[reading.field];
        switch (reading.type) {
        case Reading::Found:
            return 0;
        case Reading::Int:
            field = variant.toInt();
            return 0;
        case Reading::Int64:
            field = variant.toLongLong();
            return 0;
        case Reading::Double:
            field = variant.toDouble();
            return 0;
        case Reading::Bool:
            field = variant.toBool();
            return 0;
        case Reading::Text:
            field = variant.toString().toUtf8().toStdString();
            return 0;
        case Reading::Texts:
            for (const QVariant& element : elements) {
                const bool isText = element.type() == QVariant::String;
                field.push_back(isText ? element.toString().toUtf8().toStdString() : std::string());
            }
            return 0;
        case Reading::NumbersOfTexts:
            for (const QVariant& element : elements) {
                field.push_back(element.type() == QVariant::String ? element.toString().toInt(nullptr, 10) : 0);
            }
            return 0;
        case Reading::Object: {
            const QJsonObject inner = variant.toJsonObject();
            return inner.isEmpty() ? 0 : Read(inner, reading.inner, record);
        }
        case Reading::Records:
            return ReadRecords(elements, reading, field);
        }
        throw std::logic_error("unknown type of reading");
    }

    int ReadRecords(const QVariantList& elements, const Reading& reading, Json& list)
    {
        for (const QVariant& value : elements) {
            Json element = reading.freshElement;
            if (Read(value.toJsonObject(), reading.inner, element) != 0) {
                return -1;
            }
            list.push_back(element);
        }
        return 0;
    }

    bool Find(const QJsonObject& object, const std::string& key, QJsonValue& value)
    {
        if (object.keys().isEmpty()) {
            m_lines.push_back(EmptyObject());
            return false;
        }
        const QString name = QString::fromStdString(key);
        if (!object.keys().contains(name)) {
            m_lines.push_back(MissingKey(key));
            return false;
        }
        value = object.value(name);
        return true;
    }

    testing_support::LogLines& m_lines;
};

testing_support::LogLine FailedRead(const std::string& function, const std::string& message)
{
    return {"src/UI/APIModule/public/CommonFunc", "APIModule::CCommonFunc::" + function, 6, message};
}

}  // namespace

Reading Int(const std::string& key, const FieldName& field)
{
    return Single(Reading::Int, key, field);
}

Reading Int64(const std::string& key, const FieldName& field)
{
    return Single(Reading::Int64, key, field);
}

Reading Double(const std::string& key, const FieldName& field)
{
    return Single(Reading::Double, key, field);
}

Reading Bool(const std::string& key, const FieldName& field)
{
    return Single(Reading::Bool, key, field);
}

Reading Text(const std::string& key, const FieldName& field)
{
    return Single(Reading::Text, key, field);
}

Reading Texts(const std::string& key, const FieldName& field)
{
    return Single(Reading::Texts, key, field);
}

Reading NumbersOfTexts(const std::string& key, const FieldName& field)
{
    return Single(Reading::NumbersOfTexts, key, field);
}

Reading Found(const std::string& key)
{
    return Single(Reading::Found, key, kItself);
}

Reading Object(const std::string& key, const Readings& inner)
{
    return {Reading::Object, key, kItself, inner};
}

testing_support::LogLine EmptyObject()
{
    return FailedRead("IsEmpty", "Invalid parameter, jsonObject is empty.");
}

testing_support::LogLine MissingKey(const std::string& key)
{
    return FailedRead("IsKeyValid", "Invalid key: [" + key + "], jsonObject does not contain the key.");
}

int ReadReference(const QJsonObject& reply, const Readings& readings, Json& record, testing_support::LogLines& lines)
{
    return Reader(lines).Read(reply, readings, record);
}

}  // namespace family_testing
