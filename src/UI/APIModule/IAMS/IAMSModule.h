#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the intelligent analysis service: Packs and Parses as CAPIModule describes them.
class APIMODULE_EXPORT CIAMSModule {
public:
    CIAMSModule& operator=(const CIAMSModule&);      ///< @assignsnothing
    CIAMSModule& operator=(CIAMSModule&&) noexcept;  ///< @assignsnothing

    /// @name Analysis tasks
    /// @{

    /// Marks the file uploads of stream analysis tasks as failed:
    /// POST /iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch
    ///
    /// Body: "ids", a list of texts in the given order, empty for no @p taskIds. There is no Parse: a caller that wants
    /// the reply reads it with a function of its own.
    /// @pack{taskIds, the tasks}
    static int PacketSetAnalysisTaskUploadFailed(void* pReqParamData, const std::vector<std::string>& taskIds,
                                                 int nServerId);
    /// @}
};

}  // namespace APIModule
