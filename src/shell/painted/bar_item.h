#pragma once

#include "shell/painted/painted_accessibility.h"
#include "shell/status_item.h"

#include <QRectF>

namespace orvelle {

class Bar;

/// A status item in a bar that the program paints itself.
class BarItem final : public StatusItem {
public:
    BarItem(QString identifier, double length, Bar& bar);

    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return m_length; }
    void setPaint(ItemPaint paint) override;
    void repaint() override;
    void setWords(const QString& name, const QString& text) override;
    [[nodiscard]] double visiblePixelsPerPoint() const override;
    void setClickHandler(std::function<void(ClickButton)> handler) override;

    [[nodiscard]] const QString& accessibleName() const { return m_accessibleName; }
    [[nodiscard]] const QString& accessibleText() const { return m_accessibleText; }
    /// What assistive programs see of the item.
    [[nodiscard]] PaintedElementHolder& accessible() { return m_accessible; }

    /// Does what a click with this button does, which may remove the item.
    void click(ClickButton button) const;

    /// Whether the item is shown as held down by the mouse.
    [[nodiscard]] bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool highlighted);

    /// Whether the item's popover is shown.
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool expanded);

    /// The item's rectangle in the bar, in points. The bar assigns it.
    [[nodiscard]] const QRectF& bounds() const { return m_bounds; }
    void setBounds(const QRectF& bounds) { m_bounds = bounds; }

    /// Paints the item at its place, with a ring around it while keys act on it.
    void paint(QPainter& painter, bool isFocused) const;

private:
    QString m_identifier;
    double m_length;
    Bar& m_bar;
    ItemPaint m_paint; ///< empty until it is set
    QString m_accessibleName;
    QString m_accessibleText;
    std::function<void(ClickButton)> m_clickHandler;
    QRectF m_bounds;
    bool m_isHighlighted = false;
    bool m_isExpanded = false;
    PaintedElementHolder m_accessible;
};

} // namespace orvelle
