#include "app/orvelle_app.h"
#include "shell/desktop.h"

#include <cstdio>
#include <cstdlib>

int main(int /*argumentCount*/, char** arguments) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    if (const std::optional<QString> reason = orvelle::prepareDesktop()) {
        std::fprintf(stderr, "%s\n", qPrintable(*reason));
        return EXIT_FAILURE;
    }
    int programNameOnly = 1; // the program takes no arguments
    return orvelle::OrvelleApp(programNameOnly, arguments, sinceStart).run();
}
