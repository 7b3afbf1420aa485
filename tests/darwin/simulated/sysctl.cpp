#include "darwin/simulated/kernel.h"

#include <algorithm>
#include <cstdlib>
#include <sys/sysctl.h>

using namespace orvelle::simulated;

namespace {

std::string nameOf(std::pair<int, int> name) {
    if (name == std::pair{CTL_KERN, KERN_BOOTTIME})
        return "kern.boottime";
    if (name == std::pair{CTL_HW, HW_MEMSIZE})
        return "hw.memsize";
    if (name == std::pair{CTL_VM, VM_SWAPUSAGE})
        return "vm.swapusage";
    return "of another name";
}

} // namespace

int sysctl(int* name, unsigned int nameLength, void* oldValue, std::size_t* oldSize, void* newValue,
           std::size_t newSize) {
    kernel().expect(nameLength == 2, "sysctl with a name of another length");
    kernel().expect(newValue == nullptr && newSize == 0, "sysctl that writes");
    const std::pair key{name[0], name[1]};
    if (!kernel().arrives("sysctl " + nameOf(key)))
        return -1;
    const auto value = kernel().machine.sysctls.find(key);
    if (value == kernel().machine.sysctls.end())
        return -1;
    // As the real one does, a value that is too long is cut and the call fails.
    const bool fits = value->second.size() <= *oldSize;
    *oldSize = std::min(*oldSize, value->second.size());
    std::memcpy(oldValue, value->second.data(), *oldSize);
    return fits ? 0 : -1;
}

// The C library has a function of this name, so this one takes its place in the whole test program.
extern "C" int getloadavg(double* averages, int count) noexcept {
    if (!kernel().arrives("getloadavg " + std::to_string(count)))
        return -1;
    const std::vector<double>& known = kernel().machine.loadAverages;
    const std::size_t given = std::min(known.size(), static_cast<std::size_t>(count));
    std::copy_n(known.begin(), given, averages);
    return static_cast<int>(given);
}
