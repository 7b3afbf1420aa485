#pragma once

// Simulated macOS: the few types and functions of Core Foundation that the sources use.
#include <cstdint>

using Boolean = unsigned char;
using CFIndex = long;
using CFTypeID = unsigned long;
using CFStringEncoding = std::uint32_t;
using CFNumberType = CFIndex;
using CFTypeRef = const void*;
using CFAllocatorRef = const struct __CFAllocator*;
using CFArrayRef = const struct __CFArray*;
using CFBooleanRef = const struct __CFBoolean*;
using CFDictionaryRef = const struct __CFDictionary*;
using CFMutableDictionaryRef = struct __CFDictionary*;
using CFNumberRef = const struct __CFNumber*;
using CFStringRef = const struct __CFString*;

constexpr CFStringEncoding kCFStringEncodingUTF8 = 0x08000100;
constexpr CFNumberType kCFNumberSInt64Type = 4;
constexpr CFNumberType kCFNumberDoubleType = 13;

extern "C" {
extern const CFAllocatorRef kCFAllocatorDefault;

void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

CFTypeID CFArrayGetTypeID();
CFIndex CFArrayGetCount(CFArrayRef array);
const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

CFTypeID CFBooleanGetTypeID();
Boolean CFBooleanGetValue(CFBooleanRef boolean);

CFTypeID CFDictionaryGetTypeID();
const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key);

CFTypeID CFNumberGetTypeID();
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);

CFTypeID CFStringGetTypeID();
CFIndex CFStringGetLength(CFStringRef string);
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize, CFStringEncoding encoding);

/// Lives for good and is owned by nobody, like a string literal.
CFStringRef simulatedConstantString(const char* text);
}

#define CFSTR(text) simulatedConstantString("" text "")
