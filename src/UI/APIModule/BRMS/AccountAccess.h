#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// Address and credentials of a channel's web page. Two calls fill it, each with different fields.
struct GetChannelWebTunnelRsp {
    bool https = false;    ///< "https": whether the scheme is https; filled by ParseGetChannelWebTunnel
    int port = 0;          ///< "port": port of the tunnel; filled by ParseGetChannelWebTunnel
    std::string ip;        ///< "ip": address of the tunnel; filled by ParseGetChannelWebTunnel
    std::string username;  ///< "username": login name; filled by ParseGetChannelWebAuthorization
    std::string token;     ///< "token": login token; filled by ParseGetChannelWebAuthorization
};

/// Permissions of the account.
struct PermissionResourceCollectionResp {
    std::vector<std::string> menuFunctionCodes;     ///< "menuFunctionCodes": codes of menu functions
    std::vector<std::string> localConfigItemCodes;  ///< "localConfigItemCodes": codes of local configuration items
};

/// A function on a channel whose permission is checked.
struct FunctionChannelCheck {
    std::string channelId;     ///< "channelId": the channel
    std::string functionCode;  ///< "functionCode": code of the function
};

/// Whether the account may use a function on a channel.
struct FunctionChannelCheckResult {
    int authorized = 0;  ///< "authorized": the integer at the start of the server's string, such as 1 for allowed
};

/// Filter of the counted devices. All fields are inserted into the URL unencoded, empty ones included.
struct DeviceCategoryParamReq {
    std::string keyword;    ///< "keyword": search text, empty for all devices
    std::string orgCode;    ///< "orgCode": code of their organisation, empty for all
    std::string domain;     ///< "domain": their domain, empty for all
    std::string permitted;  ///< "permitted": only devices that the account may use, in the server's format, such as "1"
    std::string sourceType;    ///< "sourceType": the server's code of their source
    std::string containChild;  ///< "containChild": include child organisations, in the server's format, such as "1"
};

/// Number of devices of one category.
struct DeviceCategoryQueryResult {
    int deviceCategory = 0;  ///< "deviceCategory": the server's code of the category
    int deviceCount = 0;     ///< "deviceCount": number of devices
};

}  // namespace APIModule
