#include "app/orvelle_app.h"

#include "animation/animation_clock.h"
#include "platform/host.h"
#include "theme/fonts.h"

#include <QLoggingCategory>
#include <QSessionManager>

namespace orvelle {
namespace {

/// Off by default; QT_LOGGING_RULES="orvelle.start.debug=true" enables this category.
Q_LOGGING_CATEGORY(startLog, "orvelle.start", QtInfoMsg)
Q_LOGGING_CATEGORY(sampleLog, "orvelle.sample", QtInfoMsg)
Q_LOGGING_CATEGORY(motionLog, "orvelle.motion", QtInfoMsg)
Q_LOGGING_CATEGORY(fontLog, "orvelle.fonts", QtInfoMsg)

} // namespace

OrvelleApp::OrvelleApp(SettingsStore& settings, Desktop& desktop, SingleInstance& instance,
                       QElapsedTimer sinceStart)
    : m_sinceStart(sinceStart)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_themes(m_settings)
    , m_monitor(makeHostSources(), m_settings)
    , m_reducedMotion(m_desktop.followReducedMotion(AnimationClock::shared()))
    , m_desktopFonts(m_desktop.followFonts())
    , m_statusBar(m_desktop.makeStatusBar())
    , m_launchAtLogin(m_settings, m_desktop.makeLoginItem())
    , m_delegate(m_monitor, m_settings, m_themes,
                 {*m_statusBar, findWindowFactory(),
                  [this](std::unique_ptr<QWindow> content) {
                      return m_desktop.makeSettingsWindow(std::move(content));
                  },
                  &m_launchAtLogin}) {
    // The program keeps running with an empty bar and every window closed.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&m_terminationSignals, &TerminationSignals::received, qGuiApp, &QGuiApplication::quit);
    QObject::connect(qGuiApp, &QGuiApplication::aboutToQuit, &m_delegate,
                     &AppDelegate::applicationWillTerminate);
    QObject::connect(&instance, &SingleInstance::startedAgain, &m_delegate, &AppDelegate::handleRequest);
    // The user may come back from the settings where a login item is approved.
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &m_launchAtLogin,
                     &LaunchAtLogin::checkApproval);
    leaveLoginToItsSwitch();
    logStart();
    logSamples();
    logMotion();
    logFonts();
}

int OrvelleApp::run(const StartRequest& request) {
    m_delegate.applicationDidFinishLaunching();
    m_launchAtLogin.start();
    if (request != StartRequest())
        m_delegate.handleRequest(request);
    return QGuiApplication::exec();
}

void OrvelleApp::leaveLoginToItsSwitch() {
    const auto refuseRestart = [](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
    };
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &m_delegate, refuseRestart);
    QObject::connect(qGuiApp, &QGuiApplication::saveStateRequest, &m_delegate, refuseRestart);
}

void OrvelleApp::logStart() {
    QObject::connect(m_statusBar.get(), &StatusBar::firstPainted, m_statusBar.get(), [this] {
        qCDebug(startLog, "first bar painted %lld ms after main() was entered",
                static_cast<long long>(m_sinceStart.elapsed()));
    });
}

void OrvelleApp::logMotion() {
    const auto log = [] {
        qCDebug(motionLog, "motion is %s", AnimationClock::shared().isReduced() ? "reduced" : "full");
    };
    QObject::connect(&AnimationClock::shared(), &AnimationClock::reducedChanged, &m_delegate, log);
    log();
}

void OrvelleApp::logFonts() {
    if (!fontLog().isDebugEnabled())
        return;
    const auto log = [] { qCDebug(fontLog, "the font is %s", qUtf8Printable(systemFont(11).family())); };
    QObject::connect(&FontChanges::shared(), &FontChanges::changed, &m_delegate, log);
    log();
}

void OrvelleApp::logSamples() {
    if (!sampleLog().isDebugEnabled())
        return;
    QObject::connect(&m_monitor, &SystemMonitor::changed, &m_delegate, [this] {
        for (const ModuleInfo& module : moduleTable) {
            const ItemScene scene = makeScene(module.id, {m_monitor, m_settings, m_themes});
            qCDebug(sampleLog, "%s: %s, cycle %lld", module.key.data(), qUtf8Printable(scene.accessibleText),
                    static_cast<long long>(m_monitor.updateCycleCount()));
        }
    });
}

} // namespace orvelle
