#pragma once

#include "../APIModuleGlobal.h"

#include <string>

namespace APIModule {

/// Result of the wash command of one channel, and the user who holds the lock of its PTZ control. In the contract's
/// examples "result" is "0" when the channel is not locked and "1" when it is.
struct PtzWashStatus {
    std::string result;       ///< "result": the server's text or code, as a string
    std::string userName;     ///< "lockUser"/"userName": the user who holds the lock, if any
    std::string userLevel;    ///< "lockUser"/"userLevel": level of that user, as a string
    std::string lowerDomain;  ///< "lockUser"/"lowerDomain": the lower domain of that user
};

/// Result of the wash command of several channels.
struct PtzBatchWashStatus {
    std::string result;  ///< "result": the server's text or code, as a string
    std::string msg;     ///< "msg": the server's text or code, as a string
};

/// Result of a home position command, and the user who holds the lock of the channel's PTZ control. In the contract's
/// examples "result" is "0" when the channel is not locked and "1" when it is.
struct PtzPositionResetReq {
    std::string result;       ///< "result": the server's text or code, as a string
    std::string userName;     ///< "lockUser"/"userName": the user who holds the lock, if any
    std::string userLevel;    ///< "lockUser"/"userLevel": level of that user, as a string
    std::string lowerDomain;  ///< "lockUser"/"lowerDomain": the lower domain of that user
};

}  // namespace APIModule
