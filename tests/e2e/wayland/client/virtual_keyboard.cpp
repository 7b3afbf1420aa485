#include "client/virtual_keyboard.h"

#include "client/time_stamp.h"

#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace orvelle::wayland_client {
namespace {

struct Modifier {
    std::string_view prefix;
    const char* name;
};
constexpr Modifier modifiers[] = {
    {"shift+", XKB_MOD_NAME_SHIFT}, {"ctrl+", XKB_MOD_NAME_CTRL}, {"alt+", XKB_MOD_NAME_ALT}};

} // namespace

VirtualKeyboard::VirtualKeyboard(Compositor& compositor)
    : m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS)) {
    if (compositor.keyboards == nullptr)
        throw std::runtime_error("the compositor has no virtual keyboards");
    const xkb_rule_names names{"evdev", "pc105", "us", "", ""};
    m_keymap.reset(xkb_keymap_new_from_names(m_context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (m_keymap == nullptr)
        throw std::runtime_error("there is no description of a keyboard");
    m_keyboard =
        zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(compositor.keyboards, compositor.seat);
    sendKeymap();
}

VirtualKeyboard::~VirtualKeyboard() {
    zwp_virtual_keyboard_v1_destroy(m_keyboard);
}

void VirtualKeyboard::sendKeymap() {
    const std::unique_ptr<char, decltype(&std::free)> text(
        xkb_keymap_get_as_string(m_keymap.get(), XKB_KEYMAP_FORMAT_TEXT_V1), &std::free);
    const std::size_t size = std::string_view(text.get()).size() + 1;
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    if (file < 0 || ::write(file, text.get(), size) != static_cast<ssize_t>(size))
        throw std::runtime_error("the description of the keyboard cannot be sent");
    zwp_virtual_keyboard_v1_keymap(m_keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                                   static_cast<std::uint32_t>(size));
    close(file);
}

void VirtualKeyboard::type(std::string name) {
    xkb_mod_mask_t held = 0;
    for (const auto& [prefix, modifier] : modifiers) {
        if (!name.starts_with(prefix))
            continue;
        name.erase(0, prefix.size());
        held |= 1U << xkb_keymap_mod_get_index(m_keymap.get(), modifier);
    }
    const xkb_keycode_t key = findKey(name);
    zwp_virtual_keyboard_v1_modifiers(m_keyboard, held, 0, 0, 0);
    setKey(key, WL_KEYBOARD_KEY_STATE_PRESSED);
    setKey(key, WL_KEYBOARD_KEY_STATE_RELEASED);
    zwp_virtual_keyboard_v1_modifiers(m_keyboard, 0, 0, 0, 0);
}

void VirtualKeyboard::setKey(xkb_keycode_t key, wl_keyboard_key_state state) {
    zwp_virtual_keyboard_v1_key(m_keyboard, timeStamp(), key - firstCode, state);
}

xkb_keycode_t VirtualKeyboard::findKey(const std::string& name) const {
    const xkb_keysym_t wanted = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_NO_FLAGS);
    const xkb_keycode_t last = xkb_keymap_max_keycode(m_keymap.get());
    for (xkb_keycode_t key = firstCode; key <= last && wanted != XKB_KEY_NoSymbol; ++key) {
        const xkb_keysym_t* symbols = nullptr;
        if (xkb_keymap_key_get_syms_by_level(m_keymap.get(), key, 0, 0, &symbols) == 1 && *symbols == wanted)
            return key;
    }
    throw std::runtime_error("there is no key " + name);
}

} // namespace orvelle::wayland_client
