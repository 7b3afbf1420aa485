#pragma once

#include <QPointF>

#include <cstdint>
#include <vector>

struct wl_display;
struct wl_global;
struct wl_resource;

namespace orvelle {

struct FakeSurface;

/// A pointer and a touch screen that a test moves.
class FakeSeat {
public:
    FakeSeat(wl_display* display, std::uint32_t version);
    ~FakeSeat();
    FakeSeat(const FakeSeat&) = delete;
    FakeSeat& operator=(const FakeSeat&) = delete;

    void setCapabilities(bool hasPointer, bool hasTouch, bool hasKeyboard = false);
    /// How many pointers the client has asked for and not released.
    [[nodiscard]] std::size_t pointerCount() const { return m_pointers.size(); }
    [[nodiscard]] std::size_t touchCount() const { return m_touches.size(); }
    /// The pixels of a point in the cursor that the client has chosen; 0 when it has chosen none.
    [[nodiscard]] int cursorScale() const { return m_cursorScale; }

    void enter(const FakeSurface& surface, const QPointF& position);
    void leave(const FakeSurface& surface);
    void move(const QPointF& position);
    /// With the kernel's number of the button.
    void press(std::uint32_t button);
    void release(std::uint32_t button);
    void turnWheel();

    void touch(const FakeSurface& surface, std::int32_t finger, const QPointF& position);
    void moveFinger(std::int32_t finger, const QPointF& position);
    void lift(std::int32_t finger);
    void cancelTouch();

    /// Gives the keyboard to a surface; null takes it away.
    void focus(const FakeSurface* surface);
    [[nodiscard]] bool isFocused(const FakeSurface& surface) const;
    /// Presses and releases the key with the kernel's number.
    void pressKey(std::uint32_t key);

    /// For the implementation.
    std::vector<wl_resource*> m_seats;
    std::vector<wl_resource*> m_pointers;
    std::vector<wl_resource*> m_touches;
    std::vector<wl_resource*> m_keyboards;
    std::uint32_t m_capabilities = 0;
    int m_cursorScale = 0;

private:
    void setButton(std::uint32_t button, std::uint32_t state);
    void endPointerFrame();
    [[nodiscard]] std::uint32_t nextSerial() const;

    wl_display* m_display;
    wl_resource* m_focused = nullptr; ///< the surface with the keyboard
    wl_global* m_global;
};

} // namespace orvelle
