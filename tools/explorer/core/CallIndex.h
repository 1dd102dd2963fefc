#pragma once

#include "../FieldFacts.h"

#include <catalogue/Call.h>

#include <QHash>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace explorer {

/// Endpoint, keys and descriptions of a call, from the contract.
struct Endpoint {
    QString method;
    QString path;  ///< with its placeholders, "/brms/api/v1.1/user/group/{groupId}"
    QStringList keys;
    QString description;
    FactsByName sent;
};

/// By the name of the call.
using Endpoints = QHash<QString, Endpoint>;

/// The contract in the build folder.
std::filesystem::path DefaultContract();

/// Reads the contract in that folder; empty if it cannot be read. Callable on any thread.
Endpoints ReadEndpoints(const std::filesystem::path& contract);

/// The words that find the call: its name, summary, subject, functions, arguments and fields.
QString SearchText(const catalogue::Call& call);

/// The name of the call without its family.
QString ShortName(const catalogue::Call& call);

}  // namespace explorer
