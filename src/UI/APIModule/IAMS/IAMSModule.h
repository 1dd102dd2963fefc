#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the intelligent analysis service.
///
/// A Pack describes its request in the RequestParam behind @p pReqParamData, for the server @p nServerId (-1: the user
/// manager's current one). It returns 0, or -1 with the RequestParam untouched, and writes one log line either way.
class APIMODULE_EXPORT CIAMSModule {
public:
    /// @name Analysis tasks
    /// @{

    /// Marks the file uploads of stream analysis tasks as failed:
    /// POST /iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch
    ///
    /// Body: "ids", a list of strings in the given order; empty if @p taskIds is empty. There is no Parse: a caller
    /// that needs the reply reads it itself.
    /// @param taskIds the tasks
    static int PacketSetAnalysisTaskUploadFailed(void* pReqParamData, const std::vector<std::string>& taskIds,
                                                 int nServerId);
    /// @}

    CIAMSModule& operator=(const CIAMSModule&);      ///< Does nothing, the class has no data. @return *this
    CIAMSModule& operator=(CIAMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
