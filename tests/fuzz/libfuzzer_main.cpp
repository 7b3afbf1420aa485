// A fuzzer for the one parser that the build names.

#include "parsers.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const void* bytes = data;
    orvelle::fuzz::ORVELLE_FUZZ_BODY({static_cast<const char*>(bytes), size});
    return 0;
}
