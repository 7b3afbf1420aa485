#include "appkit/program.h"
#include "shell/macos/macos_desktop.h"

#include <functional>

// Each call that a task makes fails in turn, and every one has an outcome of its own here. A call that no
// outcome is written down for fails the test.
namespace orvelle {
namespace {

using namespace simulated;
using Deeds = std::vector<std::string>;

/// Something that the user does, and what comes of it.
struct Task {
    std::function<Deeds()> perform;
    Deeds whole; ///< when nothing fails
    /// By the call that fails; of several equal ones the second is "... (2)".
    std::map<std::string, Deeds> whenFailing;
};

class FailingCallsTest : public AppKitTest {
protected:
    /// The calls that were made, each with a text of its own.
    static std::vector<std::string> distinctCalls() {
        std::map<std::string, int> counts;
        std::vector<std::string> calls;
        for (const std::string& call : desktop().calls()) {
            const int count = ++counts[call];
            calls.push_back(count == 1 ? call : call + " (" + std::to_string(count) + ")");
        }
        return calls;
    }

    void failEachCallOf(const Task& task) {
        EXPECT_EQ(task.perform(), task.whole);
        const std::vector<std::string> calls = distinctCalls();
        for (std::size_t number = 0; number < calls.size(); ++number) {
            SCOPED_TRACE(calls[number]);
            startAfresh();
            desktop().failCall(number);
            const auto outcome = task.whenFailing.find(calls[number]);
            ASSERT_NE(outcome, task.whenFailing.end()) << "no outcome is written down for this call";
            EXPECT_EQ(task.perform(), outcome->second);
        }
        EXPECT_EQ(calls.size(), task.whenFailing.size()) << "an outcome for a call that is not made";
    }

    /// Launches the program with one module.
    void launchWithMemoryOnly() {
        program().showAll(false);
        program().settings.setShowMemory(true);
        launch();
    }
    /// What the user sees after clicking the item, if there is one to be clicked, twice with this button.
    Deeds clickedTwice(MouseButton button) {
        launchWithMemoryOnly();
        for (int count = 0; count < 2; ++count) {
            if (!statusItems().empty() && !statusItems()[0].identifier.empty())
                click(0, button);
        }
        return desktop().deeds;
    }
};

TEST_F(FailingCallsTest, OpeningAndClosingAPanel) {
    const Deeds both{"show memory", "close memory"};
    failEachCallOf({.perform = [this] { return clickedTwice(MouseButton::left); },
                    .whole = both,
                    .whenFailing = {
                        {"statusItemWithLength", {}},
                        {"status item's button", {}},
                        {"currentEvent", {"show memory"}},
                        {"activateIgnoringOtherApps", both},
                        {"showRelativeToRect", {"show memory"}},
                        {"popover's window", both},
                        // Whether the press may close the panel: then it has, and its click leaves it closed.
                        {"currentEvent (2)", both},
                        {"currentEvent (3)", {"show memory"}}}});
}

TEST_F(FailingCallsTest, OpeningTheMenuTwice) {
    const Deeds both{"menu memory", "menu memory"};
    const Deeds once{"menu memory"};
    failEachCallOf({.perform = [this] { return clickedTwice(MouseButton::right); },
                    .whole = both,
                    .whenFailing = {{"statusItemWithLength", {}},
                                    {"status item's button", {}},
                                    {"currentEvent", once},
                                    {"currentEvent (2)", once}}});
}

TEST_F(FailingCallsTest, DrawingAnItem) {
    const Deeds drawn{"drawn"};
    const Deeds nothing{};
    failEachCallOf({.perform =
                        [this] {
                            launchWithMemoryOnly();
                            return !statusItems().empty() && draw(0) ? Deeds{"drawn"} : Deeds{};
                        },
                    .whole = drawn,
                    .whenFailing = {{"statusItemWithLength", nothing},
                                    {"status item's button", nothing},
                                    {"bestMatchFromAppearancesWithNames", drawn}, // as on a dark bar
                                    {"CGColorSpaceCreateWithName", nothing},
                                    {"CGDataProviderCreateWithData", nothing},
                                    {"CGImageCreate", nothing},
                                    {"currentContext", nothing}}});
}

TEST_F(FailingCallsTest, BecomingTheSingleInstanceWhereAnotherOneRuns) {
    const Deeds second{"open the program's bundle", "ends"};
    failEachCallOf({.perform =
                        [] {
                            desktop().script.instances = {{.processIdentifier = 499}};
                            const bool runs = becomeSingleMacosInstance() != nullptr;
                            desktop().deeds.push_back(runs ? "runs" : "ends");
                            return desktop().deeds;
                        },
                    .whole = second,
                    .whenFailing = {{"bundleIdentifier", {"runs"}},
                                    {"runningApplicationsWithBundleIdentifier", {"runs"}},
                                    {"bundleURL", {"ends"}},
                                    {"openURL", {"ends"}}}});
}

TEST_F(FailingCallsTest, StartingAtLogin) {
    failEachCallOf({.perform =
                        [] {
                            const std::unique_ptr<LoginItem> login = makeMacosLoginItem();
                            const bool isTaken = login->setEnabled(true);
                            const bool isTakenBack = login->setEnabled(false);
                            return Deeds{isTaken ? "on" : "not on", isTakenBack ? "off" : "not off"};
                        },
                    .whole = {"on", "off"},
                    .whenFailing = {{"mainAppService", {"not on", "off"}},
                                    {"registerAndReturnError", {"not on", "off"}},
                                    {"mainAppService (2)", {"not on", "off"}},
                                    {"mainAppService (3)", {"on", "not off"}},
                                    {"unregisterAndReturnError", {"on", "not off"}},
                                    {"mainAppService (4)", {"on", "off"}}}});
}

} // namespace
} // namespace orvelle
