#include "platform/linux/process_table.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace orvelle::linux_platform {
namespace {

ProcessTable tableOf(std::initializer_list<std::int32_t> pids) {
    ProcessTable table;
    for (const std::int32_t pid : pids) {
        ProcessRecord record;
        record.pid = pid;
        table.insert(record, static_cast<ProcessLife>(pid) * 10);
    }
    return table;
}

std::vector<std::int32_t> pidsOf(const ProcessTable& table) {
    std::vector<std::int32_t> pids;
    for (const ProcessRecord& record : table.records())
        pids.push_back(record.pid);
    return pids;
}

TEST(ProcessTable, IsAscendingWhateverTheOrderOfInsertion) {
    EXPECT_EQ(pidsOf(tableOf({5, 1, 9, 3, 7})), (std::vector{1, 3, 5, 7, 9}));
}

TEST(ProcessTable, KnowsWhatItContains) {
    const ProcessTable table = tableOf({5, 1, 9});
    EXPECT_TRUE(table.contains(1));
    EXPECT_TRUE(table.contains(9));
    EXPECT_FALSE(table.contains(2));
    EXPECT_FALSE(tableOf({}).contains(1));
}

TEST(ProcessTable, KeepsEachLifeBesideItsRecord) {
    ProcessTable table = tableOf({5, 1, 9, 3, 7});
    table.keepIf([](std::size_t, const ProcessRecord& record, ProcessLife life) {
        EXPECT_EQ(life, static_cast<ProcessLife>(record.pid) * 10);
        return record.pid != 3 && record.pid != 9;
    });
    EXPECT_EQ(pidsOf(table), (std::vector{1, 5, 7}));
    table.keepIf([](std::size_t index, ProcessRecord& record, ProcessLife life) {
        EXPECT_EQ(life, static_cast<ProcessLife>(record.pid) * 10);
        record.residentBytes = index;
        return true;
    });
    EXPECT_EQ(table.records()[2].residentBytes, 2u);
}

} // namespace
} // namespace orvelle::linux_platform
