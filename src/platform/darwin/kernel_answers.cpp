#include "platform/darwin/kernel_answers.h"

#include <cstdio>
#include <cstdlib>

namespace orvelle::darwin_platform {

void stopForContradiction(const char* contradiction) {
    std::fprintf(stderr, "The system contradicts itself: %s\n", contradiction);
    std::abort();
}

} // namespace orvelle::darwin_platform
