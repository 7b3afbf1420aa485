// Changes the settings in an ini file one after the other, without end, for a test that ends it in the
// middle.
//
//   settings_changer FILE
//
// For each number on the standard input a process of its own begins to change settings. Each change has a
// number, from that one on, and only the number decides which setting gets which value. The process writes
// its id to the standard output, and then the number of each change when it is made. It ends by itself only
// when a change is not saved. When it has ended, a line follows: "ended" and by which signal.

#include "settings/settings_store.h"

#include <QCoreApplication>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

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

void tell(const char* format, int number) {
    std::printf(format, number);
    std::fflush(stdout);
}

[[noreturn]] void changeWithoutEnd(int argumentCount, char** arguments, int first) {
    const QCoreApplication program(argumentCount, arguments);
    SettingsStore settings(QString::fromLocal8Bit(arguments[1]));
    tell("%d\n", ::getpid());
    for (int number = first;; ++number) {
        change(settings, number);
        if (!settings.saveError().isEmpty()) {
            std::fprintf(stderr, "change %d: %s\n", number, qPrintable(settings.saveError()));
            ::_exit(EXIT_FAILURE);
        }
        tell("%d\n", number);
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2)
        return EXIT_FAILURE;
    int first = 0;
    while (std::scanf("%d", &first) == 1) {
        const pid_t child = ::fork();
        if (child == 0)
            changeWithoutEnd(argumentCount, arguments, first);
        int status = 0;
        if (child < 0 || ::waitpid(child, &status, 0) != child)
            return EXIT_FAILURE;
        tell("\nended %d\n", WIFSIGNALED(status) ? WTERMSIG(status) : 0);
    }
}
