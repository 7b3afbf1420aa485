#pragma once

// Simulated macOS: keys of a power source's description.
#define kIOPSPowerSourceStateKey "Power Source State"
#define kIOPSCurrentCapacityKey "Current Capacity"
#define kIOPSIsChargingKey "Is Charging"
#define kIOPSIsChargedKey "Is Charged"
#define kIOPSTimeToEmptyKey "Time to Empty"
#define kIOPSTimeToFullChargeKey "Time to Full Charge"
