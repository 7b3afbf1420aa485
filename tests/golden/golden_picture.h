#pragma once

#include <QImage>
#include <QString>

namespace orvelle {

/// Compares the picture with the golden one of this file name, or replaces the golden one while blessing. If
/// they differ, the test fails and names the files of the pictures.
void expectGoldenPicture(const QImage& actual, const QString& fileName);

} // namespace orvelle
