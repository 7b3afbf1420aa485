#include "shell/linux/desktop_choice.h"

#include <QStringList>

#include <array>

namespace orvelle {
namespace {

struct Candidate {
    QLatin1StringView name;
    DesktopKind kind;
    DesktopSearch::Absence DesktopSearch::* absence;
};

/// The better ones first.
constexpr std::array candidates{
    Candidate{QLatin1StringView("wayland"), DesktopKind::wayland, &DesktopSearch::wayland},
    Candidate{QLatin1StringView("x11"), DesktopKind::x11, &DesktopSearch::x11},
    Candidate{QLatin1StringView("tray"), DesktopKind::tray, &DesktopSearch::tray},
};

QLatin1StringView nameOfPlatform(const QByteArray& platform) {
    if (platform.startsWith("xcb"))
        return QLatin1StringView("x11");
    return QLatin1StringView("auto");
}

bool isForeign(const QByteArray& platform) {
    return !platform.isEmpty() && !platform.startsWith("wayland") && !platform.contains("xcb");
}

} // namespace

DesktopFinding findDesktop(const QString& wish, const QByteArray& platform, const DesktopSearch& search) {
    const bool isAutomatic = wish == QLatin1StringView("auto");
    if (isAutomatic && isForeign(platform))
        return {DesktopKind::foreign, {}};
    const QString wanted = isAutomatic ? QString(nameOfPlatform(platform)) : wish;
    QStringList absences;
    for (const Candidate& candidate : candidates) {
        if (wanted != QLatin1StringView("auto") && wanted != candidate.name)
            continue;
        const std::optional<QString> absence = (search.*candidate.absence)();
        if (!absence)
            return {candidate.kind, {}};
        absences.append(*absence);
    }
    return {std::nullopt, QStringLiteral("Orvelle finds no desktop: %1.").arg(absences.join(u"; "))};
}

} // namespace orvelle
