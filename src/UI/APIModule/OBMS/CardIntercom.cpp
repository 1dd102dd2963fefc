#include "Obms.h"

namespace APIModule {

}  // namespace APIModule
