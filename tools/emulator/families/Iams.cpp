#include "Families.h"

namespace emulator::families {
namespace {

const Collection kTasks{"/iams/tasks", "id"};

Json MarkUploadsFailed(const Call& call)
{
    for (const Json& id : call.body.at("ids")) {
        kTasks.find(call.state, id);
    }
    for (const Json& id : call.body.at("ids")) {
        kTasks.find(call.state, id)["uploadFailed"] = true;
    }
    return RecordAccepted(call);
}

}  // namespace

HandlerTable Iams()
{
    return {{"IAMS.SetAnalysisTaskUploadFailed", MarkUploadsFailed}};
}

}  // namespace emulator::families
