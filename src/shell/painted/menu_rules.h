#pragma once

#include "shell/context_menu.h"

#include <QKeySequence>
#include <QList>
#include <QRect>

#include <optional>

/// The menu's layout and its keys, as rules without a window. All in points.
namespace orvelle {

inline constexpr int menuPaddingPoints = 5;
inline constexpr int menuRowPoints = 24;
inline constexpr int menuSeparatorPoints = 11;

[[nodiscard]] bool isSeparator(const MenuEntry& entry);

/// The entries' rows from top to bottom in a menu of that width.
[[nodiscard]] QList<QRect> menuRows(const std::vector<MenuEntry>& entries, int width);

/// The entry that the arrow keys go to: the next one in direction `step`, +1 or -1, that is no separator,
/// round the ends. Without a current one it is the first or the last. Nothing when there is none to choose.
[[nodiscard]] std::optional<std::size_t> nextEntry(const std::vector<MenuEntry>& entries,
                                                   std::optional<std::size_t> current, int step);

/// The keys that choose the entry; empty when it has no key equivalent.
[[nodiscard]] QKeySequence menuKeys(const MenuEntry& entry);

} // namespace orvelle
