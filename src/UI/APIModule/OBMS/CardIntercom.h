#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// The DESFire card configuration of the whole service.
struct AcsCardConfigParam {
    bool enableDesfire = false;             ///< "enableDesfire": sent as "1" or "0", read as a flag
    bool enableReadEncryptContent = false;  ///< "enableReadEncryptContent": sent as "1" or "0", read as a flag
};

/// The requested page of the devices where issuing the card configuration failed.
struct ConfigDesFireFailureReq {
    int page = 0;         ///< "page": page number, counted from 1; 0 also means the first page
    int pageSize = 0;     ///< "pageSize": devices per page
    std::string keyword;  ///< "keyword": search text, empty for all devices; inserted into the URL unencoded
};

/// One device to which the card configuration could not be issued.
struct DesfireFailureInfo {
    std::string id;          ///< "id": identifier of the failure
    std::string deviceCode;  ///< "deviceCode": the device
    std::string deviceName;  ///< "deviceName": its name
    std::string deviceIp;    ///< "deviceIp": its address
    int reason = 0;          ///< "reason": the server's code, such as 2
};

/// One page of the devices to which the card configuration could not be issued.
struct GetPageConfigDesfireFailureResp {
    int totalCount = 0;                        ///< "totalCount": devices on all pages
    std::vector<DesfireFailureInfo> pageData;  ///< "pageData": the devices of the page
};

/// The intercom contacts of an outdoor station to delete.
struct DeleteAddressBookParam {
    bool deleteAll = false;     ///< "mode": all contacts, sent as "1"; otherwise the listed ones, sent as "2"
    std::string vtoDeviceCode;  ///< "vtoDeviceCode": the outdoor station
    std::vector<std::string> vthDeviceCodes;  ///< "vthDeviceCodes": the indoor stations; not sent when all are deleted
};

}  // namespace APIModule
