#pragma once

#include "../APIModuleGlobal.h"

#include <string>

namespace APIModule {

/// What came of the wash command of one channel, and who holds the lock of its PTZ control. In the contract's examples
/// "result" is "0" when nobody holds it and "1" when somebody does.
struct PtzWashStatus {
    std::string result;       ///< "result": the server's text or code, kept as text
    std::string userName;     ///< "lockUser"/"userName": who holds the lock, where someone does
    std::string userLevel;    ///< "lockUser"/"userLevel": level of that user, kept as text
    std::string lowerDomain;  ///< "lockUser"/"lowerDomain": the lower domain of that user
};

/// What came of the wash command of several channels.
struct PtzBatchWashStatus {
    std::string result;  ///< "result": the server's text or code, kept as text
    std::string msg;     ///< "msg": the server's text or code, kept as text
};

/// What came of a home position command, and who holds the lock of the channel's PTZ control. In the contract's
/// examples "result" is "0" when nobody holds it and "1" when somebody does.
struct PtzPositionResetReq {
    std::string result;       ///< "result": the server's text or code, kept as text
    std::string userName;     ///< "lockUser"/"userName": who holds the lock, where someone does
    std::string userLevel;    ///< "lockUser"/"userLevel": level of that user, kept as text
    std::string lowerDomain;  ///< "lockUser"/"lowerDomain": the lower domain of that user
};

}  // namespace APIModule
