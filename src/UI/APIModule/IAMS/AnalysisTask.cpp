#include "IAMSModule_p.h"

namespace APIModule {

int CIAMSModule::PacketSetAnalysisTaskUploadFailed(void* pReqParamData, const std::vector<std::string>& taskIds,
                                                   int nServerId)
{
    return Pack(pReqParamData, kIams, Method_Post,
                QStringLiteral("/iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch"), nServerId,
                Body({{"ids", TextList(taskIds)}}));
}

}  // namespace APIModule
