#include "core/checked.h"

#include <QtGlobal>

namespace orvelle {

void stopForArithmetic(const char* operation) {
    qFatal("Integer %s out of range", operation);
}

} // namespace orvelle
