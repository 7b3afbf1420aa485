// Changes the settings in an ini file one after the other, without end, for a test that ends it in the
// middle.
//
//   settings_changer FILE FIRST
//
// Each change has a number, from FIRST on, and only the number decides which setting gets which value. The
// number is written to the standard output when the change is made. It ends by itself only when a change is
// not saved.

#include "settings/settings_store.h"

#include <QCoreApplication>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace orvelle;

constexpr int settingCount = 4;

// Values of different lengths, so that the file grows and shrinks.
void change(SettingsStore& settings, int number) {
    const int turn = number / settingCount;
    constexpr std::array styles{MenuBarDisplayStyle::miniBars, MenuBarDisplayStyle::dotIndicator};
    switch (number % settingCount) {
    case 0:
        return settings.setSelectedThemeId(QStringLiteral("theme-%1").arg(turn));
    case 1:
        return settings.setCustomCPUColorHex(QStringLiteral("#%1").arg(turn, 6, 16, QLatin1Char('0')));
    case 2:
        return settings.setMenuBarDisplayStyle(styles.at(static_cast<std::size_t>(turn % 2)));
    default:
        return settings.setCompactMode(turn % 2 == 0);
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    const QCoreApplication program(argumentCount, arguments);
    if (argumentCount != 3)
        return EXIT_FAILURE;
    SettingsStore settings(QString::fromLocal8Bit(arguments[1]));
    for (int number = std::atoi(arguments[2]);; ++number) {
        change(settings, number);
        if (!settings.saveError().isEmpty()) {
            std::fprintf(stderr, "change %d: %s\n", number, qPrintable(settings.saveError()));
            return EXIT_FAILURE;
        }
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}
