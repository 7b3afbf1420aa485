#pragma once

// Simulated macOS: what tells a boolean from a number.

typedef const void* CFTypeRef;
typedef unsigned long CFTypeID;

extern "C" {
CFTypeID CFGetTypeID(CFTypeRef object);
CFTypeID CFBooleanGetTypeID();
}
