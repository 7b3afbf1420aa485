#include "probe/probe_session.h"

#include "core/system_monitor.h"
#include "settings/module_table.h"
#include "settings/settings_store.h"

#include <QJsonArray>
#include <QMetaProperty>
#include <QTemporaryDir>
#include <fmt/format.h>

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

/// Every published property of every monitor by its exact name, records as objects of their fields, an absent
/// optional as null; and the number of update cycles. A new property of a monitor needs no change here.
QJsonObject publishedValues(SystemMonitor& monitor) {
    QJsonObject values{{QStringLiteral("updateCycleCount"), monitor.updateCycleCount()},
                       {QStringLiteral("process"), jsonFromMonitor(monitor.process())}};
#define ORVELLE_MODULE(id, ...) values.insert(QStringLiteral(#id), jsonFromMonitor(monitor.id()));
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    return values;
}

} // namespace

std::variant<QJsonObject, UnreadableRoot> probe(const SamplingPlan& plan) {
    // Sampling asks no more of the settings than their defaults, so the user's own are left alone.
    const QTemporaryDir directory;
    const SettingsStore settings(directory.filePath(QStringLiteral("settings.conf")));
    const auto sampled = sampledMonitor(plan, settings);
    if (const auto* error = std::get_if<UnreadableRoot>(&sampled))
        return *error;
    return publishedValues(*std::get<std::unique_ptr<SystemMonitor>>(sampled));
}

QByteArray moduleLines() {
    std::string lines;
    for (const ModuleInfo& module : moduleTable)
        lines += fmt::format("{}\t{}\t{}\t{}\t{}\n", module.key.data(), module.width,
                             module.showSetting.data(), module.isShownByDefault, module.title.data());
    return QByteArray::fromStdString(lines);
}

} // namespace orvelle
