#pragma once

#include "shell/wayland/compositor_thread.h"
#include "shell/wayland/fake_seat.h"
#include "shell/wayland/layer_shell.h"
#include "shell/wayland/outside_presses.h"
#include "support/waiting.h"

#include <gtest/gtest.h>

#include <optional>

namespace orvelle {

constexpr std::uint32_t noKeyboard = 0;
constexpr std::uint32_t exclusiveKeyboard = 1;
constexpr std::uint32_t keyboardOnDemand = 2;

/// Windows of Qt on the fake compositor, which answers each surface with the size that it asks for, and gives
/// it the keyboard.
class LayerTest : public ::testing::Test {
protected:
    LayerTest() {
        compositor.tell([](FakeCompositor& fake) {
            fake.answer = [&fake](FakeSurface& surface) { fake.configure(surface, surface.requestedSize); };
            fake.givesKeyboard = true;
            fake.layerSurfaceCount = 0;
            fake.bereftRoleCount = 0;
        });
    }

    /// What the compositor knows of the only surface in a layer; nothing when there is none.
    [[nodiscard]] std::optional<FakeSurface> surface() {
        return compositor.ask([](FakeCompositor& fake) {
            const std::vector<FakeSurface*> surfaces = fake.layerSurfaces();
            return surfaces.size() == 1 ? std::optional(*surfaces.front()) : std::nullopt;
        });
    }
    void pressKey(std::uint32_t key) {
        compositor.tell([key](FakeCompositor& fake) { fake.seat().pressKey(key); });
    }
    /// Takes the keyboard from the only surface. Where that has it on demand it asks for it once more, as
    /// newer versions of sway require, and then loses it for good. Returns whether all that happened.
    [[nodiscard]] bool takeKeyboardAway(const QWindow& window) {
        const auto asksFor = [this](std::uint32_t keyboard) {
            return waitUntil([this, keyboard] { return surface() && surface()->keyboard == keyboard; });
        };
        if (shell->hasKeyboardOnDemand()) {
            if (!asksFor(keyboardOnDemand))
                return false;
            compositor.tell([](FakeCompositor& fake) { fake.seat().focus(nullptr); });
            if (!asksFor(exclusiveKeyboard) || !waitUntil([&window] { return !window.isActive(); }))
                return false;
            compositor.tell([](FakeCompositor& fake) { fake.seat().focus(fake.layerSurfaces().front()); });
            if (!waitUntil([&window] { return window.isActive(); }))
                return false;
        }
        compositor.tell([](FakeCompositor& fake) { fake.seat().focus(nullptr); });
        return true;
    }
    [[nodiscard]] int bereftRoleCount() {
        return compositor.ask([](FakeCompositor& fake) { return fake.bereftRoleCount; });
    }
    /// Makes what reports a press when the test emits it.
    [[nodiscard]] MakeOutsidePresses makePresses() {
        return [this](const QRectF& /*spared*/) {
            auto made = std::make_unique<OutsidePresses>();
            presses = made.get();
            return made;
        };
    }

    CompositorThread& compositor = CompositorThread::shared();
    std::unique_ptr<LayerShell> shell = LayerShell::connect();
    OutsidePresses* presses = nullptr;
};

} // namespace orvelle
