#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

/// The settings in ini text, which a person may have written: they are read and changed where they stand, and
/// everything else keeps its bytes and its place. A value is a plain text or nothing. QSettings' own ini
/// format restores serialised objects from a file, which a damaged or hostile one turns into huge
/// allocations; what is a text here, it reads as the same text.
///
/// The keys are those in the section `[General]` and before any section; of equal ones the last counts. Any
/// value that is not a plain text (a list with commas, a serialised `@Type(...)`, an unknown escape, bytes
/// that are not UTF-8) counts as absent.
namespace orvelle::IniText {

/// Bytes. A larger file was not written by this program: it is not read, and nothing larger is written.
inline constexpr qsizetype maximumSize = qsizetype{1} << 20;

/// The plain texts that stand under those of `keys` that have one.
[[nodiscard]] QHash<QString, QString> values(const QByteArray& text, const QStringList& keys);

/// The text with these values. A key that stands there keeps its line and the comment behind its value; the
/// others follow the last key of the general section in alphabetical order.
[[nodiscard]] QByteArray withValues(const QByteArray& text, const QHash<QString, QString>& values);

} // namespace orvelle::IniText
