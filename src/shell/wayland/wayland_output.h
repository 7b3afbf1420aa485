#pragma once

#include "shell/wayland/wayland_globals.h"

#include <QPoint>
#include <QString>

#include <vector>

struct wl_output_listener;
class QScreen;

namespace orvelle {

/// A screen as the compositor describes it.
class WaylandOutput final : public QObject {
    Q_OBJECT

public:
    WaylandOutput(const WaylandGlobals& globals, const WaylandGlobal& global);

    /// The number of the global.
    [[nodiscard]] std::uint32_t globalName() const { return m_globalName; }
    [[nodiscard]] wl_output* handle() const { return m_output.get(); }
    /// Whether the compositor has described it.
    [[nodiscard]] bool isKnown() const { return m_isKnown; }
    /// The scale as a whole number, rounded up where the scale is a fraction.
    [[nodiscard]] int scale() const { return m_scale; }
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

    ProxyPointer<wl_output> m_output;
    std::uint32_t m_globalName;
    QString m_name; ///< empty where the compositor tells none
    QPoint m_position;
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

    const WaylandGlobals& m_globals;
    std::vector<std::unique_ptr<WaylandOutput>> m_outputs;
};

} // namespace orvelle
