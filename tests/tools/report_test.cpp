#include "common/read_only_settings.h"
#include "json_difference.h"
#include "probe/probe_session.h"
#include "probe/report/private_values.h"
#include "probe/report/pseudonyms.h"
#include "probe/report/recorded_tree.h"
#include "probe/report/report.h"
#include "settings/settings_store.h"
#include "support/machine_moments.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

namespace fs = std::filesystem;

QJsonObject valuesOf(const fs::path& first, const fs::path& second) {
    const QString now = QString::fromStdString(first.string());
    const QString later = QString::fromStdString(second.string());
    return std::get<QJsonObject>(probe({.roots = {now, now, now, later}, .stepSeconds = 3}));
}

void write(const RecordedTree& recording, const TemporaryTree& tree) {
    for (const auto& [path, text] : recording.files)
        tree.write(path, text);
    for (const auto& [path, target] : recording.links)
        tree.link(path, target);
}

class RecordedFixture : public testing::TestWithParam<const char*> {};

TEST_P(RecordedFixture, ShowsWhatTheMachineShowsUnderOtherNames) {
    const fs::path machine = fs::path(ORVELLE_FIXTURES) / GetParam();
    const TemporaryTree second;
    assembleSecondMoment(second.root(), machine);
    Pseudonyms pseudonyms;
    const TemporaryTree recordedFirst;
    const TemporaryTree recordedSecond;
    write(*recordMachine(machine / "1", pseudonyms), recordedFirst);
    write(*recordMachine(second.root(), pseudonyms), recordedSecond);
    const QJsonObject expected = withoutPrivateNames(valuesOf(machine / "1", second.root()), pseudonyms);
    EXPECT_EQ(firstDifference(expected, valuesOf(recordedFirst.root(), recordedSecond.root())).toStdString(),
              "");
}

INSTANTIATE_TEST_SUITE_P(All, RecordedFixture,
                         testing::Values("arm-board", "container-host", "desktop", "laptop", "nothing",
                                         "server", "virtual-machine"),
                         [](const auto& machine) {
                             std::string name = machine.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST(RecordedTree, ALaterMomentIsWhatHasChanged) {
    const RecordedTree earlier{.files = {{"same", "1"}, {"changed", "1"}, {"gone", "1"}},
                               .links = {{"link", "a"}}};
    const RecordedTree later{.files = {{"same", "1"}, {"changed", "2"}, {"new", "1"}},
                             .links = {{"link", "b"}}};
    EXPECT_EQ(changedSince(earlier, later),
              (RecordedTree{.files = {{"changed", "2"}, {"new", "1"}}, .links = {{"link", "b"}}}));
}

} // namespace
} // namespace orvelle
