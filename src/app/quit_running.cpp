#include "app/quit_running.h"

#include "shell/desktop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace orvelle {
namespace {

constexpr unsigned long pauseMilliseconds = 20;

} // namespace

QuitOutcome quitRunning(Desktop& desktop, std::chrono::milliseconds patience) {
    if (!desktop.isRunningElsewhere())
        return QuitOutcome::notRunning;
    const std::unique_ptr<SingleInstance> own = desktop.becomeSingleInstance({StartRequest::Kind::quit, {}});
    if (own != nullptr)
        return QuitOutcome::ended; // just before it was asked
    const QDeadlineTimer deadline(patience);
    while (desktop.isRunningElsewhere()) {
        if (deadline.hasExpired())
            return QuitOutcome::stillRuns;
        // Some desktops tell through the event loop which programs run.
        QCoreApplication::processEvents();
        QThread::msleep(pauseMilliseconds);
    }
    return QuitOutcome::ended;
}

} // namespace orvelle
