#pragma once

#include <QObject>
#include <QPointF>

struct wl_surface;

namespace orvelle {

/// A position as events carry it.
[[nodiscard]] QPointF pointOf(std::int32_t x, std::int32_t y);

/// Hears of what pointers and fingers do on a surface. Positions are in points from its upper left corner.
class InputTarget final : public QObject {
    Q_OBJECT

public:
    /// The surface must outlive the object.
    explicit InputTarget(wl_surface* surface);
    ~InputTarget() override;

    /// The target of a surface that an event names; null for a surface that has gone or has none.
    [[nodiscard]] static InputTarget* of(wl_surface* surface);

Q_SIGNALS:
    void pressed(const QPointF& position, Qt::MouseButton button);
    void moved(const QPointF& position);
    void released(const QPointF& position, Qt::MouseButton button);
    /// What was pressed will not be released here any more.
    void cancelled();

private:
    wl_surface* m_surface;
};

} // namespace orvelle
