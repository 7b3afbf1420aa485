#pragma once

#include <QObject>

namespace orvelle {

/// Tells when the fonts of theme/fonts.h are others than before, so that what is written in them is written
/// anew. Fonts change with the desktop's choice, which Qt tells or `setDesktopFontNames`, and with what is
/// installed. Main thread only.
class FontChanges final : public QObject {
    Q_OBJECT

public:
    /// The one of the process. It lives as long as the application object.
    [[nodiscard]] static FontChanges& shared();

Q_SIGNALS:
    /// The fonts that are asked for from now on may be others.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit FontChanges(QObject* application);
};

} // namespace orvelle
