#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// How a channel's own web page is reached. Two calls fill it, each its own fields.
struct GetChannelWebTunnelRsp {
    bool https = false;    ///< "https": reached by https; filled by ParseGetChannelWebTunnel
    int port = 0;          ///< "port": port of the tunnel; filled by ParseGetChannelWebTunnel
    std::string ip;        ///< "ip": address of the tunnel; filled by ParseGetChannelWebTunnel
    std::string username;  ///< "username": name to log in with; filled by ParseGetChannelWebAuthorization
    std::string token;     ///< "token": token to log in with; filled by ParseGetChannelWebAuthorization
};

/// What the account may use.
struct PermissionResourceCollectionResp {
    std::vector<std::string> menuFunctionCodes;     ///< "menuFunctionCodes": codes of menu functions
    std::vector<std::string> localConfigItemCodes;  ///< "localConfigItemCodes": codes of local configuration items
};

/// A function that the account wants to use on a channel.
struct FunctionChannelCheck {
    std::string channelId;     ///< "channelId": the channel
    std::string functionCode;  ///< "functionCode": code of the function
};

/// Whether the account may use a function on a channel.
struct FunctionChannelCheckResult {
    int authorized = 0;  ///< "authorized": the number at the start of the server's text, such as 1 for allowed
};

/// Which devices are counted. All fields are inserted into the URL unencoded; an empty text leaves its value empty.
struct DeviceCategoryParamReq {
    std::string keyword;       ///< "keyword": text to look for, empty for all devices
    std::string orgCode;       ///< "orgCode": code of their organisation, empty for all
    std::string domain;        ///< "domain": their domain, empty for all
    std::string permitted;     ///< "permitted": only what the account may use, in the server's form, such as "1"
    std::string sourceType;    ///< "sourceType": the server's code of their source
    std::string containChild;  ///< "containChild": organisations below count, too, in the server's form, such as "1"
};

/// How many devices there are of one category.
struct DeviceCategoryQueryResult {
    int deviceCategory = 0;  ///< "deviceCategory": the server's code of the category
    int deviceCount = 0;     ///< "deviceCount": number of devices
};

}  // namespace APIModule
