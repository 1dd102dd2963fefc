#pragma once

#include "../APIModuleGlobal.h"

namespace APIModule {

}  // namespace APIModule
