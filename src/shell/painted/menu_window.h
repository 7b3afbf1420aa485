#pragma once

#include "shell/painted/painted_accessibility.h"
#include "shell/status_bar.h"

#include <QKeySequence>
#include <QList>
#include <QRasterWindow>

#include <optional>

/// The menu on desktops on which the program paints it. All lengths are in points.
namespace orvelle {

// Layout and keys.

inline constexpr int menuPaddingPoints = 5;
inline constexpr int menuRowPoints = 24;
inline constexpr int menuSeparatorPoints = 11;

[[nodiscard]] bool isSeparator(const MenuEntry& entry);

/// The entries' rows from top to bottom in a menu of that width.
[[nodiscard]] QList<QRect> menuRows(const std::vector<MenuEntry>& entries, int width);

/// The entry that an arrow key moves to: the next one in direction `step`, +1 or -1, that is no separator,
/// round the ends. Without a current one it is the first or the last. Nothing when there are only separators.
[[nodiscard]] std::optional<std::size_t> nextEntry(const std::vector<MenuEntry>& entries,
                                                   std::optional<std::size_t> current, int step);

/// The keys that choose the entry; empty when it has no key equivalent.
[[nodiscard]] QKeySequence menuKeys(const MenuEntry& entry);

/// Paints a menu and lets the mouse and keys choose from it. A `Popup` places and closes it. Assistive
/// programs see a menu with an item for each entry; the current one has the focus.
class MenuWindow : public QRasterWindow {
    Q_OBJECT

public:
    MenuWindow();

    void setEntries(std::vector<MenuEntry> entries);
    [[nodiscard]] const std::vector<MenuEntry>& entries() const { return m_entries; }
    /// The size, in points, at which every entry fits.
    [[nodiscard]] QSize wantedSize() const;
    /// The entry that Enter would choose.
    [[nodiscard]] std::optional<std::size_t> current() const { return m_current; }
    /// The entry at a position in points from the menu's upper left corner; a separator is none.
    [[nodiscard]] std::optional<std::size_t> entryAt(const QPointF& position) const;

    /// What assistive programs see of an entry.
    [[nodiscard]] PaintedElementHolder& accessibleEntry(std::size_t index) {
        return m_accessibleEntries[index];
    }
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
    std::vector<PaintedElementHolder> m_accessibleEntries; ///< one for each entry
    std::optional<std::size_t> m_current;
};

} // namespace orvelle
