#pragma once

#include "shell/wayland/input_target.h"
#include "shell/wayland/proxy_pointer.h"

#include <QPointer>
#include <QTimer>

#include <optional>

struct wl_touch_listener;

namespace orvelle {

/// Tells a surface what one finger at a time does on it: a tap is a click of the left button, and a finger
/// that stays is a click of the right one.
class TouchInput final : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds holdTime{500};

    explicit TouchInput(wl_seat* seat);
    ~TouchInput() override;

private:
    static const wl_touch_listener listener;
    void handleDown(std::uint32_t serial, std::uint32_t time, wl_surface* surface, std::int32_t finger,
                    std::int32_t x, std::int32_t y);
    void handleUp(std::uint32_t serial, std::uint32_t time, std::int32_t finger);
    void handleMotion(std::uint32_t time, std::int32_t finger, std::int32_t x, std::int32_t y);
    void cancel();
    void clickRight();

    ProxyPointer<wl_touch> m_touch;
    std::optional<std::int32_t> m_finger; ///< the one that is followed
    QPointer<InputTarget> m_target;       ///< on which it is down; null when it has done what it can
    QPointF m_start;                      ///< where it came down, in points of that surface
    QPointF m_position;                   ///< where it is
    QTimer m_hold;
};

} // namespace orvelle
