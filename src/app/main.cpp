#include "app/command_line.h"
#include "app/orvelle_app.h"
#include "settings/user_settings.h"

#include <cstdio>
#include <cstdlib>

int main(int argumentCount, char** arguments) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    QStringList words;
    for (int index = 0; index < argumentCount; ++index)
        words.append(QString::fromLocal8Bit(arguments[index]));
    const orvelle::CommandLine commandLine = orvelle::parseCommandLine(words, orvelle::desktopNames());
    if (!commandLine.error.isEmpty()) {
        std::fprintf(stderr, "orvelle: %s\n", qPrintable(commandLine.error));
        return orvelle::wrongUsageStatus;
    }
    const orvelle::DesktopChoice choice = orvelle::chooseDesktop(commandLine.desktop);
    if (!choice.make) {
        std::fprintf(stderr, "%s\n", qPrintable(choice.error));
        return EXIT_FAILURE;
    }

    int programNameOnly = 1; // the others are the program's own, not Qt's
    QGuiApplication application(programNameOnly, arguments);
    orvelle::SettingsStore settings(orvelle::openUserSettings());
    const std::unique_ptr<orvelle::Desktop> desktop = choice.make(settings);
    if (desktop == nullptr)
        return EXIT_FAILURE;
    const std::unique_ptr<orvelle::SingleInstance> instance = desktop->becomeSingleInstance();
    if (instance == nullptr) {
        std::fprintf(stderr, "Orvelle is already running on this desktop.\n");
        return EXIT_SUCCESS;
    }
    return orvelle::OrvelleApp(settings, *desktop, *instance, sinceStart).run();
}
