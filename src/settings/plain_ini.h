#pragma once

#include <QSettings>

/// A format for QSettings: ini text in which a value is a plain text or nothing. QSettings' own ini format
/// restores serialised objects from the file, which a damaged or hostile file turns into huge allocations.
/// What is a text here, QSettings' own format reads as the same text.
///
/// The keys are those in the section `[General]` and before any section. A plain text is a QString. Any other
/// value (a list with commas, a serialised `@Type(...)`, an unknown escape, bytes that are not UTF-8) is a
/// QByteArray with what stands in the file, and is written back as it is. So are the other sections: they
/// stay one piece, because a key that repeats a section's name could make a small file a huge map.
namespace orvelle::PlainIni {

/// A larger file was not written by this program: it is not read, and nothing larger is written.
inline constexpr qint64 maximumSize = qint64{1} << 20;

/// False when the device does not give a whole text of a sensible size. Of equal keys the last counts. Lines
/// without a value, comments above all, are kept for the head of their section. Even an empty text gives some
/// keys, of which no file can hold another: they tell it from a text that was not read.
[[nodiscard]] bool read(QIODevice& device, QSettings::SettingsMap& values);

/// Writes QString and QByteArray values, other types by their text.
[[nodiscard]] bool write(QIODevice& device, const QSettings::SettingsMap& values);

/// The two functions above as a format of QSettings.
[[nodiscard]] QSettings::Format format();

} // namespace orvelle::PlainIni
