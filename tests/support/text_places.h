#pragma once

#include "theme/fonts.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QJSValue>
#include <QQuickItem>
#include <QQuickWindow>
#include <gtest/gtest.h>

/// The places of the texts in a Qt Quick window, and checks that all texts are readable.
namespace orvelle {

/// Half a point, which rounding to pixels hides.
inline constexpr double textTolerance = 0.5;

inline std::string wordsOf(const QQuickItem& text) {
    return text.property("text").toString().toStdString();
}

/// The visible texts inside `root`: labels, and texts that can be selected or edited.
inline QList<QQuickItem*> shownTextsIn(const QQuickItem& root) {
    QList<QQuickItem*> texts;
    for (QQuickItem* child : root.childItems()) {
        if (!child->isVisible() || child->opacity() == 0)
            continue;
        const bool isText = child->inherits("QQuickText") || child->inherits("QQuickTextInput");
        if (isText && !child->property("text").toString().isEmpty())
            texts.append(child);
        texts += shownTextsIn(*child);
    }
    return texts;
}

/// Increases the letter spacing of every text inside `root`, to simulate an even wider font.
inline void spreadLetters(const QQuickItem& root, double percent) {
    for (QQuickItem* text : shownTextsIn(root)) {
        QFont font = text->property("font").value<QFont>();
        font.setLetterSpacing(QFont::PercentageSpacing, percent);
        text->setProperty("font", font);
    }
}

/// The real extent of the lines of a text, in the coordinates of `frame`. It may exceed the item.
inline QRectF linesOf(const QQuickItem& text, const QQuickItem& frame) {
    const QSizeF size(text.property("contentWidth").toDouble(), text.property("contentHeight").toDouble());
    const double free = text.width() - size.width();
    const int alignment = text.property("effectiveHorizontalAlignment").toInt();
    const double left = alignment == Qt::AlignRight     ? free
                        : alignment == Qt::AlignHCenter ? free / 2
                                                        : text.property("leftPadding").toDouble();
    const bool isCentered = text.property("verticalAlignment").toInt() == Qt::AlignVCenter;
    const double top =
        isCentered ? (text.height() - size.height()) / 2 : text.property("topPadding").toDouble();
    return frame.mapRectFromItem(&text, {{left, top}, size});
}

/// The size, in points, of a text as shown. It is below the font's size if the text is shrunk to fit.
/// Editable text is never shrunk.
inline int shownSizeOf(const QQuickItem& text) {
    if (text.inherits("QQuickTextInput"))
        return text.property("font").value<QFont>().pixelSize();
    return text.property("fontInfo").value<QJSValue>().property(QStringLiteral("pixelSize")).toInt();
}

/// Expects the text inside each of its parent items, up to `frame`. A scrolling parent may be shorter than
/// its content.
inline void expectInsideItsHolders(const QQuickItem& text, const QQuickItem& frame) {
    constexpr double room = textTolerance;
    bool scrolls = false;
    for (const QQuickItem* holder = &text; holder != &frame; holder = holder->parentItem()) {
        scrolls = scrolls || holder->parentItem()->inherits("QQuickFlickable");
        const QRectF place = linesOf(text, *holder);
        EXPECT_TRUE(place.left() >= -room && place.right() <= holder->width() + room &&
                    (scrolls || (place.top() >= -room && place.bottom() <= holder->height() + room)))
            << wordsOf(text) << " reaches out of a " << holder->metaObject()->className() << ": "
            << place.left() << " to " << place.right() << " of " << holder->width() << ", " << place.top()
            << " to " << place.bottom() << " of " << holder->height();
    }
}

/// Expects every visible text inside `frame` to be complete, inside its parents, and apart from all other
/// texts. Only names from outside may be truncated.
inline void expectReadableTexts(const QQuickItem& frame, const QStringList& namesFromOutside = {}) {
    const QList<QQuickItem*> texts = shownTextsIn(frame);
    EXPECT_FALSE(texts.isEmpty());
    QList<QRectF> places;
    for (const QQuickItem* text : texts) {
        EXPECT_TRUE(!text->property("truncated").toBool() ||
                    namesFromOutside.contains(text->property("text").toString()))
            << "cut: " << wordsOf(*text);
        expectInsideItsHolders(*text, frame);
        const QRectF place = linesOf(*text, frame);
        const QRectF core = place.adjusted(textTolerance, textTolerance, -textTolerance, -textTolerance);
        for (qsizetype index = 0; index < places.size(); ++index)
            EXPECT_FALSE(core.intersects(places[index]))
                << wordsOf(*text) << " covers " << wordsOf(*texts[index]);
        places.append(place);
    }
}

/// Expects the fonts that ctest selects for this run, not other fonts of the machine.
inline void expectTheFontsOfThisRun() {
    const QByteArray expected = qgetenv("ORVELLE_TEST_FONT");
    if (expected.isEmpty())
        GTEST_SKIP() << "not run by ctest";
    const QFontInfo font(systemFont(11));
    EXPECT_EQ((font.family() + u' ' + font.styleName()).toStdString(), expected.toStdString());
}

} // namespace orvelle
