#pragma once

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// A list of records as rows that keep their identity: when the list changes, a row moves with its record and
/// takes the new value instead of being made again. Each of several records with the same key has a row.
class RecordModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    /// The records, in order.
    Q_PROPERTY(QVariantList records READ records WRITE setRecords NOTIFY recordsChanged REQUIRED)
    /// The name of the property that identifies a record.
    Q_PROPERTY(QString key MEMBER m_key NOTIFY keyChanged REQUIRED)

public:
    /// The only role: the record itself.
    static constexpr int recordRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const QVariantList& records() const { return m_records; }
    void setRecords(const QVariantList& records);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void recordsChanged();
    void keyChanged();

private:
    [[nodiscard]] QVariant keyOf(const QVariant& record) const;
    void removeMissing(const QVariantList& records);
    /// Moves the row of `record` to `row`, or inserts it there.
    void place(int row, const QVariant& record);
    void removeAfter(qsizetype count);

    QVariantList m_records;
    QString m_key;
};

} // namespace orvelle
