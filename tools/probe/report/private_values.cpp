#include "probe/report/private_values.h"

#include "probe/report/pseudonyms.h"

#include <QJsonArray>

namespace orvelle {
namespace {

/// Changes the value with this name; leaves out what the object does not have.
template <class Change>
void change(QJsonObject& object, const char* name, Change changed) {
    const auto position = object.find(QLatin1StringView(name));
    if (position != object.end())
        *position = QJsonValue(changed(QJsonValue(*position)));
}

/// Changes each record of a list.
template <class Change>
QJsonValue changedRecords(const QJsonValue& list, Change changed) {
    QJsonArray records;
    for (const QJsonValue record : list.toArray()) {
        QJsonObject object = record.toObject();
        changed(object);
        records.append(object);
    }
    return records;
}

QJsonValue addressIn(const QJsonValue& address, Pseudonyms& pseudonyms) {
    const QString text = address.toString();
    const bool isAddress = text.contains(QLatin1Char('.')) || text.contains(QLatin1Char(':'));
    return isAddress ? QJsonValue(QString::fromStdString(pseudonyms.address(text.toStdString()))) : address;
}

void changeProcess(QJsonObject& process, Pseudonyms& pseudonyms) {
    change(process, "name", [&](const QJsonValue& name) {
        return QString::fromStdString(pseudonyms.process(name.toString().toStdString()));
    });
}

void changeVolume(QJsonObject& volume, Pseudonyms& pseudonyms) {
    change(volume, "name", [&](const QJsonValue& name) {
        return name == QLatin1String("/")
                   ? name.toString()
                   : QString::fromStdString(pseudonyms.place(name.toString().toStdString()));
    });
    change(volume, "id", [&](const QJsonValue& path) {
        return QString::fromStdString(pseudonyms.path(path.toString().toStdString()));
    });
}

void changeInterface(QJsonObject& interface, Pseudonyms& pseudonyms) {
    const QString name = interface[u"name"].toString();
    const QString pseudonym = QString::fromStdString(pseudonyms.interface(name.toStdString()));
    change(interface, "name", [&](const QJsonValue& /*name*/) { return pseudonym; });
    // What is shown is a kind, the name, or a kind with the name behind it.
    change(interface, "displayName", [&](const QJsonValue& shown) {
        const QString text = shown.toString();
        const QString behind = QStringLiteral(" (%1)").arg(name);
        if (text == name)
            return pseudonym;
        return text.endsWith(behind) ? text.chopped(behind.size()) + QStringLiteral(" (%1)").arg(pseudonym)
                                     : text;
    });
    for (const char* field : {"ipv4Address", "ipv6Address"})
        change(interface, field, [&](const QJsonValue& address) { return addressIn(address, pseudonyms); });
}

} // namespace

QJsonObject withoutPrivateNames(QJsonObject values, Pseudonyms& pseudonyms) {
    QJsonObject processes = values[u"process"].toObject();
    for (const char* list : {"topCPUProcesses", "topMemoryProcesses"})
        change(processes, list, [&](const QJsonValue& records) {
            return changedRecords(records, [&](QJsonObject& process) { changeProcess(process, pseudonyms); });
        });
    values[u"process"] = processes;

    QJsonObject disk = values[u"disk"].toObject();
    change(disk, "volumes", [&](const QJsonValue& records) {
        return changedRecords(records, [&](QJsonObject& volume) { changeVolume(volume, pseudonyms); });
    });
    values[u"disk"] = disk;

    QJsonObject network = values[u"network"].toObject();
    change(network, "interfaces", [&](const QJsonValue& records) {
        return changedRecords(records,
                              [&](QJsonObject& interface) { changeInterface(interface, pseudonyms); });
    });
    for (const char* field : {"primaryIPv4", "primaryIPv6"})
        change(network, field, [&](const QJsonValue& address) { return addressIn(address, pseudonyms); });
    values[u"network"] = network;
    return values;
}

} // namespace orvelle
