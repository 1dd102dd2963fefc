#pragma once

#include <vector>

/// Hand-written Packs: a QJsonObject filled key by key and written by QJsonDocument, and QString::arg for the URL.
namespace bench {

struct HandWritten {
    const char* call;
    int (*pack)(void* pRequest, void* const* arguments, int nServerId);
};

/// One call for each shape of a request.
const std::vector<HandWritten>& PackedByHand();

}  // namespace bench
