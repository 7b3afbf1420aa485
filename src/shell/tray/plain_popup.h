#pragma once

#include "shell/painted/popup.h"
#include "shell/painted/popup_events.h"

#include <QWindow>

namespace orvelle {

/// Whether a popup gets the keyboard when it opens.
enum class PopupKeyboard { takes, leaves };

/// A popup by what Qt offers on every desktop. One that takes the keyboard closes with Escape and when
/// another window gets the keyboard; one that leaves it only when it is told to. Where the desktop places
/// windows itself, it opens where the desktop wants. Main thread only.
class PlainPopup final : public Popup {
    Q_OBJECT

public:
    /// The window must outlive the object and must not have been shown.
    PlainPopup(QWindow& window, PopupKeyboard keyboard);

    void show(QScreen& screen, const QRect& geometry, const QRectF& spared) override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return m_isShown; }

private:
    QWindow& m_window;
    PopupEvents m_events{m_window};
    bool m_takesKeyboard;
    bool m_isShown = false;
};

} // namespace orvelle
