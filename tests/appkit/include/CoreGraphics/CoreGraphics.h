#pragma once

// Simulated macOS: what an image of pixels is drawn with.
#include <cstddef>
#include <cstdint>

typedef double CGFloat;

struct CGPoint {
    CGFloat x;
    CGFloat y;
};
struct CGSize {
    CGFloat width;
    CGFloat height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};

typedef struct CGImage* CGImageRef;
typedef struct CGContext* CGContextRef;
typedef struct CGColorSpace* CGColorSpaceRef;
typedef struct CGDataProvider* CGDataProviderRef;
typedef const struct __CFString* CFStringRef;

enum CGImageAlphaInfo : std::uint32_t { kCGImageAlphaPremultipliedFirst = 2 };
typedef std::uint32_t CGBitmapInfo;
enum : CGBitmapInfo { kCGBitmapByteOrder32Little = 2 << 12 };
#define kCGBitmapByteOrder32Host kCGBitmapByteOrder32Little
enum CGColorRenderingIntent : std::int32_t { kCGRenderingIntentDefault = 0 };

typedef void (*CGDataProviderReleaseDataCallback)(void* information, const void* data, std::size_t size);

extern "C" {
extern const CFStringRef kCGColorSpaceSRGB;

CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name);
void CGColorSpaceRelease(CGColorSpaceRef space);

CGDataProviderRef CGDataProviderCreateWithData(void* information, const void* data, std::size_t size,
                                               CGDataProviderReleaseDataCallback releaseData);
void CGDataProviderRelease(CGDataProviderRef provider);

CGImageRef CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                         std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef space,
                         CGBitmapInfo bitmapInfo, CGDataProviderRef provider, const CGFloat* decode,
                         bool shouldInterpolate, CGColorRenderingIntent intent);
void CGImageRelease(CGImageRef image);

CGContextRef CGBitmapContextCreate(void* data, std::size_t width, std::size_t height,
                                   std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                   CGColorSpaceRef space, std::uint32_t bitmapInfo);
void CGContextRelease(CGContextRef context);
void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image);
}
