#include "core/process_monitor.h"
#include "windows/panels/record_model.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class Records : public ::testing::Test {
protected:
    Records() { model.setProperty("key", QStringLiteral("pid")); }

    void set(const QList<std::pair<int, double>>& processes) {
        QVariantList records;
        for (const auto& [pid, cpuUsage] : processes) {
            ProcessInfo process;
            process.pid = pid;
            process.cpuUsage = cpuUsage;
            records.append(QVariant::fromValue(process));
        }
        model.setRecords(records);
        EXPECT_EQ(model.records(), records);
        EXPECT_EQ(model.rowCount(), records.size());
    }

    RecordModel model;
    QSignalSpy inserted{&model, &RecordModel::rowsInserted};
    QSignalSpy removed{&model, &RecordModel::rowsRemoved};
    QSignalSpy moved{&model, &RecordModel::rowsMoved};
    QSignalSpy changed{&model, &RecordModel::dataChanged};
};

TEST_F(Records, KeepTheirRowWhileTheirKeyStays) {
    set({{1, 5}, {2, 4}});
    inserted.clear();
    set({{1, 6}, {2, 4}});
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(inserted.isEmpty() && removed.isEmpty() && moved.isEmpty());
}

TEST_F(Records, MoveTheirRowToTheirNewPlace) {
    set({{1, 5}, {2, 4}, {3, 3}});
    inserted.clear();
    set({{3, 3}, {1, 5}, {2, 4}});
    EXPECT_EQ(moved.size(), 1);
    EXPECT_TRUE(inserted.isEmpty() && removed.isEmpty() && changed.isEmpty());
}

TEST_F(Records, AreInsertedAndRemovedOneByOne) {
    set({{1, 5}, {2, 4}, {3, 3}});
    inserted.clear();
    set({{4, 9}, {1, 5}, {3, 3}});
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(inserted.size(), 1);
    set({});
    set({{1, 5}});
}

TEST_F(Records, WithTheSameKeyGetARowEach) {
    set({{1, 5}, {1, 6}});
    set({{1, 5}, {1, 6}, {1, 7}});
    set({{1, 8}});
}

} // namespace
} // namespace orvelle
