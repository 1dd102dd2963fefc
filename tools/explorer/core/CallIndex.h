#pragma once

#include "../FieldFacts.h"

#include <catalogue/Call.h>

#include <QHash>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace explorer {

/// Where a call goes, which keys travel and what they mean, as the contract describes it.
struct Endpoint {
    QString method;
    QString path;  ///< with its placeholders, "/brms/api/v1.1/user/group/{groupId}"
    QStringList keys;
    QString description;
    FactsByName sent;
};

/// By the name of the call.
using Endpoints = QHash<QString, Endpoint>;

/// Where the build places the contract.
std::filesystem::path DefaultContract();

/// Reads the contract of that folder; empty when it cannot be read. May be called from any thread.
Endpoints ReadEndpoints(const std::filesystem::path& contract);

/// What a user may look for to find the call: its name, summary and subject, its functions, arguments and fields.
QString SearchText(const catalogue::Call& call);

/// The call's name without its family.
QString ShortName(const catalogue::Call& call);

}  // namespace explorer
