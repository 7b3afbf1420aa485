#pragma once

#include "shell/x11/ewmh_hints.h"
#include "shell/x11/work_area.h"
#include "shell/x11/x11_connection.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QScreen;
class QWindow;

namespace orvelle {

/// Keeps the bar where it belongs while it is shown: at the top of the primary screen, below the docks of
/// other programs and the panel of the desktop, with its space reserved. It follows changes of the screens,
/// of the docks and of the window manager. Without a window manager, or with one that reserves no space, the
/// place is the same.
class BarPlacement : public QObject, private X11EventFilter {
    Q_OBJECT

public:
    explicit BarPlacement(QWindow& bar);

    /// Takes effect in the next turn of the event loop, so that a bar that is emptied and filled at once does
    /// not flicker.
    void setShown(bool shown);

private:
    void handleEvent(const xcb_generic_event_t& event) override;
    void watchScreen(QScreen* screen);
    void updateSoon();
    void measureSoon();
    void update();
    void declareDock();
    void place(const QScreen& screen);
    void placeAmongDocks(const QScreen& screen);
    void measureStrip(const QRect& screen, const std::vector<TopDock>& docks);
    void withdrawStrut(const QRect& screen, std::optional<int> refutation);
    void reserve(const std::optional<TopStrut>& strut);

    QWindow& m_bar;
    bool m_isShown = false;
    QTimer m_timer;
    const EwmhHints* m_hints = EwmhHints::shared(); ///< null off X11
    std::optional<TopStrut> m_strut;                ///< what the window reserves
    TopStrip m_strip;
    bool m_mustMeasure = true;       ///< the strip may have another height now
    QElapsedTimer m_sinceWithdrawal; ///< invalid while the bar has reserved nothing yet
};

} // namespace orvelle
