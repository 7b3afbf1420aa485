#pragma once

// Simulated macOS: the list of power sources.
#include <CoreFoundation/CoreFoundation.h>

extern "C" {
CFTypeRef IOPSCopyPowerSourcesInfo();
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef information);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef information, CFTypeRef powerSource);
}
