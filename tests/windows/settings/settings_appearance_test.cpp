#include "animation/animation_clock.h"
#include "support/manual_animations.h"
#include "support/quick_timers.h"
#include "theme/colors.h"
#include "windows/settings/settings_fixture.h"

namespace orvelle {
namespace {

using SettingsAppearance = SettingsFixture;
using ThemeCards = SettingsFixture;
using StylePreviews = SettingsFixture;

double lineWidthOf(const QQuickItem* outline) {
    return outline->property("lineWidth").toDouble();
}
QColor colorOf(const QQuickItem* item) {
    return item->property("color").value<QColor>();
}
double opacityOf(const QQuickItem* item) {
    return std::round(double{colorOf(item).alphaF()} * 100) / 100;
}
QFont fontOf(const QQuickItem* item) {
    return item->property("font").value<QFont>();
}

QRectF placeOf(const QQuickItem* item) {
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

TEST_F(ThemeCards, GrowUnderThePointerAndShowBothOutlines) {
    ManualAnimations animations;
    const auto passTime = [&](qint64 milliseconds) {
        settle(); // an animation starts with the next event
        animations.pass(milliseconds);
    };
    QQuickItem* card = control(u"Midnight");
    QQuickItem* selected = item("selectedOutline", card);
    QQuickItem* hovered = item("hoveredOutline", card);
    EXPECT_EQ(colorOf(selected), SystemColors::blue);
    EXPECT_EQ(lineWidthOf(selected), 2);
    EXPECT_EQ(colorOf(hovered).alpha(), 0);
    QMetaObject::invokeMethod(item("scroller"), "reveal", Q_ARG(QVariant, QVariant::fromValue(card)));
    QTest::mouseMove(view.get(), card->mapToScene({card->width() / 2, card->height() / 2}).toPoint());
    passTime(75);
    EXPECT_NEAR(card->scale(), 1.025, 1e-6) << "half way";
    passTime(75);
    EXPECT_EQ(card->scale(), 1.05);
    EXPECT_EQ(colorOf(selected), SystemColors::blue);
    EXPECT_EQ(opacityOf(hovered), 0.3);
    EXPECT_EQ(lineWidthOf(hovered), 1);
    EXPECT_EQ(card->transformOrigin(), QQuickItem::Center);

    QTest::mouseMove(view.get(), {2, 2});
    passTime(75);
    EXPECT_NEAR(card->scale(), 1.025, 1e-6);
    passTime(75);
    EXPECT_EQ(card->scale(), 1.0);
    EXPECT_EQ(colorOf(hovered).alpha(), 0);
}

TEST_F(ThemeCards, GrowAtOnceWithReducedMotion) {
    AnimationClock::shared().setReduced(true);
    QQuickItem* card = control(u"Midnight");
    card->setProperty("isHovered", true);
    EXPECT_EQ(card->scale(), 1.05);
    AnimationClock::shared().setReduced(false);
}

TEST_F(ThemeCards, ShowTheThemesNameBelowItsColors) {
    const QQuickItem* nord = control(u"Nord");
    const QQuickItem* name = item("name", nord);
    EXPECT_EQ(fontOf(name).weight(), QFont::Medium);
    EXPECT_EQ(name->property("size").toDouble(), 9);
    EXPECT_EQ(item("selectedOutline", nord)->height(), 66);
    EXPECT_EQ(colorOf(item("selectedOutline", nord)).alpha(), 0);
    settings.setSelectedThemeId(QStringLiteral("nord"));
    EXPECT_EQ(fontOf(name).weight(), QFont::Bold);
    EXPECT_EQ(colorOf(name), SystemColors::white);
}

TEST_F(StylePreviews, OutlineTheChosenStyleInBlueAndTheOthersFaintly) {
    for (const auto& [chosen, other] : {std::pair(u"Smooth", u"Dotted"), std::pair(u"Rounded", u"Thin Lines"),
                                        std::pair(u"Full Ring", u"Pie Chart")}) {
        const QQuickItem* outline = item("outline", control(chosen));
        EXPECT_EQ(colorOf(outline), SystemColors::blue);
        EXPECT_EQ(lineWidthOf(outline), 1.5);
        EXPECT_EQ(outline->size(), QSizeF(50, 24));
        EXPECT_EQ(fontOf(item("caption", control(chosen))).weight(), QFont::Bold);
        EXPECT_EQ(colorOf(item("caption", control(chosen))), SystemColors::white);

        const QQuickItem* faint = item("outline", control(other));
        EXPECT_EQ(opacityOf(faint), 0.1);
        EXPECT_EQ(lineWidthOf(faint), 0.5);
        const QQuickItem* caption = item("caption", control(other));
        EXPECT_EQ(fontOf(caption).weight(), QFont::Normal);
        EXPECT_EQ(opacityOf(caption), 0.55);
        EXPECT_EQ(caption->property("size").toDouble(), 8);
        EXPECT_EQ(caption->property("text").toString(), QString::fromUtf16(other));
        EXPECT_EQ(opacityOf(item("ground", control(other))), 0.03);
    }
}

/// The pixels of an item in the window.
QImage pictureOf(const QQuickView& view, const QQuickItem& item) {
    return const_cast<QQuickView&>(view).grabWindow().copy(
        item.mapRectToScene({0, 0, item.width(), item.height()}).toAlignedRect());
}

TEST_F(StylePreviews, UseTheModulesColor) {
    QQuickItem* button = control(u"Square");
    QMetaObject::invokeMethod(item("scroller"), "reveal", Q_ARG(QVariant, QVariant::fromValue(button)));
    settings.setCustomCPUColorHex(QStringLiteral("#00FF00"));
    const QImage before = pictureOf(*view, *button);
    settings.setUseCustomCPUColor(true);
    const QImage after = pictureOf(*view, *button);
    EXPECT_NE(before, after);
    // The second bar, 14 points high, is 14 points from the left edge of the 50 x 24 frame.
    const QPointF corner = button->mapFromItem(item("outline", button), {0, 0});
    const QColor bar = after.pixelColor((corner + QPointF(17, 20)).toPoint());
    EXPECT_GT(bar.green(), 190);
    EXPECT_LT(bar.red(), 60);
}

/// Every visible text ends inside the window's width.
void expectTextsInside(const QList<QQuickItem*>& texts, double width) {
    EXPECT_FALSE(texts.isEmpty());
    for (const QQuickItem* text : texts) {
        const QRectF place = text->mapRectToScene({0, 0, text->width(), text->height()});
        EXPECT_GE(place.left(), 0) << text->property("text").toString().toStdString();
        EXPECT_LE(place.right(), width) << text->property("text").toString().toStdString();
    }
}

TEST_F(SettingsAppearance, FitsEverythingIntoASmallAndALargeWindow) {
    openOverrides();
    for (const QSize& size : {settingsSize, smallestSettingsSize, QSize(1400, 900)}) {
        resizeTo(size);
        expectTextsInside(
            items([](const QQuickItem* each) { return each->inherits("QQuickText") && each->isVisible(); }),
            size.width());
        const QQuickItem* scroller = item("scroller");
        EXPECT_EQ(scroller->height(), size.height());
        EXPECT_EQ(scroller->property("interactive").toBool(),
                  scroller->property("contentHeight").toDouble() > size.height());
    }
}

TEST_F(SettingsAppearance, CutsNoTextAtTheUsualAndTheSmallestSize) {
    openOverrides();
    for (const QSize& size : {settingsSize, smallestSettingsSize}) {
        resizeTo(size);
        for (const QQuickItem* text :
             items([](const QQuickItem* each) { return each->inherits("QQuickText") && each->isVisible(); }))
            EXPECT_FALSE(text->property("truncated").toBool())
                << text->property("text").toString().toStdString();
    }
}

TEST_F(SettingsAppearance, AlignsControlsWithTitlesAndDividers) {
    openOverrides();
    const auto place = [](const QQuickItem* each) {
        return each->mapRectToScene({0, 0, each->width(), each->height()});
    };
    for (const char* name : {"showCPU", "useFahrenheit", "disclosure", "launchAtLogin"}) {
        EXPECT_EQ(place(item(name)).left(), 16) << name;
        EXPECT_EQ(place(item(name)).right(), 444) << name;
    }
    EXPECT_EQ(place(control(u"Midnight")).left(), 16);
    EXPECT_EQ(place(control(u"Dracula")).right(), 444);
    EXPECT_EQ(place(control(u"Striped")).right(), 444);
    // The background for focus and hover extends beyond the row.
    for (const QQuickItem* row : {control(u"Use Fahrenheit"), item("disclosure")}) {
        const QRectF ground = place(row->property("background").value<QQuickItem*>());
        EXPECT_EQ(ground.left(), 10);
        EXPECT_EQ(ground.right(), 450);
    }
}

TEST_F(SettingsAppearance, PaintsThePreviewsOutlineOverItsDrawing) {
    for (const QQuickItem* outline :
         items([](const QQuickItem* each) { return each->objectName() == QLatin1String("outline"); })) {
        for (const QQuickItem* sibling : outline->parentItem()->childItems())
            EXPECT_TRUE(sibling == outline || sibling->z() < outline->z());
    }
}

TEST_F(SettingsAppearance, ShowsAsManyThemesSideBySideAsFit) {
    resizeTo(smallestSettingsSize);
    EXPECT_EQ(group(u"Theme")->property("columns").toInt(), 3);
    resizeTo({600, 640});
    EXPECT_EQ(group(u"Theme")->property("columns").toInt(), 6);
    resizeTo({900, 640});
    EXPECT_EQ(group(u"Theme")->property("columns").toInt(), 9);
}

TEST_F(SettingsAppearance, CentersTheThemesInALargeWindow) {
    for (const int width : {700, 701, 1000, 1400, 2500}) {
        resizeTo({width, 640});
        const QRectF first = placeOf(control(u"Midnight"));
        const QRectF last = placeOf(control(u"Pastel"));
        const QRectF grid = placeOf(group(u"Theme"));
        EXPECT_EQ(first.left(), grid.left()) << width;
        EXPECT_LE(last.right(), grid.right()) << width;
        EXPECT_NEAR(grid.left(), width - grid.right(), 1) << width;
        EXPECT_EQ(first.left(), std::round(first.left())) << "crisp";
        if (width >= 1400) {
            EXPECT_EQ(last.top(), first.top()) << "one row";
            EXPECT_EQ(last.right(), grid.right()) << "no column is empty";
        }
        const QRectF lines = placeOf(item("display"));
        EXPECT_EQ(lines.width(), 588) << "rows of text stay short";
        EXPECT_EQ(placeOf(item("themes")).left(), lines.left()) << "titles are aligned";
    }
}

TEST_F(SettingsAppearance, ExplainsTheColorWellWithATooltip) {
    openOverrides();
    settings.setUseCustomCPUColor(true);
    QQuickItem* well = item("well", overrideRow(u"CPU"));
    QMetaObject::invokeMethod(item("scroller"), "reveal", Q_ARG(QVariant, QVariant::fromValue(well)));
    QQuickItem* tooltip = item("tooltip", well);
    tooltip->setProperty("restingMilliseconds", 1);
    EXPECT_FALSE(tooltip->isVisible());
    QTest::mouseMove(view.get(), well->mapToScene({12, 9}).toPoint());
    EXPECT_TRUE(waitUntil([&] {
        return !items([](const QQuickItem* each) {
                    return each->isVisible() &&
                           each->property("text").toString() == QStringLiteral("Color for CPU") &&
                           each->inherits("QQuickText");
                }).isEmpty();
    }));
}

TEST_F(SettingsAppearance, OpensTheColorPickerWithoutCoveringItsWell) {
    settings.setUseCustomCPUColor(true);
    settings.setUseCustomSensorColor(true);
    openOverrides();
    const auto place = [](const QQuickItem* each) {
        return each->mapRectToScene({0, 0, each->width(), each->height()});
    };
    for (const QStringView module : {u"CPU", u"Sensors"}) {
        QQuickItem* well = item("well", overrideRow(module));
        QQuickItem* scroller = item("scroller");
        // The well is at the bottom edge of the window, then at its top edge.
        for (const double offset : {scroller->height() - 30, 30.0}) {
            const double top = well->mapToItem(item("overrides")->parentItem(), {0, 0}).y();
            QMetaObject::invokeMethod(scroller, "scrollTo", Q_ARG(QVariant, top - offset));
            settle();
            QTest::mouseClick(view.get(), Qt::LeftButton, {}, place(well).center().toPoint());
            settle();
            ASSERT_NE(focused(), nullptr);
            const QQuickItem* parts = focused()->parentItem()->parentItem();
            EXPECT_FALSE(place(parts).intersects(place(well))) << module.toString().toStdString();
            EXPECT_TRUE(QRectF(QPointF(), view->size()).contains(place(parts)));
            press(Qt::Key_Escape);
            settle();
        }
    }
}

TEST_F(SettingsAppearance, HasATitleAndTheUsualSize) {
    EXPECT_EQ(view->title(), QStringLiteral("Orvelle Settings"));
    EXPECT_EQ(view->size(), QSize(460, 640));
    EXPECT_EQ(view->color(), QColor::fromRgbF(0.1F, 0.1F, 0.1F));
}

TEST_F(SettingsAppearance, PaintsNothingWhileNothingChanges) {
    int frames = 0;
    QObject::connect(view.get(), &QQuickWindow::afterRendering, view.get(), [&] { ++frames; });
    passAMoment();
    EXPECT_EQ(frames, 0);
    EXPECT_FALSE(hasRunningTimer(*view->contentItem()));
    EXPECT_FALSE(AnimationClock::shared().isRunning());
    view->close();
    settings.setShowDisk(true);
    settings.setSelectedThemeId(QStringLiteral("nord"));
    settle();
    EXPECT_EQ(frames, 0) << "the window is closed";
}

} // namespace
} // namespace orvelle
