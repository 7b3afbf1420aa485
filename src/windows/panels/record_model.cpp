#include "windows/panels/record_model.h"

#include <QMetaProperty>

#include <algorithm>

namespace orvelle {

void RecordModel::setRecords(const QVariantList& records) {
    removeMissing(records);
    for (int row = 0; row < records.size(); ++row)
        place(row, records[row]);
    removeAfter(records.size());
    Q_EMIT recordsChanged();
}

int RecordModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
    return index.isValid() && role == recordRole ? m_records.value(index.row()) : QVariant();
}

QHash<int, QByteArray> RecordModel::roleNames() const {
    return {{recordRole, QByteArrayLiteral("record")}};
}

QVariant RecordModel::keyOf(const QVariant& record) const {
    const QMetaObject* type = record.metaType().metaObject();
    const int property = type != nullptr ? type->indexOfProperty(m_key.toUtf8().constData()) : -1;
    return property >= 0 ? type->property(property).readOnGadget(record.constData()) : QVariant();
}

void RecordModel::removeMissing(const QVariantList& records) {
    QVariantList keys;
    for (const QVariant& record : records)
        keys.append(keyOf(record));
    for (int row = static_cast<int>(m_records.size()) - 1; row >= 0; --row) {
        if (keys.contains(keyOf(m_records[row])))
            continue;
        beginRemoveRows({}, row, row);
        m_records.removeAt(row);
        endRemoveRows();
    }
}

void RecordModel::place(int row, const QVariant& record) {
    const QVariant key = keyOf(record);
    const auto found = std::find_if(m_records.cbegin() + row, m_records.cend(),
                                    [&](const QVariant& present) { return keyOf(present) == key; });
    if (found == m_records.cend()) {
        beginInsertRows({}, row, row);
        m_records.insert(row, record);
        endInsertRows();
        return;
    }
    const int from = static_cast<int>(found - m_records.cbegin());
    if (from != row) {
        beginMoveRows({}, from, from, {}, row);
        m_records.move(from, row);
        endMoveRows();
    }
    if (m_records[row] != record) {
        m_records[row] = record;
        Q_EMIT dataChanged(index(row), index(row), {recordRole});
    }
}

void RecordModel::removeAfter(qsizetype count) {
    if (m_records.size() <= count)
        return;
    beginRemoveRows({}, static_cast<int>(count), static_cast<int>(m_records.size()) - 1);
    m_records.resize(count);
    endRemoveRows();
}

} // namespace orvelle
