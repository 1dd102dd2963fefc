#include "Brms.h"

namespace APIModule {

}  // namespace APIModule
