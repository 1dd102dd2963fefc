#include "Read.h"

#include "JsonAccess.h"

namespace APIModule::detail {

int ReadValue(const QJsonObject& object, QLatin1String key, int& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const QJsonObject& object, QLatin1String key, double& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const QJsonObject& object, QLatin1String key, QJsonObject& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const QJsonObject& object, QLatin1String key, std::string& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const QJsonObject& object, QLatin1String key, QJsonArray& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const QJsonObject& object, QLatin1String key, int64& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const QJsonObject& object, QLatin1String key, bool& value)
{
    return ReadConverted(object, key, value);
}

void AppendTexts(const QJsonArray& array, std::vector<std::string>& texts)
{
    for (const QJsonValue& value : array) {
        texts.push_back(value.toString().toStdString());
    }
}

void AppendNumbersOfTexts(const QJsonArray& array, std::vector<int>& numbers)
{
    for (const QJsonValue& value : array) {
        numbers.push_back(value.toString().toInt(nullptr, 10));
    }
}

int ReadNumbersOfTexts(const QJsonObject& object, QLatin1String key, std::vector<int>& numbers)
{
    QJsonArray array;
    if (ReadValue(object, key, array) != 0) {
        return -1;
    }
    AppendNumbersOfTexts(array, numbers);
    return 0;
}

}  // namespace APIModule::detail
