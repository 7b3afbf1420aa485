#include "shell/wayland/layer_role.h"

#include "shell/wayland/qt_connection.h"

#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace orvelle {
namespace {

/// Compositors answer within a millisecond.
constexpr std::chrono::milliseconds configurePatience{500};

/// So soon nobody turns to another window.
constexpr std::chrono::milliseconds promptly{500};

} // namespace

const zwlr_layer_surface_v1_listener LayerRole::listener{
    [](void* data, zwlr_layer_surface_v1* /*surface*/, std::uint32_t serial, std::uint32_t width,
       std::uint32_t height) {
        static_cast<LayerRole*>(data)->configure(serial, {static_cast<int>(width), static_cast<int>(height)});
    },
    [](void* data, zwlr_layer_surface_v1* /*surface*/) { Q_EMIT static_cast<LayerRole*>(data)->closed(); },
};

LayerRole::LayerRole(LayerShell& shell, QWindow& window, int ownBarHeight, LayerKeyboard keyboard)
    : m_shell(shell)
    , m_window(window)
    , m_ownBarHeight(ownBarHeight)
    , m_keyboard(keyboard) {
    // With this hint Qt leaves the surface without a role.
    m_window.setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    m_window.installEventFilter(this);
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            giveUpRole();
    });
    connect(&m_window, &QWindow::activeChanged, this, [this] {
        if (m_keyboard != LayerKeyboard::takes || !m_window.isActive() || !m_shell.hasKeyboardOnDemand())
            return;
        setKeyboard(ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_ON_DEMAND);
        m_sinceOnDemand.start();
    });
}

LayerRole::~LayerRole() {
    hide();
}

// Newer versions of Qt paint while they show a window, older ones in the next turn of the event loop. A
// picture before the compositor's answer would be an error that ends the connection.
bool LayerRole::show(QScreen& screen, const QRect& geometry) {
    hide(); // a surface that is shown cannot get another role
    m_isConfigured = false;
    m_sinceOnDemand.invalidate();
    m_opening.emplace(Opening{screen, geometry.translated(-screen.geometry().topLeft())});
    // Qt 6.11 overlooks that a window loses the keyboard when it hides, and then that it gets it again.
    if (m_window.isActive())
        m_window.destroy();
    m_window.setScreen(&screen);
    m_window.setGeometry(geometry);
    m_window.show();
    takeRole();
    if (!m_isConfigured)
        hide();
    return m_isConfigured && m_surface != nullptr;
}

void LayerRole::takeRole() {
    wl_surface* surface = qtSurface(m_window);
    if (!m_opening || surface == nullptr)
        return;
    const Opening opening = *m_opening;
    m_opening.reset();
    m_surface = m_shell.makeOverlay(*surface, qtOutput(opening.screen));
    zwlr_layer_surface_v1_add_listener(m_surface, &listener, this);
    place(opening.geometryOnScreen);
    setKeyboard(m_keyboard == LayerKeyboard::takes ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
                                                   : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    awaitConfiguration();
}

void LayerRole::place(const QRect& geometryOnScreen) {
    zwlr_layer_surface_v1_set_size(m_surface, static_cast<std::uint32_t>(geometryOnScreen.width()),
                                   static_cast<std::uint32_t>(geometryOnScreen.height()));
    zwlr_layer_surface_v1_set_anchor(m_surface,
                                     ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_margin(m_surface, std::max(geometryOnScreen.top() - m_ownBarHeight, 0), 0, 0,
                                     geometryOnScreen.left());
    constexpr std::int32_t clearOfBars = 0;
    zwlr_layer_surface_v1_set_exclusive_zone(m_surface, clearOfBars);
}

void LayerRole::awaitConfiguration() {
    if (!m_shell.waitUntil([this] { return m_isConfigured || m_surface == nullptr; }, configurePatience))
        giveUpRole();
    else if (m_surface != nullptr)
        m_shell.handToQt(*m_surface);
}

/// A compositor may repeat it, and leaves the size to the window with 0 x 0.
void LayerRole::configure(std::uint32_t serial, const QSize& size) {
    zwlr_layer_surface_v1_ack_configure(m_surface, serial);
    m_isConfigured = true;
    if (!size.isEmpty() && size != m_window.size())
        m_window.resize(size);
}

void LayerRole::setKeyboard(std::uint32_t interactivity) {
    wl_surface* surface = qtSurface(m_window);
    if (m_surface == nullptr || surface == nullptr)
        return;
    zwlr_layer_surface_v1_set_keyboard_interactivity(m_surface, interactivity);
    wl_surface_commit(surface);
}

void LayerRole::hide() {
    m_opening.reset();
    giveUpRole();
    m_window.hide();
}

bool LayerRole::keepsKeyboard() {
    if (m_surface == nullptr || !m_sinceOnDemand.isValid() || m_sinceOnDemand.hasExpired(promptly.count()))
        return false;
    m_sinceOnDemand.invalidate();
    m_shell.forgoKeyboardOnDemand();
    setKeyboard(ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE);
    return true;
}

void LayerRole::giveUpRole() {
    // Else a compositor may keep the keyboard for a surface that has gone.
    setKeyboard(ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    if (zwlr_layer_surface_v1* surface = std::exchange(m_surface, nullptr))
        zwlr_layer_surface_v1_destroy(surface);
}

bool LayerRole::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PlatformSurface &&
        static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
        giveUpRole();
    if (event->type() == QEvent::Expose && m_window.isExposed())
        takeRole();
    return QObject::eventFilter(watched, event);
}

} // namespace orvelle
