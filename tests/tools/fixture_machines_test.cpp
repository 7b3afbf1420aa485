#include "json_difference.h"
#include "probe/probe_session.h"
#include "support/machine_moments.h"
#include "support/temporary_tree.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

#include <set>

namespace orvelle {
namespace {

namespace fs = std::filesystem;

const fs::path fixtures = ORVELLE_FIXTURES;

constexpr std::array machines{"arm-board", "container-host", "desktop",        "laptop",
                              "nothing",   "server",         "virtual-machine"};

/// What the probe prints after four cycles three seconds apart. The first three see the machine at its first
/// moment and the last one sees it at its second. The processes are sampled in the first and the fourth, so
/// their usage is that of nine seconds; all other speeds are those of three.
QJsonObject replay(const fs::path& machine) {
    const TemporaryTree second;
    assembleSecondMoment(second.root(), machine);
    const QString now = QString::fromStdString((machine / "1").string());
    const QString later = QString::fromStdString(second.root().string());
    return std::get<QJsonObject>(probe({.roots = {now, now, now, later}, .stepSeconds = 3}));
}

/// The kept expectation; an empty object when there is none yet.
QJsonObject expectationIn(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

void keep(const QString& path, const QJsonObject& expectation) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(expectation).toJson());
}

class FixtureMachine : public testing::TestWithParam<const char*> {};

TEST_P(FixtureMachine, PublishesWhatIsExpectedOfIt) {
    const fs::path machine = fixtures / GetParam();
    const QString path = QString::fromStdString((machine / "expected.json").string());
    const QJsonObject actual = replay(machine);
    if (qEnvironmentVariableIsSet("ORVELLE_BLESS"))
        return keep(path, actual);
    EXPECT_EQ(firstDifference(expectationIn(path), actual).toStdString(), "")
        << "If this is as it should be, run tests/fixtures/bless.sh " << GetParam()
        << " and review the change.";
}

INSTANTIATE_TEST_SUITE_P(All, FixtureMachine, testing::ValuesIn(machines), [](const auto& machine) {
    std::string name = machine.param;
    std::ranges::replace(name, '-', '_');
    return name;
});

TEST(FixtureMachines, EveryRecordedMachineIsReplayed) {
    std::set<std::string> recorded;
    for (const fs::directory_entry& entry : fs::directory_iterator(fixtures)) {
        if (entry.is_directory())
            recorded.insert(entry.path().filename().string());
    }
    EXPECT_EQ(recorded, std::set<std::string>(machines.begin(), machines.end()));
}

TEST(FixtureMachines, TheFirstDifferenceIsFoundWhereverItIs) {
    const QJsonObject machine{{QStringLiteral("a"), QJsonArray{1, QJsonObject{{QStringLiteral("b"), 0.5}}}}};
    const auto with = [](const QJsonValue& value) {
        return QJsonObject{{QStringLiteral("a"), QJsonArray{1, QJsonObject{{QStringLiteral("b"), value}}}}};
    };
    EXPECT_EQ(firstDifference(machine, machine), QString());
    EXPECT_EQ(firstDifference(machine, with(0.5 * (1 + 1e-15))), QString());
    EXPECT_EQ(firstDifference(machine, with(0.5000001)),
              QStringLiteral("$.a[1].b: expected [0.5], actual [0.5000001]"));
    EXPECT_EQ(firstDifference(machine, with({})), QStringLiteral("$.a[1].b: expected [0.5], actual [null]"));
    EXPECT_EQ(firstDifference(QJsonArray{1}, QJsonArray{1, 2}),
              QStringLiteral("$[1]: expected nothing, actual [2]"));
    EXPECT_EQ(firstDifference(QJsonObject(), machine).left(4), QStringLiteral("$.a:"));
    EXPECT_NE(firstDifference(qint64{9007199254740993}, qint64{9007199254740992}), QString());
}

} // namespace
} // namespace orvelle
