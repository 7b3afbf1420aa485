#pragma once

#include "shell/wayland/fake_compositor.h"

#include <QThread>

#include <utility>

namespace orvelle {

/// A fake compositor in a thread of its own, for a program whose Qt is its client: Qt waits for answers.
class CompositorThread final : public QThread {
public:
    explicit CompositorThread(const FakeOffers& offers);
    ~CompositorThread() override;

    /// The one that `main` has started.
    [[nodiscard]] static CompositorThread& shared();

    /// A socket that is connected to the compositor.
    [[nodiscard]] int clientSocket() const { return m_clientSocket; }

    /// Calls the function in the thread and returns what it returns.
    template <class Function>
    auto ask(Function function) {
        decltype(function(std::declval<FakeCompositor&>())) answer{};
        QMetaObject::invokeMethod(
            m_compositor, [&] { answer = function(*m_compositor); }, Qt::BlockingQueuedConnection);
        return answer;
    }
    /// Calls the function in the thread.
    template <class Function>
    void tell(Function function) {
        QMetaObject::invokeMethod(
            m_compositor, [&] { function(*m_compositor); }, Qt::BlockingQueuedConnection);
    }

private:
    void run() override;

    FakeOffers m_offers;
    FakeCompositor* m_compositor = nullptr; ///< while the thread runs
    int m_clientSocket = -1;
};

} // namespace orvelle
