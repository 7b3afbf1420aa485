#include "app/command_line.h"
#include "app/orvelle_app.h"
#include "app/quit_running.h"
#include "confinement/confinement.h"
#include "settings/user_settings.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// How long a running program may take to end.
constexpr std::chrono::seconds quitPatience{5};

int complain(const char* complaint, int status) {
    std::fprintf(stderr, "orvelle: %s\n", complaint);
    return status;
}

/// A full disk or a closed output is an error.
int print(const QString& answer) {
    if (std::fputs(qPrintable(answer), stdout) < 0 || std::fflush(stdout) != 0)
        return complain(std::strerror(errno), EXIT_FAILURE);
    return EXIT_SUCCESS;
}

int quit(orvelle::Desktop& desktop) {
    switch (orvelle::quitRunning(desktop, quitPatience)) {
    case orvelle::QuitOutcome::notRunning:
        std::fprintf(stderr, "Orvelle is not running on this desktop.\n");
        return EXIT_FAILURE;
    case orvelle::QuitOutcome::stillRuns:
        std::fprintf(stderr, "Orvelle was asked to end, and still runs.\n");
        return EXIT_FAILURE;
    case orvelle::QuitOutcome::ended:
        break;
    }
    return EXIT_SUCCESS;
}

int run(orvelle::SettingsStore& settings, orvelle::Desktop& desktop, const orvelle::StartRequest& request,
        QElapsedTimer sinceStart) {
    if (request.kind == orvelle::StartRequest::Kind::quit)
        return quit(desktop);
    const std::unique_ptr<orvelle::SingleInstance> instance = desktop.becomeSingleInstance(request);
    if (instance != nullptr)
        return orvelle::OrvelleApp(settings, desktop, *instance, sinceStart).run(request);
    if (request.kind == orvelle::StartRequest::Kind::startAgain)
        std::fprintf(stderr, "Orvelle is already running on this desktop.\n");
    return EXIT_SUCCESS;
}

} // namespace

int main(int argumentCount, char** arguments) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    QStringList words;
    for (int index = 0; index < argumentCount; ++index)
        words.append(QString::fromLocal8Bit(arguments[index]));
    const orvelle::CommandLine commandLine = orvelle::parseCommandLine(words, orvelle::desktopNames());
    if (!commandLine.error.isEmpty())
        return complain(qPrintable(commandLine.error), orvelle::wrongUsageStatus);
    if (!commandLine.answer.isEmpty())
        return print(commandLine.answer);
    orvelle::confineProcess();
    // What closes a connection to the program, or reads its messages no more, does not end it.
    std::signal(SIGPIPE, SIG_IGN);
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
    return run(settings, *desktop, commandLine.request, sinceStart);
}
