#pragma once

#include "shell/wayland/layer_shell.h"

#include <QElapsedTimer>
#include <QObject>
#include <QRect>

#include <optional>

class QScreen;
class QWindow;
struct zwlr_layer_surface_v1_listener;

namespace orvelle {

/// Whether a window gets the keyboard when it opens.
enum class LayerKeyboard {
    takes, ///< at once; then it keeps it as ordinary windows do, and loses it when the user turns to another
    leaves ///< never
};

/// Shows a window of Qt as a surface of the layer shell: over all windows, and where the program wants it.
///
/// No program learns where on the screen its own bar is, because bars of others may be above it. So the place
/// counts from the upper left corner of what all bars leave free. Main thread only.
class LayerRole final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object. The window must not have been shown. `ownBarHeight` is that of the bar
    /// above the window which belongs to the program, in points; 0 when it has none.
    LayerRole(LayerShell& shell, QWindow& window, int ownBarHeight, LayerKeyboard keyboard);
    ~LayerRole() override;

    /// Shows the window, or moves it by showing it anew. The geometry is in points of the desktop, as if
    /// there were no other bar than the program's own. Returns whether the compositor accepted it; the window
    /// is hidden again when it did not.
    [[nodiscard]] bool show(QScreen& screen, const QRect& geometry);
    /// Hides the window; the compositor gives the keyboard back.
    void hide();

    /// To be called when the window has lost the keyboard. Returns whether it will have it again: newer
    /// versions of sway take it away when a surface is content with having it as ordinary windows do.
    [[nodiscard]] bool keepsKeyboard();

Q_SIGNALS:
    /// The compositor has closed the surface, which must be hidden now.
    void closed();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Gives the window that is being shown its role, and waits for the compositor's answer.
    void takeRole();
    void place(const QRect& geometryOnScreen);
    void awaitConfiguration();
    void configure(std::uint32_t serial, const QSize& size);
    void setKeyboard(std::uint32_t interactivity);
    /// The window's surface becomes an ordinary one again, which Qt can hide or destroy.
    void giveUpRole();
    static const zwlr_layer_surface_v1_listener listener;

    LayerShell& m_shell;
    QWindow& m_window;
    int m_ownBarHeight;
    LayerKeyboard m_keyboard;
    struct Opening {
        QScreen& screen;
        QRect geometryOnScreen;
    };
    std::optional<Opening> m_opening;           ///< while the window is being shown and has no role yet
    zwlr_layer_surface_v1* m_surface = nullptr; ///< null while the window is hidden
    bool m_isConfigured = false;
    QElapsedTimer m_sinceOnDemand; ///< valid from the moment on that the window has the keyboard on demand
};

} // namespace orvelle
