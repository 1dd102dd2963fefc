#include "Readings.h"

#include "SlowReading.h"

#include <QJsonArray>
#include <QJsonValue>

#include <stdexcept>

namespace family_testing {

namespace {

/// Reads one reply into one record; nested readers handle inner objects and elements.
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
        if (!FindSlowly(object, QString::fromStdString(reading.key), value, m_lines)) {
            return -1;
        }
        const auto elements = Converted<QJsonArray>(value);
        Json& field = reading.field.empty() ? record : record[reading.field];
        switch (reading.type) {
        case Reading::Found:
            return 0;
        case Reading::Int:
            field = Converted<int>(value);
            return 0;
        case Reading::Int64:
            field = Converted<APIModule::int64>(value);
            return 0;
        case Reading::Double:
            field = Converted<double>(value);
            return 0;
        case Reading::Bool:
            field = Converted<bool>(value);
            return 0;
        case Reading::Text:
            field = Converted<std::string>(value);
            return 0;
        case Reading::Texts:
            for (const QJsonValue& element : elements) {
                field.push_back(element.isString() ? Converted<std::string>(element) : std::string());
            }
            return 0;
        case Reading::NumbersOfTexts:
            for (const QJsonValue& element : elements) {
                field.push_back(element.isString() ? NumberOfText(element.toString()) : 0);
            }
            return 0;
        case Reading::Object: {
            const auto inner = Converted<QJsonObject>(value);
            return inner.isEmpty() ? 0 : Read(inner, reading.inner, record);
        }
        case Reading::Records:
            return ReadRecords(elements, reading, field);
        }
        throw std::logic_error("unknown type of reading");
    }

    int ReadRecords(const QJsonArray& elements, const Reading& reading, Json& list)
    {
        for (const QJsonValue& value : elements) {
            Json element = reading.freshElement;
            if (Read(value.toObject(), reading.inner, element) != 0) {
                return -1;
            }
            list.push_back(element);
        }
        return 0;
    }

    testing_support::LogLines& m_lines;
};

}  // namespace

int ReadReference(const QJsonObject& reply, const Readings& readings, Json& record, testing_support::LogLines& lines)
{
    return Reader(lines).Read(reply, readings, record);
}

}  // namespace family_testing
