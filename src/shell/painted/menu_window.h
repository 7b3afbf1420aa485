#pragma once

#include "shell/context_menu.h"
#include "shell/painted/painted_accessibility.h"

#include <QRasterWindow>

#include <optional>

namespace orvelle {

/// A menu's picture, and what the mouse and the keys choose in it. Where it stands and when it closes is the
/// work of `PopupWindow`.
class MenuWindow : public QRasterWindow {
    Q_OBJECT

public:
    MenuWindow();

    void setEntries(std::vector<MenuEntry> entries);
    [[nodiscard]] const std::vector<MenuEntry>& entries() const { return m_entries; }
    /// The size, in points, that shows every entry whole.
    [[nodiscard]] QSize wantedSize() const;
    /// The entry that Enter would choose.
    [[nodiscard]] std::optional<std::size_t> current() const { return m_current; }
    /// The entry at a position in points from the menu's upper left corner; a separator is none.
    [[nodiscard]] std::optional<std::size_t> entryAt(const QPointF& position) const;

    /// What assistive programs see of an entry.
    [[nodiscard]] PaintedPartHolder& accessibleEntry(std::size_t index) { return m_accessibleEntries[index]; }
    [[nodiscard]] QAccessibleInterface* accessibleRoot() const override;

Q_SIGNALS:
    void chosen(std::size_t index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;

private:
    void setCurrent(std::optional<std::size_t> index);
    void paintRow(QPainter& painter, std::size_t index, const QRect& row) const;

    std::vector<MenuEntry> m_entries;
    std::vector<PaintedPartHolder> m_accessibleEntries; ///< one for each entry
    std::optional<std::size_t> m_current;
};

} // namespace orvelle
