#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

/// Settings in ini text, which people edit too: a change keeps every other byte and its place. A value is a
/// plain text or absent. QSettings' own ini format would restore serialised objects, and a damaged or hostile
/// file would turn them into huge allocations. It reads every plain text as the same text.
///
/// The keys are those of the section `[General]` and those before any section; the last of equal keys counts.
/// A value that is not a plain text (a list with commas, a serialised `@Type(...)`, an unknown escape, bytes
/// that are not UTF-8) counts as absent.
namespace orvelle::IniText {

/// Bytes. Larger files are neither read nor written.
inline constexpr qsizetype maximumSize = qsizetype{1} << 20;

/// The plain texts of those `keys` that have one.
[[nodiscard]] QHash<QString, QString> values(const QByteArray& text, const QStringList& keys);

/// The text with these values. An existing key keeps its line and its comment; new keys follow the last one
/// of the general section in alphabetical order.
[[nodiscard]] QByteArray withValues(const QByteArray& text, const QHash<QString, QString>& values);

} // namespace orvelle::IniText
