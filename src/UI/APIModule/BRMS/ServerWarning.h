#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// A switch-over to the hot-spare server.
struct CheckHostSpareWarning {
    bool warningHappened = false;  ///< "warningHappened": a switch-over happened that the client must report
    int64 warningTime = 0;         ///< "warningTime": when it happened, in the server's unit, such as 1718093400000
    std::string warningContent;    ///< "warningContent": the server's description
};

/// A disk that raises a warning.
struct WarnDisk {
    std::string path;  ///< "path": the disk's path as the server reports it, such as "/dev/sdb"
    int slot = 0;      ///< "slot": number of the disk's slot
};

/// One server with disks that raise warnings.
struct DiskWarmParam {
    std::string serverIp;             ///< "serverIp": address of the server
    int serverType = 0;               ///< "serverType": kind of server, the server's code, such as 2
    std::vector<WarnDisk> warnDisks;  ///< "warnDisks": the disks
};

/// A network known to the system.
struct NetWorkItem {
    std::string netWorkName;  ///< "netWorkName": name
    int netWorkValue = 0;     ///< "netWorkValue": the server's code, such as 0 and 1
};

/// The networks known to the system.
struct NetWorksParam {
    std::vector<NetWorkItem> netWorks;  ///< "results": the networks
};

}  // namespace APIModule
