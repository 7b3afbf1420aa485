#include "platform/darwin/darwin_battery_source.h"

#include "platform/darwin/system_objects.h"

#include <IOKit/ps/IOPSKeys.h>
#include <IOKit/ps/IOPowerSources.h>

namespace orvelle::darwin_platform {
namespace {

std::optional<PowerSourceDescription> describe(CFTypeRef information, CFTypeRef powerSource) {
    // Belongs to `information`.
    const CFDictionaryRef values = IOPSGetPowerSourceDescription(information, powerSource);
    if (values == nullptr || CFGetTypeID(values) != CFDictionaryGetTypeID())
        return std::nullopt;
    PowerSourceDescription description;
    description.currentCapacity = integerIn(values, CFSTR(kIOPSCurrentCapacityKey));
    description.isCharging = booleanIn(values, CFSTR(kIOPSIsChargingKey));
    description.powerSourceState = stringIn(values, CFSTR(kIOPSPowerSourceStateKey));
    description.isCharged = booleanIn(values, CFSTR(kIOPSIsChargedKey));
    description.timeToEmpty = integerIn(values, CFSTR(kIOPSTimeToEmptyKey));
    description.timeToFullCharge = integerIn(values, CFSTR(kIOPSTimeToFullChargeKey));
    return description;
}

} // namespace

std::optional<std::vector<std::optional<PowerSourceDescription>>> DarwinBatterySource::readPowerSources() {
    const CFOwned<CFTypeRef> information(IOPSCopyPowerSourcesInfo());
    if (!information)
        return std::nullopt;
    const CFOwned<CFArrayRef> list(IOPSCopyPowerSourcesList(information.get()));
    if (!list || CFGetTypeID(list.get()) != CFArrayGetTypeID())
        return std::nullopt;
    const CFIndex count = CFArrayGetCount(list.get());
    std::vector<std::optional<PowerSourceDescription>> sources;
    sources.reserve(static_cast<std::size_t>(count));
    for (CFIndex index = 0; index < count; ++index)
        sources.push_back(describe(information.get(), CFArrayGetValueAtIndex(list.get(), index)));
    return sources;
}

std::optional<SmartBatteryProperties> DarwinBatterySource::readSmartBattery() {
    const OwnedIOObject battery = findService("AppleSmartBattery");
    if (!battery)
        return std::nullopt;
    const CFOwned<CFDictionaryRef> values = copyProperties(battery);
    if (!values)
        return std::nullopt;
    SmartBatteryProperties properties;
    properties.cycleCount = integerIn(values.get(), CFSTR("CycleCount"));
    properties.designCapacity = truncatedNumberIn(values.get(), CFSTR("DesignCapacity"));
    properties.rawMaxCapacity = truncatedNumberIn(values.get(), CFSTR("AppleRawMaxCapacity"));
    properties.nominalChargeCapacity = truncatedNumberIn(values.get(), CFSTR("NominalChargeCapacity"));
    properties.temperature = integerIn(values.get(), CFSTR("Temperature"));
    properties.voltage = integerIn(values.get(), CFSTR("Voltage"));
    properties.amperage = integerIn(values.get(), CFSTR("Amperage"));
    return properties;
}

} // namespace orvelle::darwin_platform
