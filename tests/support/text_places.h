#pragma once

#include "theme/fonts.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QJSValue>
#include <QQuickItem>
#include <QQuickWindow>
#include <gtest/gtest.h>

/// Where the texts of a window of Qt Quick stand, and whether a person can read all of them.
namespace orvelle {

/// Half a point: what rounding to pixels hides.
inline constexpr double textTolerance = 0.5;

inline std::string wordsOf(const QQuickItem& text) {
    return text.property("text").toString().toStdString();
}

/// What can be seen inside `root` of these kinds: labels, and what can be selected or edited.
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

/// Writes every text inside `root` with letters further apart, as wide as in a font that is wider still.
inline void spreadLetters(const QQuickItem& root, double percent) {
    for (QQuickItem* text : shownTextsIn(root)) {
        QFont font = text->property("font").value<QFont>();
        font.setLetterSpacing(QFont::PercentageSpacing, percent);
        text->setProperty("font", font);
    }
}

/// The room that the lines of a text really take, in the coordinates of `frame`. Unlike the item it may be
/// wider than there is room.
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

/// The size, in points, in which a text is written: smaller than its font's where it is fitted to its room.
/// What can be edited is never fitted.
inline int shownSizeOf(const QQuickItem& text) {
    if (text.inherits("QQuickTextInput"))
        return text.property("font").value<QFont>().pixelSize();
    return text.property("fontInfo").value<QJSValue>().property(QStringLiteral("pixelSize")).toInt();
}

/// The text stands inside each item that holds it, up to `frame`. What scrolls may hold more than is to be
/// seen.
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

/// Every text inside `frame` that is shown is whole, inside of what holds it, and apart from all others. Only
/// of names that come from outside the end may be missing.
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

/// The fonts are those that ctest has chosen for this run, and nothing else that the machine has.
inline void expectTheFontsOfThisRun() {
    const QByteArray expected = qgetenv("ORVELLE_TEST_FONT");
    if (expected.isEmpty())
        GTEST_SKIP() << "not run by ctest";
    const QFontInfo font(systemFont(11));
    EXPECT_EQ((font.family() + u' ' + font.styleName()).toStdString(), expected.toStdString());
}

} // namespace orvelle
