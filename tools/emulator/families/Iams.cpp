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
    RecordAccepted(call);
    return Json::object();
}

}  // namespace

HandlerTable Iams()
{
    return {{"IAMS.SetAnalysisTaskUploadFailed", MarkUploadsFailed}};
}

}  // namespace emulator::families
