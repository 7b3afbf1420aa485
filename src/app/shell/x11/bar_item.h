#pragma once

#include "app/shell/eased_view.h"
#include "app/shell/status_item.h"

#include <QRectF>
#include <QWindow>

#include <functional>
#include <utility>

namespace orvelle {

/// A status item as a part of the bar's window.
class BarItem final : public StatusItem {
public:
    /// `changed` is called when the item must be painted again. Bars move only while `bar` is on the screen.
    BarItem(QString identifier, double length, const QWindow& bar, Motion& motion,
            std::function<void(const BarItem&)> changed)
        : m_identifier(std::move(identifier))
        , m_length(length)
        , m_bar(bar)
        , m_changed(std::move(changed))
        , m_view(motion, [this] { m_changed(*this); }) {}

    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return m_length; }
    void setView(std::shared_ptr<const StatusItemView> view) override {
        m_view.replace(std::move(view), m_bar.devicePixelRatio(), m_bar.isExposed());
        m_changed(*this);
    }

    void setClickHandler(std::function<void(ClickButton)> handler) override {
        m_clickHandler = std::move(handler);
    }
    [[nodiscard]] const std::function<void(ClickButton)>& clickHandler() const { return m_clickHandler; }

    /// Whether the item is shown as held down by the mouse.
    [[nodiscard]] bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool highlighted) {
        if (std::exchange(m_isHighlighted, highlighted) != highlighted)
            m_changed(*this);
    }

    /// Paints the picture at its place; nothing before the first one is set.
    void paint(QPainter& painter) const { m_view.paint(painter, m_bounds); }

    /// Where the item stands in the bar, in points. The bar assigns it.
    [[nodiscard]] const QRectF& bounds() const { return m_bounds; }
    void setBounds(const QRectF& bounds) { m_bounds = bounds; }

private:
    QString m_identifier;
    double m_length;
    const QWindow& m_bar;
    std::function<void(const BarItem&)> m_changed;
    EasedView m_view;
    std::function<void(ClickButton)> m_clickHandler;
    QRectF m_bounds;
    bool m_isHighlighted = false;
};

} // namespace orvelle
