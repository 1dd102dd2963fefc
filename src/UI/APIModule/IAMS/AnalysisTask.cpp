#include "Iams.h"

namespace APIModule {

}  // namespace APIModule
