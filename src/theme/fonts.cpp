#include "theme/fonts.h"

#include "theme/font_changes.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace orvelle {
namespace {

enum class FontRole { proportional, monospaced, rounded };

/// What makes a font: its role, its size in logical pixels, its weight, and the screen's dots per inch.
using WantedFont = std::tuple<FontRole, double, int, int>;

/// What has been looked up since the last change.
struct FontCache {
    QHash<FontRole, QFont> bases;
    std::map<WantedFont, QFont> fonts;
};

FontCache& cache() {
    static FontCache kept;
    return kept;
}

DesktopFontNames& announced() {
    static DesktopFontNames names;
    return names;
}

/// What fontconfig and Qt answer when the desktop has chosen nothing.
bool isGenericFamily(const QString& family) {
    static const QStringList generic = {QStringLiteral("Sans Serif"), QStringLiteral("Sans"),
                                        QStringLiteral("sans-serif"), QStringLiteral("Helvetica"),
                                        QStringLiteral("monospace"),  QStringLiteral("Monospace")};
    return family.isEmpty() || generic.contains(family);
}

/// The first of `candidates` that is installed, else an empty string.
QString firstInstalled(const QStringList& candidates) {
    const QStringList installed = QFontDatabase::families();
    for (const QString& candidate : candidates) {
        if (installed.contains(candidate))
            return candidate;
    }
    return {};
}

QStringList candidateFamilies(FontRole role) {
    switch (role) {
    case FontRole::proportional:
        return {QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("Cantarell"),
                QStringLiteral("Ubuntu"), QStringLiteral("DejaVu Sans")};
    case FontRole::monospaced:
        return {QStringLiteral("Noto Sans Mono"), QStringLiteral("DejaVu Sans Mono"),
                QStringLiteral("Liberation Mono")};
    case FontRole::rounded:
        return {QStringLiteral("SF Pro Rounded"), QStringLiteral("Nunito"), QStringLiteral("Varela Round")};
    }
    return {};
}

/// The installed family that the desktop announces for this role, else an empty string.
QString announcedFamily(FontRole role) {
    if (role == FontRole::rounded)
        return {};
    const QString& description =
        role == FontRole::monospaced ? announced().monospaced : announced().proportional;
    return description.isEmpty() ? QString() : describedFamily(description, QFontDatabase::families());
}

QFont baseFont(FontRole role) {
    const bool isMonospaced = role == FontRole::monospaced;
    QFont font =
        QFontDatabase::systemFont(isMonospaced ? QFontDatabase::FixedFont : QFontDatabase::GeneralFont);
    const bool needsAnotherFamily = role == FontRole::rounded || isGenericFamily(font.family());
    QString family = announcedFamily(role);
    if (family.isEmpty() && needsAnotherFamily)
        family = firstInstalled(candidateFamilies(role));
    if (!family.isEmpty())
        font.setFamilies({family});
    else if (role == FontRole::rounded)
        font = baseFont(FontRole::proportional);
    font.setStyleHint(isMonospaced ? QFont::Monospace : QFont::SansSerif);
    return font;
}

/// The resolution that images and windows report.
int logicalDotsPerInch() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? qRound(screen->logicalDotsPerInchY()) : 96;
}

/// A pixel size can only be whole; a fractional one goes through points at the screen's resolution.
void setLogicalPixelSize(QFont& font, double pixels, int dotsPerInch) {
    if (std::rint(pixels) == pixels) {
        font.setPixelSize(static_cast<int>(pixels));
        return;
    }
    constexpr double pointsPerInch = 72;
    font.setPointSizeF(pixels * pointsPerInch / dotsPerInch);
}

/// Looked up once: asking for the installed families walks the whole font database.
const QFont& keptBaseFont(FontRole role) {
    QHash<FontRole, QFont>& bases = cache().bases;
    auto base = bases.find(role);
    if (base == bases.end())
        base = bases.insert(role, baseFont(role));
    return *base;
}

/// Made once for each size, because a font that is made anew looks for its glyphs anew.
QFont makeFont(FontRole role, double size, QFont::Weight weight) {
    constexpr double largestSize = 1000;
    const double pixels = size > 0 ? std::min(size, largestSize) : 1;
    const int dotsPerInch = logicalDotsPerInch();
    const auto [made, isNew] = cache().fonts.try_emplace(WantedFont(role, pixels, weight, dotsPerInch));
    if (isNew) {
        made->second = keptBaseFont(role);
        setLogicalPixelSize(made->second, pixels, dotsPerInch);
        made->second.setWeight(weight);
    }
    return made->second;
}

} // namespace

QFont systemFont(double size, QFont::Weight weight) {
    return makeFont(FontRole::proportional, size, weight);
}

QFont monospacedSystemFont(double size, QFont::Weight weight) {
    return makeFont(FontRole::monospaced, size, weight);
}

QFont roundedSystemFont(double size, QFont::Weight weight) {
    return makeFont(FontRole::rounded, size, weight);
}

void setDesktopFontNames(const DesktopFontNames& names) {
    if (announced() == names)
        return;
    announced() = names;
    lookUpFontsAnew();
}

void lookUpFontsAnew() {
    cache() = {};
    Q_EMIT FontChanges::shared().changed();
}

QString describedFamily(const QString& description, const QStringList& families) {
    constexpr qsizetype longest = 256; // of a description that is worth reading
    for (const QString& choice : description.left(longest).split(u',')) {
        const QStringList words = choice.simplified().split(u' ');
        // Names have several words, and so have styles: the longest name that is installed is meant.
        for (qsizetype count = words.size(); count > 0; --count) {
            const QString name = words.first(count).join(u' ');
            const auto found = std::ranges::find_if(families, [&name](const QString& family) {
                return family.compare(name, Qt::CaseInsensitive) == 0;
            });
            if (found != families.end())
                return *found;
        }
    }
    return {};
}

} // namespace orvelle
