#include "settings/release_pool.h"
#include "theme/fonts.h"

#include <QFontDatabase>

#include <AppKit/AppKit.h>
#include <CoreText/CoreText.h>

// Qt knows the system's font in its usual design alone. The families of the others are private, so Qt does
// not find them by name, but it loads them from their files. Compiled with manual reference counting.
namespace orvelle {
namespace {

/// The file of the system's font in this design; null where it has none.
QString designedFontFile(NSFontDescriptorSystemDesign design) {
    NSFontDescriptor* const usual = [[NSFont systemFontOfSize:0] fontDescriptor];
    NSFontDescriptor* const descriptor = [usual fontDescriptorWithDesign:design];
    NSFont* const font = descriptor != nil ? [NSFont fontWithDescriptor:descriptor size:0] : nil;
    if (font == nil)
        return {};
    // The same object for Core Text, which alone tells the file.
    NSURL* const url = (NSURL*)CTFontCopyAttribute((CTFontRef)font, kCTFontURLAttribute);
    const QString file = QString::fromUtf8([[url path] UTF8String]);
    [url release];
    return file;
}

/// The family in all its weights, once Qt has loaded it; null where it cannot.
QString designedFontFamily(NSFontDescriptorSystemDesign design) {
    const QString file = designedFontFile(design);
    const int loaded = file.isEmpty() ? -1 : QFontDatabase::addApplicationFont(file);
    return QFontDatabase::applicationFontFamilies(loaded).value(0);
}

} // namespace

void useSystemFontDesigns() {
    const ReleasePool pool;
    setDesignedFontFamilies({.monospaced = designedFontFamily(NSFontDescriptorSystemDesignMonospaced),
                             .rounded = designedFontFamily(NSFontDescriptorSystemDesignRounded)});
}

} // namespace orvelle
