#include "client/screen_picture.h"

#include "client/shared_picture.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

namespace orvelle::wayland_client {
namespace {

struct Capture {
    Compositor& compositor;
    std::unique_ptr<SharedPicture> picture = nullptr;
    bool isUpsideDown = false;
    bool isReady = false;
    bool hasFailed = false;

    void makePicture(std::uint32_t format, std::uint32_t width, std::uint32_t height,
                     std::uint32_t bytesPerLine) {
        if (format != WL_SHM_FORMAT_XRGB8888 && format != WL_SHM_FORMAT_ARGB8888)
            throw std::runtime_error("the compositor paints in an unknown format");
        picture = std::make_unique<SharedPicture>(compositor, static_cast<int>(width),
                                                  static_cast<int>(height), static_cast<int>(bytesPerLine),
                                                  static_cast<wl_shm_format>(format));
    }
};

Capture& capture(void* data) {
    return *static_cast<Capture*>(data);
}

const zwlr_screencopy_frame_v1_listener frameListener{
    .buffer =
        [](void* data, zwlr_screencopy_frame_v1* frame, std::uint32_t format, std::uint32_t width,
           std::uint32_t height, std::uint32_t bytesPerLine) {
            capture(data).makePicture(format, width, height, bytesPerLine);
            zwlr_screencopy_frame_v1_copy(frame, capture(data).picture->buffer());
        },
    .flags =
        [](void* data, zwlr_screencopy_frame_v1*, std::uint32_t flags) {
            capture(data).isUpsideDown = (flags & ZWLR_SCREENCOPY_FRAME_V1_FLAGS_Y_INVERT) != 0;
        },
    .ready = [](void* data, zwlr_screencopy_frame_v1*, std::uint32_t, std::uint32_t,
                std::uint32_t) { capture(data).isReady = true; },
    .failed = [](void* data, zwlr_screencopy_frame_v1*) { capture(data).hasFailed = true; },
};

Rectangle intersect(const Rectangle& part, int width, int height) {
    const int left = std::clamp(part.left, 0, width);
    const int top = std::clamp(part.top, 0, height);
    return {left, top, std::clamp(part.left + part.width, left, width) - left,
            std::clamp(part.top + part.height, top, height) - top};
}

void writePixmap(Capture& capture, const Rectangle& part, std::FILE* file) {
    SharedPicture& picture = *capture.picture;
    std::fprintf(file, "P6\n%d %d\n255\n", part.width, part.height);
    std::vector<unsigned char> bytes;
    for (int number = part.top; number < part.top + part.height; ++number) {
        const auto line = picture.line(capture.isUpsideDown ? picture.height() - 1 - number : number);
        bytes.clear();
        for (int column = part.left; column < part.left + part.width; ++column) {
            for (const int shift : {16, 8, 0})
                bytes.push_back(
                    static_cast<unsigned char>(line[static_cast<std::size_t>(column)] >> shift & 0xFF));
        }
        std::fwrite(bytes.data(), 1, bytes.size(), file);
    }
    std::fflush(file);
}

} // namespace

void writePicture(Compositor& compositor, std::string_view outputName, std::optional<Rectangle> part,
                  std::FILE* file) {
    if (compositor.screens == nullptr)
        throw std::runtime_error("the compositor gives no pictures");
    Capture capture{compositor};
    zwlr_screencopy_frame_v1* frame = zwlr_screencopy_manager_v1_capture_output(
        compositor.screens, 0, compositor.output(outputName).object);
    zwlr_screencopy_frame_v1_add_listener(frame, &frameListener, &capture);
    while (!capture.isReady && !capture.hasFailed) {
        if (!compositor.handleEvents())
            throw std::runtime_error("the compositor has ended");
    }
    zwlr_screencopy_frame_v1_destroy(frame);
    if (capture.hasFailed)
        throw std::runtime_error("the compositor gives no picture of this output");
    const int width = capture.picture->width();
    const int height = capture.picture->height();
    writePixmap(capture, intersect(part.value_or(Rectangle{0, 0, width, height}), width, height), file);
}

} // namespace orvelle::wayland_client
