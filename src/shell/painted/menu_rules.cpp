#include "shell/painted/menu_rules.h"

namespace orvelle {

bool isSeparator(const MenuEntry& entry) {
    return entry.title.isEmpty();
}

QList<QRect> menuRows(const std::vector<MenuEntry>& entries, int width) {
    QList<QRect> rows;
    int top = menuPaddingPoints;
    for (const MenuEntry& entry : entries) {
        const int height = isSeparator(entry) ? menuSeparatorPoints : menuRowPoints;
        rows.append(QRect(menuPaddingPoints, top, width - 2 * menuPaddingPoints, height));
        top += height;
    }
    return rows;
}

std::optional<std::size_t> nextEntry(const std::vector<MenuEntry>& entries,
                                     std::optional<std::size_t> current, int step) {
    const std::size_t count = entries.size();
    const std::size_t stride = step > 0 ? 1 : count - 1;
    std::size_t index = current.value_or(step > 0 ? count - 1 : 0);
    for (std::size_t tried = 0; tried < count; ++tried) {
        index = (index + stride) % count;
        if (!isSeparator(entries[index]))
            return index;
    }
    return std::nullopt;
}

QKeySequence menuKeys(const MenuEntry& entry) {
    if (entry.keyEquivalent.isEmpty())
        return {};
    return QKeySequence(QStringLiteral("Ctrl+") + entry.keyEquivalent.toUpper());
}

} // namespace orvelle
