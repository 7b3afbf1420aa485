#include "shell/macos/picture.h"

#include <cstdint>

namespace orvelle {
namespace {

struct ProviderReleaser {
    void operator()(CGDataProviderRef provider) const { CGDataProviderRelease(provider); }
};
using OwnedProvider = std::unique_ptr<std::remove_pointer_t<CGDataProviderRef>, ProviderReleaser>;

struct ColorSpaceReleaser {
    void operator()(CGColorSpaceRef space) const { CGColorSpaceRelease(space); }
};
using OwnedColorSpace = std::unique_ptr<std::remove_pointer_t<CGColorSpaceRef>, ColorSpaceReleaser>;

void deleteImage(void* image, const void* /*pixels*/, std::size_t /*size*/) {
    delete static_cast<QImage*>(image);
}

/// Keeps the image until nothing is drawn from it any more, which may be after the drawing call has returned.
OwnedProvider makeProvider(QImage image) {
    auto kept = std::make_unique<QImage>(std::move(image));
    OwnedProvider provider(CGDataProviderCreateWithData(
        kept.get(), kept->constBits(), static_cast<std::size_t>(kept->sizeInBytes()), deleteImage));
    if (provider)
        static_cast<void>(kept.release());
    return provider;
}

} // namespace

OwnedCGImage makeCGImage(QImage image) {
    if (image.isNull())
        return nullptr;
    const auto width = static_cast<std::size_t>(image.width());
    const auto height = static_cast<std::size_t>(image.height());
    const auto bytesPerLine = static_cast<std::size_t>(image.bytesPerLine());
    // One word a pixel in the byte order of the machine, as QImage keeps them.
    constexpr auto layout = static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                            static_cast<std::uint32_t>(kCGBitmapByteOrder32Host);
    const OwnedColorSpace colorSpace(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    const OwnedProvider provider = makeProvider(std::move(image));
    if (!colorSpace || !provider)
        return nullptr;
    constexpr std::size_t bitsPerComponent = 8;
    constexpr std::size_t bitsPerPixel = 32;
    return OwnedCGImage(CGImageCreate(width, height, bitsPerComponent, bitsPerPixel, bytesPerLine,
                                      colorSpace.get(), static_cast<CGBitmapInfo>(layout), provider.get(),
                                      nullptr, false, kCGRenderingIntentDefault));
}

} // namespace orvelle
