#include "shell/macos/foundation.h"

namespace orvelle {

NSString* systemText(const QString& text) {
    return [NSString stringWithUTF8String:text.toUtf8().constData()];
}

QString qtText(NSString* text) { return QString::fromUtf8([text UTF8String]); }

} // namespace orvelle
