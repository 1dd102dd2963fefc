#pragma once

#include <QCoreApplication>

namespace APIModule::http {

/// A text of Qt's network classes, in the language of the host's translations of Qt.
inline QString QtText(const char* pText, const char* pContext = "QHttp")
{
    return QCoreApplication::translate(pContext, pText);
}

}  // namespace APIModule::http
