#include <OrnGui/OrnMessageNotify.h>

extern "C" Q_DECL_EXPORT void* MessageNotifyInstance()
{
    return &ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance();
}
