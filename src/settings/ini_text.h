#pragma once

#include "settings/settings_storage.h"

#include <QByteArray>

/// The text of a settings file: lines `key=value` in the section `[General]`, other sections left alone. The
/// format is a strict part of QSettings' ini format. QSettings itself is not used for it, because it restores
/// serialised objects from the file, which a damaged or hostile file turns into huge allocations, and because
/// it drops the comments of people who edit the file by hand.
namespace orvelle::IniText {

/// The plain values under `keys` in the section `[General]` and in the lines before any section. A value is a
/// text, in quotes or not, with the escapes \\ \" \n \r \t and \x with up to four hexadecimal digits. What is
/// no plain text (a list with commas, a serialised `@Type(...)`, an unknown escape) is left out. Of equal
/// keys the last counts.
[[nodiscard]] StoredValues parse(const QByteArray& text, const QStringList& keys);

/// The text with each value in its key's last line, or in a new line at the end of `[General]`; every other
/// byte stays as it is.
[[nodiscard]] QByteArray withValues(const QByteArray& text, const StoredValues& values);

} // namespace orvelle::IniText
