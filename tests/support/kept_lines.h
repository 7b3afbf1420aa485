#pragma once

#include <QByteArrayView>
#include <QStringList>

#include <algorithm>

/// Lines of a settings file, which a program may not lose.
namespace orvelle {

/// Takes the first line without its end and without the mark of UTF-8 before it.
[[nodiscard]] inline QByteArrayView takeSettingsLine(QByteArrayView& text) {
    const qsizetype feed = text.indexOf('\n');
    const QByteArrayView line = text.first(feed < 0 ? text.size() : feed);
    text = text.sliced(feed < 0 ? text.size() : feed + 1);
    return line.startsWith("\xEF\xBB\xBF") ? line.sliced(3).trimmed() : line.trimmed();
}

/// Whether every line of `before` that names none of the `keys` is in `after` too, in the same order.
[[nodiscard]] inline bool keepsOtherLines(QByteArrayView before, QByteArrayView after,
                                          const QStringList& keys) {
    while (!before.isEmpty()) {
        const QByteArrayView line = takeSettingsLine(before);
        const bool isNamed =
            std::ranges::any_of(keys, [&](const QString& key) { return line.indexOf(key.toLatin1()) >= 0; });
        bool isFound = isNamed || line.isEmpty();
        while (!isFound && !after.isEmpty())
            isFound = takeSettingsLine(after) == line;
        if (!isFound)
            return false;
    }
    return true;
}

} // namespace orvelle
