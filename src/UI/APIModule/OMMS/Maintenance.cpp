#include "Omms.h"

namespace APIModule {

}  // namespace APIModule
