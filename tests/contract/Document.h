#pragma once

#include <catalogue/Call.h>
#include <Contract.h>

#include <PlatformEmulator.h>

#include <nlohmann/json.hpp>

#include <QJsonDocument>
#include <QJsonObject>

#include <regex>
#include <set>
#include <string>

namespace contract_tests {

using Json = nlohmann::json;
using Paths = std::set<std::string>;

/// The operations of contract/.
inline const emulator::Contract& Document()
{
    static const emulator::Contract document = emulator::Contract::Load(emulator::Options().contract);
    return document;
}

/// "/lots/*/name" for "/lots/0/name".
inline std::string WithoutIndices(const std::string& pointer)
{
    static const std::regex index("/[0-9]+(?=/|$)");
    return std::regex_replace(pointer, index, "/*");
}

/// The result of the Parse of a call for the data of a reply.
struct Reading {
    int result = -1;
    Json record;
};
inline Reading Read(const catalogue::Call& call, const Json& data)
{
    const QByteArray text = QByteArray::fromStdString(data.dump());
    const catalogue::Value record(*call.result);
    const int result = call.parse(QJsonDocument::fromJson(text).object(), record.Data());
    return {result, record.ToJson()};
}

}  // namespace contract_tests
