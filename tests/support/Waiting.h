#pragma once

#include <string>

namespace testing_support {

/// The two kinds of wait for a reply.
enum Waiting {
    InLoop,
    BehindDialog
};

inline std::string NameOf(Waiting waiting)
{
    return waiting == InLoop ? "loop" : "dialog";
}

/// The function that log lines of this wait name.
inline const char* FunctionOf(Waiting waiting)
{
    return waiting == InLoop ? "APIModule::CAPIModulePrivate::ExecuteRequestWithoutWaitDlg"
                             : "APIModule::CAPIModulePrivate::ExecuteRequestWithWaitDlg";
}

}  // namespace testing_support
