#pragma once

#include "shell/wayland/wayland_globals.h"

#include <QPoint>
#include <QSize>
#include <QString>

#include <vector>

struct wl_output_listener;
struct zxdg_output_v1_listener;
class QScreen;

namespace orvelle {

/// Pixels of a point on a screen of these sizes: a fraction where the compositor says how many points it has,
/// in the parts in which compositors count scales. Else `wholeScale`, which is the fraction rounded up.
[[nodiscard]] double screenScale(int wholeScale, const QSize& pixels, const QSize& points);

/// A screen as the compositor describes it.
class WaylandOutput final : public QObject {
    Q_OBJECT

public:
    WaylandOutput(const WaylandGlobals& globals, const WaylandGlobal& global);
    /// Asks for the size in points if it has not been asked for and the compositor can tell it.
    void askSize(const WaylandGlobals& globals);

    /// The number of the global.
    [[nodiscard]] std::uint32_t globalName() const { return m_globalName; }
    [[nodiscard]] wl_output* handle() const { return m_output.get(); }
    /// Whether the compositor has described it.
    [[nodiscard]] bool isKnown() const { return m_isKnown; }
    /// The scale as a whole number, rounded up where the scale is a fraction.
    [[nodiscard]] int scale() const { return m_scale; }
    /// The same, or the fraction where the compositor tells enough.
    [[nodiscard]] double pixelsPerPoint() const;
    /// The same screen as Qt knows it; another one for the moment in which Qt does not know it. Null when Qt
    /// has no screen.
    [[nodiscard]] QScreen* screen() const;

Q_SIGNALS:
    void changed();

private:
    static const wl_output_listener listener;
    void handleGeometry(int x, int y, int widthMillimetres, int heightMillimetres, int subpixel,
                        const char* make, const char* model, int transform);
    void handleMode(std::uint32_t flags, int width, int height, int refresh);
    void handleDone();
    void handleScale(int scale);
    void handleName(const char* name);

    static const zxdg_output_v1_listener sizeListener;
    void handleSize(std::int32_t width, std::int32_t height) { m_points = QSize(width, height); }
    void handleSizeDone();

    ProxyPointer<wl_output> m_output;
    ProxyPointer<zxdg_output_v1> m_size; ///< null while the size in points has not been asked for
    std::uint32_t m_globalName;
    QString m_name; ///< empty where the compositor tells none
    QPoint m_position;
    QSize m_pixels; ///< invalid while it is not known; not turned as the screen is
    QSize m_points; ///< invalid while it is not known
    int m_scale = 1;
    bool m_isKnown = false;
};

/// The screens that the compositor has described, in the order in which it announced them. Main thread only.
class WaylandOutputs final : public QObject {
    Q_OBJECT

public:
    explicit WaylandOutputs(const WaylandGlobals& globals);

    [[nodiscard]] std::vector<const WaylandOutput*> known() const;

Q_SIGNALS:
    /// A screen has come, has gone or is different.
    void changed();
    /// The screen is about to go.
    void removed(const WaylandOutput& output);

private:
    void add(const WaylandGlobal& global);
    void remove(std::uint32_t name);
    void askSizes();

    const WaylandGlobals& m_globals;
    std::vector<std::unique_ptr<WaylandOutput>> m_outputs;
};

} // namespace orvelle
