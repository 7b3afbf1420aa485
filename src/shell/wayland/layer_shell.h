#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

struct wl_display;
struct wl_event_queue;
struct wl_output;
struct wl_registry;
struct wl_surface;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;

namespace orvelle {

/// The layer shell of the compositor, bound on Qt's own connection, which gives windows of Qt a place of the
/// program's choice. Its surfaces report to a queue of their own until they are handed to Qt. Main thread
/// only.
class LayerShell {
public:
    /// Null where Qt does not use Wayland, or the compositor has no layer shell.
    [[nodiscard]] static std::unique_ptr<LayerShell> connect();
    ~LayerShell();
    LayerShell(const LayerShell&) = delete;
    LayerShell& operator=(const LayerShell&) = delete;

    /// A surface over everything else; null `output` leaves the choice to the compositor. Qt must not have
    /// painted into it.
    [[nodiscard]] zwlr_layer_surface_v1* makeOverlay(wl_surface& surface, wl_output* output) const;

    /// Whether the compositor can give a surface the keyboard as it does to ordinary windows.
    [[nodiscard]] bool hasKeyboardOnDemand() const { return m_version >= 4 && m_keepsKeyboardOnDemand; }
    /// To be called when the compositor has taken the keyboard from a surface for asking for it on demand.
    void forgoKeyboardOnDemand() { m_keepsKeyboardOnDemand = false; }

    /// Handles the events of surfaces that have not been handed to Qt, until `holds` returns true. False when
    /// it does not in time. Qt's own events wait meanwhile.
    [[nodiscard]] bool waitUntil(const std::function<bool()>& holds, std::chrono::milliseconds patience);

    /// From now on the surface's events are handled with Qt's own.
    void handToQt(zwlr_layer_surface_v1& surface);

private:
    explicit LayerShell(wl_display& display);
    void bind(wl_registry& registry, std::uint32_t name, std::uint32_t version);
    void readEvents(std::chrono::milliseconds patience);
    friend struct LayerShellRegistry;

    wl_display& m_display;
    wl_event_queue* m_queue;
    wl_registry* m_registry = nullptr;
    zwlr_layer_shell_v1* m_shell = nullptr;
    std::uint32_t m_version = 0;
    bool m_keepsKeyboardOnDemand = true; ///< as far as is known
};

} // namespace orvelle
