#pragma once

#include "client/compositor.h"

#include <memory>
#include <string>
#include <xkbcommon/xkbcommon.h>

namespace orvelle::wayland_client {

struct FreeKeyNames {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
};
using KeyContext = std::unique_ptr<xkb_context, FreeKeyNames>;
using Keymap = std::unique_ptr<xkb_keymap, FreeKeyNames>;

/// Codes of X start there, those of Wayland and the kernel at 0.
constexpr xkb_keycode_t firstCode = 8;

/// A keyboard of the United States.
class VirtualKeyboard {
public:
    /// Throws std::runtime_error when the compositor has no virtual keyboards.
    explicit VirtualKeyboard(Compositor& compositor);
    ~VirtualKeyboard();
    VirtualKeyboard(const VirtualKeyboard&) = delete;
    VirtualKeyboard& operator=(const VirtualKeyboard&) = delete;

    /// Presses and releases a key with a name of X, such as Escape, shift+F10 or ctrl+q. Throws
    /// std::runtime_error when there is no such key.
    void type(std::string name);

private:
    void sendKeymap();
    void setKey(xkb_keycode_t key, wl_keyboard_key_state state);
    [[nodiscard]] xkb_keycode_t findKey(const std::string& name) const;

    KeyContext m_context;
    Keymap m_keymap;
    zwp_virtual_keyboard_v1* m_keyboard;
};

} // namespace orvelle::wayland_client
