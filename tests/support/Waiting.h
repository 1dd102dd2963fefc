#pragma once

namespace testing_support {

/// The two ways of waiting for a reply.
enum Waiting {
    InLoop,
    BehindDialog
};

/// The function that the lines of a wait name.
inline const char* FunctionOf(Waiting waiting)
{
    return waiting == InLoop ? "APIModule::CAPIModulePrivate::ExecuteRequestWithoutWaitDlg"
                             : "APIModule::CAPIModulePrivate::ExecuteRequestWithWaitDlg";
}

}  // namespace testing_support
