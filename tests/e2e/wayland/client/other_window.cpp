#include "client/other_window.h"

#include "client/shared_picture.h"
#include "client/virtual_keyboard.h"

#include <algorithm>
#include <cstdio>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace orvelle::wayland_client {
namespace {

constexpr std::uint32_t windowColor = 0xFF3070A0;

void report(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

struct OtherWindow {
    Compositor& compositor;
    wl_surface* surface = nullptr;
    int width = 400, height = 300;
    std::unique_ptr<SharedPicture> picture = nullptr;
    bool isClosed = false;
    wl_pointer* pointer = nullptr;
    wl_keyboard* keyboard = nullptr;
    KeyContext keyContext{xkb_context_new(XKB_CONTEXT_NO_FLAGS)};
    Keymap keymap = nullptr;

    void resize(int newWidth, int newHeight) {
        if (newWidth > 0 && newHeight > 0) {
            width = newWidth;
            height = newHeight;
        }
    }

    void paint() {
        if (picture != nullptr && picture->width() == width && picture->height() == height)
            return;
        picture =
            std::make_unique<SharedPicture>(compositor, width, height, 4 * width, WL_SHM_FORMAT_XRGB8888);
        for (int line = 0; line < height; ++line)
            std::ranges::fill(picture->line(line), windowColor);
        wl_surface_attach(surface, picture->buffer(), 0, 0);
        wl_surface_damage(surface, 0, 0, width, height);
        wl_surface_commit(surface);
        report("shown " + std::to_string(width) + "x" + std::to_string(height));
    }

    void readKeymap(int file, std::uint32_t size) {
        void* text = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
        if (text != MAP_FAILED) {
            keymap.reset(xkb_keymap_new_from_buffer(keyContext.get(), static_cast<const char*>(text),
                                                    size - 1, XKB_KEYMAP_FORMAT_TEXT_V1,
                                                    XKB_KEYMAP_COMPILE_NO_FLAGS));
            munmap(text, size);
        }
        close(file);
    }

    void reportKey(std::uint32_t code) const {
        const xkb_keysym_t* symbols = nullptr;
        char name[64] = "unknown";
        if (keymap != nullptr &&
            xkb_keymap_key_get_syms_by_level(keymap.get(), code + firstCode, 0, 0, &symbols) > 0)
            xkb_keysym_get_name(*symbols, name, sizeof name);
        report("key " + std::string(name));
    }
};

OtherWindow& windowOf(void* data) {
    return *static_cast<OtherWindow*>(data);
}

const wl_pointer_listener pointerListener{
    .enter = [](void*, wl_pointer*, std::uint32_t, wl_surface*, wl_fixed_t, wl_fixed_t) {},
    .leave = [](void*, wl_pointer*, std::uint32_t, wl_surface*) {},
    .motion = [](void*, wl_pointer*, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
    .button =
        [](void*, wl_pointer*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t state) {
            if (state == WL_POINTER_BUTTON_STATE_PRESSED)
                report("pressed");
        },
    .axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {},
};

const wl_keyboard_listener keyboardListener{
    .keymap = [](void* data, wl_keyboard*, std::uint32_t, int file,
                 std::uint32_t size) { windowOf(data).readKeymap(file, size); },
    .enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) { report("keyboard"); },
    .leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) { report("no keyboard"); },
    .key =
        [](void* data, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t code, std::uint32_t state) {
            if (state == WL_KEYBOARD_KEY_STATE_PRESSED)
                windowOf(data).reportKey(code);
        },
    .modifiers = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                    std::uint32_t) {},
};

// The devices of a seat may come and go.
const wl_seat_listener seatListener{
    .capabilities = [](void* data, wl_seat* seat, std::uint32_t capabilities) {
        OtherWindow& window = windowOf(data);
        if ((capabilities & WL_SEAT_CAPABILITY_POINTER) != 0 && window.pointer == nullptr) {
            window.pointer = wl_seat_get_pointer(seat);
            wl_pointer_add_listener(window.pointer, &pointerListener, data);
        } else if ((capabilities & WL_SEAT_CAPABILITY_POINTER) == 0 && window.pointer != nullptr) {
            wl_pointer_destroy(std::exchange(window.pointer, nullptr));
        }
        if ((capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0 && window.keyboard == nullptr) {
            window.keyboard = wl_seat_get_keyboard(seat);
            wl_keyboard_add_listener(window.keyboard, &keyboardListener, data);
        } else if ((capabilities & WL_SEAT_CAPABILITY_KEYBOARD) == 0 && window.keyboard != nullptr) {
            wl_keyboard_destroy(std::exchange(window.keyboard, nullptr));
        }
    }};

const xdg_surface_listener surfaceListener{
    .configure = [](void* data, xdg_surface* surface, std::uint32_t serial) {
        xdg_surface_ack_configure(surface, serial);
        windowOf(data).paint();
    }};

const xdg_toplevel_listener toplevelListener{
    .configure = [](void* data, xdg_toplevel*, int width, int height,
                    wl_array*) { windowOf(data).resize(width, height); },
    .close = [](void* data, xdg_toplevel*) { windowOf(data).isClosed = true; },
};

} // namespace

void showOtherWindow(Compositor& compositor, const char* programName) {
    OtherWindow window{compositor};
    wl_seat_add_listener(compositor.bindSeat(), &seatListener, &window);
    window.surface = wl_compositor_create_surface(compositor.surfaces);
    xdg_surface* surface = xdg_wm_base_get_xdg_surface(compositor.windows, window.surface);
    xdg_surface_add_listener(surface, &surfaceListener, &window);
    xdg_toplevel* toplevel = xdg_surface_get_toplevel(surface);
    xdg_toplevel_add_listener(toplevel, &toplevelListener, &window);
    xdg_toplevel_set_title(toplevel, "Other window");
    xdg_toplevel_set_app_id(toplevel, programName);
    wl_surface_commit(window.surface);
    while (!window.isClosed && compositor.handleEvents()) {
    }
}

} // namespace orvelle::wayland_client
