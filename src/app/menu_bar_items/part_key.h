#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QSizeF>
#include <QString>

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

/// Keys that tell whether two parts of a menu-bar item look the same, without painting them: they hold every
/// value that the part is painted from. Each value is written with its length where that can differ, so that
/// no two lists of values make one key.
namespace orvelle {

template <class Number>
requires std::integral<Number> || std::floating_point<Number>
void appendToKey(std::string& key, Number number) {
    key.append(reinterpret_cast<const char*>(&number), sizeof number);
}

inline void appendToKey(std::string& key, std::string_view text) {
    appendToKey(key, text.size());
    key.append(text);
}

inline void appendToKey(std::string& key, QStringView text) {
    appendToKey(key, text.size());
    key.append(reinterpret_cast<const char*>(text.data()),
               static_cast<std::size_t>(text.size()) * sizeof(QChar));
}

inline void appendToKey(std::string& key, const QColor& color) {
    appendToKey(key, static_cast<quint64>(color.rgba64()));
}

inline void appendToKey(std::string& key, const QSizeF& size) {
    appendToKey(key, size.width());
    appendToKey(key, size.height());
}

/// The properties in which the menu bar's fonts differ from one another.
inline void appendToKey(std::string& key, const QFont& font) {
    appendToKey(key, QStringView(font.family()));
    appendToKey(key, font.pixelSize());
    appendToKey(key, font.pointSizeF());
    appendToKey(key, static_cast<int>(font.weight()));
}

template <class Value>
void appendToKey(std::string& key, const std::optional<Value>& value) {
    appendToKey(key, value.has_value());
    if (value)
        appendToKey(key, *value);
}

template <class Value>
void appendToKey(std::string& key, const QList<Value>& values) {
    appendToKey(key, values.size());
    for (const Value& value : values)
        appendToKey(key, value);
}

/// The key of a part of this kind that is painted from these values.
template <class... Values>
[[nodiscard]] std::string partKey(std::string_view kind, const Values&... values) {
    std::string key;
    appendToKey(key, kind);
    (appendToKey(key, values), ...);
    return key;
}

/// A length that grows with a value that moves all the time, points: as fine as anybody can see it.
[[nodiscard]] double visibleLength(double points);

} // namespace orvelle
