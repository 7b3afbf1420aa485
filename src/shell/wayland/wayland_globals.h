#pragma once

#include "shell/wayland/proxy_pointer.h"

#include <QObject>

#include <string_view>

struct wl_display;
struct wl_interface;
struct wl_registry_listener;

namespace orvelle {

/// An object that a compositor offers to all its programs.
struct WaylandGlobal {
    std::uint32_t name = 0; ///< a number of the compositor's choice
    std::string_view interface;
    std::uint32_t version = 0; ///< the highest that the compositor knows
};

/// The objects of which a compositor offers one each. They come some moments after the program has connected.
/// Those that the compositor does not offer stay null. Main thread only.
class WaylandGlobals final : public QObject {
    Q_OBJECT

public:
    explicit WaylandGlobals(wl_display* display);

    [[nodiscard]] wl_compositor* compositor() const { return m_compositor.get(); }
    [[nodiscard]] wl_shm* shm() const { return m_shm.get(); }
    [[nodiscard]] zwlr_layer_shell_v1* layerShell() const { return m_layerShell.get(); }
    [[nodiscard]] wp_viewporter* viewporter() const { return m_viewporter.get(); }
    [[nodiscard]] wp_fractional_scale_manager_v1* fractionalScales() const {
        return m_fractionalScales.get();
    }
    /// Tells the sizes of screens in points.
    [[nodiscard]] zxdg_output_manager_v1* screenSizes() const { return m_screenSizes.get(); }
    /// Whether all that a strip cannot do without is there.
    [[nodiscard]] bool canShowStrip() const { return m_compositor && m_shm && m_layerShell; }

    /// The object of a global, in this version or in the compositor's, whichever is lower.
    template <class Object>
    [[nodiscard]] ProxyPointer<Object> bind(const WaylandGlobal& global, const wl_interface& interface,
                                            std::uint32_t version) const {
        return ProxyPointer<Object>(static_cast<Object*>(bindObject(global, interface, version)));
    }

Q_SIGNALS:
    /// One of the objects above has come.
    void changed();
    /// For objects of which there may be several; `global` is valid during the signal.
    void announced(const WaylandGlobal& global);
    void removed(std::uint32_t name);

private:
    static const wl_registry_listener listener;
    void handleGlobal(std::uint32_t name, const char* interface, std::uint32_t version);
    void handleRemoval(std::uint32_t name) { Q_EMIT removed(name); }
    [[nodiscard]] void* bindObject(const WaylandGlobal& global, const wl_interface& interface,
                                   std::uint32_t version) const;
    /// Binds the object if it is the global and none is there yet.
    template <class Object>
    void take(ProxyPointer<Object>& object, const WaylandGlobal& global, const wl_interface& interface,
              std::uint32_t version);

    ProxyPointer<wl_registry> m_registry;
    ProxyPointer<wl_compositor> m_compositor;
    ProxyPointer<wl_shm> m_shm;
    ProxyPointer<zwlr_layer_shell_v1> m_layerShell;
    ProxyPointer<wp_viewporter> m_viewporter;
    ProxyPointer<wp_fractional_scale_manager_v1> m_fractionalScales;
    ProxyPointer<zxdg_output_manager_v1> m_screenSizes;
};

} // namespace orvelle
