#pragma once

#include "animation/animation_clock.h"
#include "animation/transition.h"

#include <QObject>
#include <QRect>
#include <QRegion>

#include <functional>
#include <memory>

class QScreen;
class QWindow;

/// The windows that open under a status item: their geometry, their fades, and how they open and close. All
/// lengths are in points.
namespace orvelle {

// Geometry. The rectangles of item, screen and result share one origin.

/// The radius of the rounded corners of menus and popovers.
inline constexpr int popupCornerRadiusPoints = 10;

/// Kept free between a window that opens under an item and the edges of the screen.
inline constexpr int screenMarginPoints = 4;

/// A menu of that size: its left edge at the item's, directly below it, moved as far as it needs to stay on
/// the screen. It begins below the item even where there is no room for it.
[[nodiscard]] QRect menuGeometry(const QRectF& item, const QSize& size, const QRect& screen);

/// A popover of that size: centred below the item, moved as far as it needs to stay on the screen, and less
/// high than wanted on a low screen.
[[nodiscard]] QRect popoverGeometry(const QRectF& item, const QSize& size, const QRect& screen);

/// A rectangle of that size at the origin with rounded corners, made of whole points.
[[nodiscard]] QRegion roundedRegion(const QSize& size, int radius);

/// Fades a window in and out by its opacity as a whole, which the desktop applies without repainting the
/// window. With reduced motion the window appears and disappears at once.
class WindowFade {
public:
    static constexpr std::chrono::milliseconds inTime{120};
    static constexpr std::chrono::milliseconds outTime{90};

    /// `setOpacity` makes the desktop show the window with this opacity, without waiting for anything else
    /// that the program does. The window must outlive the object.
    WindowFade(QWindow& window, std::function<void(double)> setOpacity,
               AnimationClock& clock = AnimationClock::shared());

    /// Shows the window; `softly` where the desktop respects the opacity of windows.
    void show(bool softly);
    /// Hides the window, at once or when it has faded.
    void hide(bool softly);

private:
    void fadeTo(double opacity, std::chrono::milliseconds time);
    void step(double seconds);

    QWindow& m_window;
    std::function<void(double)> m_setOpacity;
    AnimationClock& m_clock;
    Transition<double> m_opacity{1.0};
    Animation m_animation;
};

/// Opens a window over the others with the keyboard in it, and closes it with Escape, when another window
/// gets the keyboard, when a mouse button is pressed outside of it, and when the screens change. The press
/// that closes it still reaches what was clicked. Each desktop has its own implementation. Main thread only.
class Popup : public QObject {
    Q_OBJECT

public:
    /// Both rectangles are in points of the desktop. A press in `spared` does not close the window.
    virtual void show(QScreen& screen, const QRect& geometry, const QRectF& spared) = 0;
    virtual void close() = 0;
    [[nodiscard]] virtual bool isShown() const = 0;

Q_SIGNALS:
    void closed();
    /// Escape is about to close the window, which still has the keyboard. A window that wants the keyboard
    /// next takes it now, before the desktop gives it to another one.
    void dismissed();
    /// The first picture since the window opened is on the screen.
    void painted();
};

/// Makes a popup of a window, which must outlive it and must not have been shown.
using MakePopup = std::function<std::unique_ptr<Popup>(QWindow&)>;

} // namespace orvelle
