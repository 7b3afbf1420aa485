#pragma once

#include <QImage>
#include <QString>

namespace orvelle {

/// Compares the picture with the golden one of this file name, or takes it as the golden one while blessing.
/// A test fails when they differ, and says where the pictures are.
void expectGoldenPicture(const QImage& actual, const QString& fileName);

} // namespace orvelle
