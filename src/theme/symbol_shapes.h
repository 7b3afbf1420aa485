#pragma once

#include <QFont>
#include <QImage>
#include <QStringView>

/// Where the shapes of the symbols come from. One file per operating system answers; the build chooses it.
namespace orvelle {

/// Whether there is a symbol of this name.
[[nodiscard]] bool hasSymbolShape(QStringView name);

/// The symbol in a square of `side` pixels, premultiplied: opaque where it is drawn, in any colour, and
/// transparent elsewhere. Null when the name is not known. `side` is at least 1.
[[nodiscard]] QImage symbolShape(QStringView name, int side, QFont::Weight weight);

} // namespace orvelle
