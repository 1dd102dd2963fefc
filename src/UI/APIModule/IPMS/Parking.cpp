#include "Ipms.h"

namespace APIModule {

}  // namespace APIModule
