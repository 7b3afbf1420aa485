#include "probe/published_values.h"

#include "core/system_monitor.h"
#include "settings/module_table.h"

#include <QJsonArray>
#include <QMetaProperty>

namespace orvelle {
namespace {

QJsonValue jsonFrom(const QVariant& value);

QJsonObject jsonFromRecord(const QVariant& record, const QMetaObject& type) {
    QJsonObject object;
    for (int index = 0; index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        object.insert(QString::fromLatin1(property.name()),
                      jsonFrom(property.readOnGadget(record.constData())));
    }
    return object;
}

QJsonValue jsonFrom(const QVariant& value) {
    const QMetaType type = value.metaType();
    if (type.flags().testFlag(QMetaType::IsGadget))
        return jsonFromRecord(value, *type.metaObject());
    if (type.id() != QMetaType::QString && value.canConvert<QVariantList>()) {
        QJsonArray array;
        for (const QVariant& element : value.toList())
            array.append(jsonFrom(element));
        return array;
    }
    return QJsonValue::fromVariant(value);
}

QJsonObject jsonFromMonitor(const QObject& monitor) {
    const QMetaObject& type = *monitor.metaObject();
    QJsonObject object;
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        object.insert(QString::fromLatin1(property.name()), jsonFrom(property.read(&monitor)));
    }
    return object;
}

QJsonValue valueAt(const QJsonObject& values, const QString& path) {
    QJsonValue value = values;
    for (const QString& name : path.split(QLatin1Char('.')))
        value = value.toObject().value(name);
    return value;
}

} // namespace

QJsonObject publishedValues(SystemMonitor& monitor) {
    QJsonObject values{{QStringLiteral("updateCycleCount"), monitor.updateCycleCount()},
                       {QStringLiteral("process"), jsonFromMonitor(monitor.process())}};
#define ORVELLE_MODULE(id, ...) values.insert(QStringLiteral(#id), jsonFromMonitor(monitor.id()));
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    return values;
}

QString firstUnknownPath(const QJsonObject& values, const QStringList& paths) {
    for (const QString& path : paths) {
        if (valueAt(values, path).isUndefined())
            return path;
    }
    return {};
}

QJsonObject valuesAt(const QJsonObject& values, const QStringList& paths) {
    QJsonObject chosen;
    for (const QString& path : paths)
        chosen.insert(path, valueAt(values, path));
    return chosen;
}

} // namespace orvelle
