#include "confinement/confinement.h"

namespace orvelle {

void confineProcess() {}

} // namespace orvelle
