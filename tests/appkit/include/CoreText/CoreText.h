#pragma once

// Simulated macOS: what a font tells of itself. An NSFont is one too.
#include <CoreGraphics/CoreGraphics.h>

typedef const void* CFTypeRef;
typedef const struct __CTFont* CTFontRef;

extern "C" {
extern const CFStringRef kCTFontURLAttribute;

CFTypeRef CTFontCopyAttribute(CTFontRef font, CFStringRef attribute);
}
