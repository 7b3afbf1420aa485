#pragma once

#include "shell/painted/painted_accessibility.h"
#include "shell/status_item.h"

#include <QRectF>
#include <QWindow>

#include <functional>
#include <utility>

namespace orvelle {

/// A status item as a part of the bar's window.
class BarItem final : public StatusItem {
public:
    /// `changed` is called when the item must be painted again.
    BarItem(QString identifier, double length, const QWindow& bar,
            std::function<void(const BarItem&)> changed)
        : m_identifier(std::move(identifier))
        , m_length(length)
        , m_bar(bar)
        , m_changed(std::move(changed)) {}

    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return m_length; }
    void setPaint(std::function<void(QPainter&, const QRectF&)> paint) override {
        m_paint = std::move(paint);
    }
    void repaint() override { m_changed(*this); }
    void setWords(const QString& name, const QString& text) override {
        m_accessibleName = name;
        m_accessibleText = text;
        if (PaintedPart* part = m_accessible.get())
            part->announceDescription();
    }
    [[nodiscard]] const QString& accessibleName() const { return m_accessibleName; }
    [[nodiscard]] const QString& accessibleText() const { return m_accessibleText; }
    [[nodiscard]] double visiblePixelsPerPoint() const override {
        return m_bar.isExposed() ? m_bar.devicePixelRatio() : 0;
    }

    void setClickHandler(std::function<void(ClickButton)> handler) override {
        m_clickHandler = std::move(handler);
    }
    /// Does what a click with this button does, which may remove the item.
    void click(ClickButton button) const {
        // A copy, because the handler may remove the item and itself with it.
        const std::function<void(ClickButton)> handler = m_clickHandler;
        if (handler)
            handler(button);
    }

    /// Whether the item is shown as held down by the mouse.
    [[nodiscard]] bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool highlighted) {
        if (std::exchange(m_isHighlighted, highlighted) != highlighted)
            m_changed(*this);
    }

    /// Whether the item's popover is shown.
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool expanded) {
        if (std::exchange(m_isExpanded, expanded) == expanded)
            return;
        QAccessible::State changed;
        changed.expanded = true;
        if (PaintedPart* part = m_accessible.get())
            part->announceState(changed);
    }

    /// What assistive programs see of the item.
    [[nodiscard]] PaintedPartHolder& accessible() { return m_accessible; }

    /// Paints the picture at its place; nothing before it is told how.
    void paint(QPainter& painter) const {
        if (m_paint)
            m_paint(painter, m_bounds);
    }

    /// Where the item stands in the bar, in points. The bar assigns it.
    [[nodiscard]] const QRectF& bounds() const { return m_bounds; }
    void setBounds(const QRectF& bounds) { m_bounds = bounds; }

private:
    QString m_identifier;
    double m_length;
    const QWindow& m_bar;
    std::function<void(const BarItem&)> m_changed;
    std::function<void(QPainter&, const QRectF&)> m_paint;
    QString m_accessibleName;
    QString m_accessibleText;
    std::function<void(ClickButton)> m_clickHandler;
    QRectF m_bounds;
    bool m_isHighlighted = false;
    bool m_isExpanded = false;
    PaintedPartHolder m_accessible;
};

} // namespace orvelle
