#include "darwin/simulated/core_foundation.h"
#include "darwin/simulated/kernel.h"

#include <IOKit/ps/IOPowerSources.h>

using namespace orvelle::simulated;

CFTypeRef IOPSCopyPowerSourcesInfo() {
    return kernel().arrives("IOPSCopyPowerSourcesInfo") ? makeCoreFoundationObject(Properties{}) : nullptr;
}

CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef information) {
    kernel().expect(kernel().coreFoundationObjects.contains(information),
                    "IOPSCopyPowerSourcesList without its information");
    const std::optional<Property>& sources = kernel().machine.powerSources;
    if (!kernel().arrives("IOPSCopyPowerSourcesList", Call::library) || !sources)
        return nullptr;
    return static_cast<CFArrayRef>(makeCoreFoundationObject(*sources));
}

CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef information, CFTypeRef powerSource) {
    kernel().expect(kernel().coreFoundationObjects.contains(information) &&
                        kernel().coreFoundationObjects.contains(powerSource),
                    "IOPSGetPowerSourceDescription of what does not live");
    if (!kernel().arrives("IOPSGetPowerSourceDescription", Call::library) ||
        std::holds_alternative<std::string>(propertyOf(powerSource)))
        return nullptr;
    return static_cast<CFDictionaryRef>(powerSource);
}
