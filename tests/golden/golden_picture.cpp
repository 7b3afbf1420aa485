#include "golden_picture.h"

#include "picture_comparison.h"
#include "snapshot/sheet.h"

#include <QDir>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// The folder of the golden pictures, and the folder for pictures that differ from them.
const QString goldenDirectory = QStringLiteral(ORVELLE_GOLDEN_DIRECTORY);
const QString failureDirectory = QStringLiteral(ORVELLE_GOLDEN_FAILURE_DIRECTORY);

bool isBlessing() {
    return qEnvironmentVariableIsSet("ORVELLE_BLESS");
}

} // namespace

void expectGoldenPicture(const QImage& actual, const QString& fileName) {
    if (isBlessing()) {
        EXPECT_FALSE(writePicture(actual, fileName, goldenDirectory)) << qPrintable(fileName);
    }
    const QString goldenPath = QDir(goldenDirectory).filePath(fileName);
    const QImage golden(goldenPath);
    const PictureDifference difference = compare(actual, golden);
    if (difference.isNone())
        return;
    QDir().mkpath(failureDirectory);
    const QString actualPath = QDir(failureDirectory).filePath(QStringLiteral("actual-") + fileName);
    const QString differencePath = QDir(failureDirectory).filePath(QStringLiteral("difference-") + fileName);
    EXPECT_TRUE(actual.save(actualPath));
    EXPECT_TRUE(differencePicture(actual, golden).save(differencePath));
    const QRect& area = difference.area;
    ADD_FAILURE() << "golden:     " << qPrintable(goldenPath) << "\nactual:     " << qPrintable(actualPath)
                  << "\ndifference: " << qPrintable(differencePath) << "\n"
                  << (difference.sizesDiffer ? "The sizes differ or there is no golden picture. " : "")
                  << difference.pixelCount << " pixels differ, by up to " << difference.largest << ", within "
                  << area.width() << "x" << area.height() << "+" << area.x() << "+" << area.y()
                  << ".\nIf the new picture is right, run tests/golden/bless.sh and commit what it writes.";
}

} // namespace orvelle
