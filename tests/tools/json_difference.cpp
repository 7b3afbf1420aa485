#include "json_difference.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

QString textOf(const QJsonValue& value) {
    if (value.isUndefined())
        return QStringLiteral("nothing");
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
}

bool isSameNumber(const QJsonValue& expected, const QJsonValue& actual) {
    if (!expected.isDouble() || !actual.isDouble())
        return false;
    const double left = expected.toDouble();
    const double right = actual.toDouble();
    const bool areWhole = std::trunc(left) == left && std::trunc(right) == right;
    return !areWhole && std::abs(left - right) <= 1e-12 * std::max(std::abs(left), std::abs(right));
}

QString firstDifferenceOfObjects(const QJsonObject& expected, const QJsonObject& actual,
                                 const QString& path) {
    QStringList keys = expected.keys() + actual.keys();
    keys.removeDuplicates();
    for (const QString& key : std::as_const(keys)) {
        const QString difference =
            firstDifference(expected.value(key), actual.value(key), path + QLatin1Char('.') + key);
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

QString firstDifferenceOfArrays(const QJsonArray& expected, const QJsonArray& actual, const QString& path) {
    for (qsizetype index = 0; index < std::max(expected.size(), actual.size()); ++index) {
        const auto at = [index](const QJsonArray& array) {
            return index < array.size() ? array.at(index) : QJsonValue(QJsonValue::Undefined);
        };
        const QString difference =
            firstDifference(at(expected), at(actual), QStringLiteral("%1[%2]").arg(path).arg(index));
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

} // namespace

QString firstDifference(const QJsonValue& expected, const QJsonValue& actual, const QString& path) {
    if (expected.isObject() && actual.isObject())
        return firstDifferenceOfObjects(expected.toObject(), actual.toObject(), path);
    if (expected.isArray() && actual.isArray())
        return firstDifferenceOfArrays(expected.toArray(), actual.toArray(), path);
    if (expected == actual || isSameNumber(expected, actual))
        return {};
    return QStringLiteral("%1: expected %2, actual %3").arg(path, textOf(expected), textOf(actual));
}

} // namespace orvelle
