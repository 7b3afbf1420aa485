#include "darwin/simulated/kernel.h"

#include <algorithm>
#include <mach/mach.h>
#include <mach/vm_page_size.h>

using namespace orvelle::simulated;

namespace {

using Kind = NamedObject::Kind;

bool isHostPort(mach_port_t name) {
    const NamedObject* object = kernel().named(name);
    return object != nullptr && object->kind == Kind::hostPort;
}

} // namespace

mach_port_t mach_task_self_ = 0x203;
vm_size_t vm_kernel_page_size = 16384;

mach_port_t mach_host_self() {
    return kernel().arrives("mach_host_self") ? kernel().lendName({.kind = Kind::hostPort}) : 0;
}

kern_return_t mach_port_deallocate(mach_port_t task, mach_port_t name) {
    kernel().expect(task == mach_task_self_, "mach_port_deallocate on another task");
    kernel().takeBackName(name, isHostPort(name));
    return KERN_SUCCESS;
}

kern_return_t host_processor_info(host_t host, processor_flavor_t flavor, natural_t* processorCount,
                                  processor_info_array_t* words, mach_msg_type_number_t* wordCount) {
    kernel().expect(flavor == PROCESSOR_CPU_LOAD_INFO, "host_processor_info with another flavour");
    if (!kernel().arrives("host_processor_info"))
        return KERN_FAILURE;
    if (!isHostPort(host))
        return KERN_INVALID_ARGUMENT;
    const Processors& processors = kernel().machine.processors;
    *processorCount = processors.count;
    *wordCount = static_cast<mach_msg_type_number_t>(processors.words.size());
    *words = nullptr;
    if (!processors.hasArray)
        return KERN_SUCCESS;
    *words = new integer_t[processors.words.size()];
    std::ranges::copy(processors.words, *words);
    kernel().lentPages[reinterpret_cast<vm_address_t>(*words)] = processors.words.size() * sizeof(integer_t);
    return KERN_SUCCESS;
}

kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t words,
                                mach_msg_type_number_t* wordCount) {
    kernel().expect(flavor == HOST_VM_INFO64, "host_statistics64 with another flavour");
    kernel().expect(*wordCount == HOST_VM_INFO64_COUNT, "host_statistics64 with another size");
    if (!kernel().arrives("host_statistics64"))
        return KERN_FAILURE;
    if (!isHostPort(host))
        return KERN_INVALID_ARGUMENT;
    const PageCounters& pages = kernel().machine.pages;
    std::array<std::uint32_t, 40> known{};
    known[0] = pages.free;
    known[1] = pages.active;
    known[2] = pages.inactive;
    known[3] = pages.wired;
    known[88 / 4] = pages.purgeable;
    known[128 / 4] = pages.compressor;
    known[136 / 4] = pages.external;
    *wordCount = std::min(*wordCount, pages.wordCount);
    std::copy_n(known.begin(), *wordCount, words);
    return KERN_SUCCESS;
}

kern_return_t vm_deallocate(vm_map_t task, vm_address_t address, vm_size_t size) {
    kernel().expect(task == mach_task_self_, "vm_deallocate on another task");
    const auto lent = kernel().lentPages.find(address);
    const bool isRight = lent != kernel().lentPages.end() && lent->second == size;
    kernel().expect(isRight, "vm_deallocate of another address or size");
    if (!isRight)
        return KERN_INVALID_ADDRESS;
    kernel().lentPages.erase(lent);
    delete[] reinterpret_cast<integer_t*>(address);
    return KERN_SUCCESS;
}
