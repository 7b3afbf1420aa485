#include "probe/monitor_json.h"

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

} // namespace

QJsonObject publishedValues(SystemMonitor& monitor) {
    QJsonObject values{{QStringLiteral("updateCycleCount"), monitor.updateCycleCount()},
                       {QStringLiteral("process"), jsonFromMonitor(monitor.process())}};
#define ORVELLE_MODULE(id, ...) values.insert(QStringLiteral(#id), jsonFromMonitor(monitor.id()));
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    return values;
}

} // namespace orvelle
