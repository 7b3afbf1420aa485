#include "shell/wayland/compositor_thread.h"

#include "shell/wayland/fake_seat.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>

namespace orvelle {
namespace {

CompositorThread* sharedThread = nullptr;

} // namespace

CompositorThread::CompositorThread(const FakeOffers& offers)
    : m_offers(offers) {
    sharedThread = this;
    start();
    while (m_clientSocket < 0)
        QThread::usleep(100);
}

CompositorThread::~CompositorThread() {
    requestInterruption();
    eventDispatcher()->wakeUp();
    wait();
}

CompositorThread& CompositorThread::shared() {
    return *sharedThread;
}

void CompositorThread::run() {
    FakeCompositor compositor(m_offers);
    compositor.seat().setCapabilities(true, false, true);
    compositor.addOutput(QStringLiteral("FAKE-1"), QSize(1280, 800));
    m_compositor = &compositor;
    m_clientSocket = compositor.connectClient();
    // An event loop would ask for an application.
    while (!isInterruptionRequested())
        eventDispatcher()->processEvents(QEventLoop::WaitForMoreEvents);
    m_compositor = nullptr;
}

} // namespace orvelle
