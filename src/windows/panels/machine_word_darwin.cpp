#include "windows/panels/machine_word.h"

namespace orvelle {

QString machineWord() {
    return QStringLiteral("Mac");
}

} // namespace orvelle
