#include "theme/font_changes.h"

#include "theme/fonts.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPointer>

namespace orvelle {

FontChanges::FontChanges(QObject* application)
    : QObject(application) {
    application->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, &lookUpFontsAnew);
}

FontChanges& FontChanges::shared() {
    static QPointer<FontChanges> changes;
    if (changes == nullptr)
        changes = new FontChanges(QCoreApplication::instance());
    return *changes;
}

bool FontChanges::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange && watched == parent())
        lookUpFontsAnew();
    return false;
}

} // namespace orvelle
