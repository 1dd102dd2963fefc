#include "Dms.h"

namespace APIModule {

}  // namespace APIModule
