#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// One HTTP request that a quick command stores. The library only passes it on and never sends it itself.
struct QuickCommandHttpUrl {
    int method = 0;    ///< "method": the server's code of the HTTP method; sent as a decimal string, such as "2"
    std::string url;   ///< "url": target of the request
    std::string body;  ///< "body": its body, an opaque string
    std::string seq;   ///< "seq": its position in the command, as a string, such as "1"
};

/// A named list of HTTP requests that the server stores.
struct QuickCommand {
    std::string id;                   ///< "id": identifier that the server assigned; never in a body
    std::string quickCommandName;     ///< "quickCommandName": display name
    bool enableShortcutKeys = false;  ///< "enableShortcutKeys": the shortcut is on; sent as "1" or "0"
    std::string shortcutKeys;         ///< "shortcutKeys": the key combination, such as "Ctrl+Alt+G"
    int executeMode = 0;              ///< "executeMode": the server's code, such as 1; sent as a decimal string
    std::string remark;               ///< "remark": free remark
    std::vector<QuickCommandHttpUrl> httpUrls;  ///< "httpUrls": the requests in their order
};

}  // namespace APIModule
