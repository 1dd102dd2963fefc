#pragma once

#include <vector>

/// Calls of the library packed in the plain way: a QJsonObject filled key by key, written by QJsonDocument, and
/// QString::arg for the URL.
namespace bench {

struct HandWritten {
    const char* call;
    int (*pack)(void* pRequest, void* const* arguments, int nServerId);
};

/// One call for each shape of a request.
const std::vector<HandWritten>& PackedByHand();

}  // namespace bench
