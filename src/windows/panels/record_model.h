#pragma once

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// A published list of records as rows that keep their identity: when the list changes, a row follows its
/// record to another place and is told of another value, instead of being made anew. Of records with the same
/// key each is a row of its own.
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
    /// Brings the row of `record` to `row`, as a new one where there is none yet.
    void place(int row, const QVariant& record);
    void removeAfter(qsizetype count);

    QVariantList m_records;
    QString m_key;
};

} // namespace orvelle
