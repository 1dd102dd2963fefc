#include "SlowReading.h"

namespace family_testing {

namespace {

testing_support::LogLine FailedRead(const std::string& function, const std::string& message)
{
    return {"src/UI/APIModule/public/CommonFunc", "APIModule::CCommonFunc::" + function, 6, message};
}

}  // namespace

testing_support::LogLine EmptyObject()
{
    return FailedRead("IsEmpty", "Invalid parameter, jsonObject is empty.");
}

testing_support::LogLine MissingKey(const std::string& key)
{
    return FailedRead("IsKeyValid", "Invalid key: [" + key + "], jsonObject does not contain the key.");
}

bool FindSlowly(const QJsonObject& object, const QString& key, QJsonValue& value, testing_support::LogLines& lines)
{
    if (object.isEmpty()) {
        lines.push_back(EmptyObject());
        return false;
    }
    if (!object.contains(key)) {
        lines.push_back(MissingKey(key.toStdString()));
        return false;
    }
    value = object.value(key);
    return true;
}

}  // namespace family_testing
