#include "theme/fonts.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace orvelle {
namespace {

enum class FontRole { proportional, monospaced, rounded };

/// The key of the cache: role, size in logical pixels, weight, and the screen's dots per inch.
using FontKey = std::tuple<FontRole, double, int, int>;

/// What has been looked up since the fonts last changed.
struct FontCache {
    QHash<FontRole, QFont> bases;
    std::map<FontKey, QFont> fonts;
};

FontCache& cache() {
    static FontCache fonts;
    return fonts;
}

DesktopFontNames& announced() {
    static DesktopFontNames names;
    return names;
}

DesignedFontFamilies& designed() {
    static DesignedFontFamilies families;
    return families;
}

/// Whether fontconfig or Qt names this family because the desktop has chosen none.
bool isGenericFamily(const QString& family) {
    static const QStringList generic = {QStringLiteral("Sans Serif"), QStringLiteral("Sans"),
                                        QStringLiteral("sans-serif"), QStringLiteral("Helvetica"),
                                        QStringLiteral("monospace"),  QStringLiteral("Monospace")};
    return family.isEmpty() || generic.contains(family);
}

/// The first of `candidates` that is installed, or an empty string.
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

/// The installed family that the desktop announces for this role, or an empty string.
QString announcedFamily(FontRole role) {
    if (role == FontRole::rounded)
        return {};
    const QString& description =
        role == FontRole::monospaced ? announced().monospaced : announced().proportional;
    return description.isEmpty() ? QString() : describedFamily(description, QFontDatabase::families());
}

/// The family of the system's own font in the design of this role, or an empty string.
QString designedFamily(FontRole role) {
    switch (role) {
    case FontRole::proportional:
        break;
    case FontRole::monospaced:
        return designed().monospaced;
    case FontRole::rounded:
        return designed().rounded;
    }
    return {};
}

QFont baseFont(FontRole role) {
    const bool isMonospaced = role == FontRole::monospaced;
    QFont font =
        QFontDatabase::systemFont(isMonospaced ? QFontDatabase::FixedFont : QFontDatabase::GeneralFont);
    const bool needsAnotherFamily = role == FontRole::rounded || isGenericFamily(font.family());
    QString family = announcedFamily(role);
    if (family.isEmpty())
        family = designedFamily(role);
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

/// QFont takes whole pixel sizes only; a fractional size is set in points at the screen's resolution.
void setLogicalPixelSize(QFont& font, double pixels, int dotsPerInch) {
    if (std::rint(pixels) == pixels) {
        font.setPixelSize(static_cast<int>(pixels));
        return;
    }
    constexpr double pointsPerInch = 72;
    font.setPointSizeF(pixels * pointsPerInch / dotsPerInch);
}

/// Cached, because asking for the installed families walks the whole font database.
const QFont& cachedBaseFont(FontRole role) {
    QHash<FontRole, QFont>& bases = cache().bases;
    auto base = bases.find(role);
    if (base == bases.end())
        base = bases.insert(role, baseFont(role));
    return *base;
}

/// Cached for each key, because a new QFont looks up its glyphs again.
QFont makeFont(FontRole role, double size, QFont::Weight weight) {
    constexpr double largestSize = 1000;
    const double pixels = size > 0 ? std::min(size, largestSize) : 1;
    const int dotsPerInch = logicalDotsPerInch();
    const auto [made, isNew] = cache().fonts.try_emplace(FontKey(role, pixels, weight, dotsPerInch));
    if (isNew) {
        made->second = cachedBaseFont(role);
        setLogicalPixelSize(made->second, pixels, dotsPerInch);
        made->second.setWeight(weight);
    }
    return made->second;
}

/// Drops the cached fonts and signals it.
void resetFonts() {
    cache() = {};
    Q_EMIT FontChanges::shared().changed();
}

} // namespace

FontChanges::FontChanges(QObject* application)
    : QObject(application) {
    application->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, &resetFonts);
}

FontChanges& FontChanges::shared() {
    static QPointer<FontChanges> changes;
    if (changes == nullptr)
        changes = new FontChanges(QCoreApplication::instance());
    return *changes;
}

bool FontChanges::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange && watched == parent())
        resetFonts();
    return false;
}

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
    resetFonts();
}

void setDesignedFontFamilies(const DesignedFontFamilies& families) {
    if (designed() == families)
        return;
    designed() = families;
    resetFonts();
}

QString describedFamily(const QString& description, const QStringList& families) {
    constexpr qsizetype maximumLength = 256; // of a plausible description
    for (const QString& choice : description.left(maximumLength).split(u',')) {
        const QStringList words = choice.simplified().split(u' ');
        // Names and styles both have several words: the longest installed name is meant.
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
