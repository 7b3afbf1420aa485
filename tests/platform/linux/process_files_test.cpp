#include "platform/linux/process_files.h"
#include "process_tree.h"

#include <gtest/gtest.h>

#include <random>

namespace orvelle::linux_platform {
namespace {

constexpr std::uint64_t kernelThread = 0x00200000;

std::string lineWithComm(const std::string& comm) {
    return MadeProcess{.pid = 17, .comm = comm, .exe = {}}.statLine();
}

TEST(ProcessStat, ReadsEveryField) {
    const MadeProcess made{.pid = 9628,
                           .comm = "cat",
                           .state = 'R',
                           .flags = 4194560,
                           .userTicks = 12,
                           .systemTicks = 34,
                           .threadCount = 5,
                           .startTime = 125093,
                           .residentPages = 414,
                           .exe = {}};
    const auto stat = parseProcessStat(made.statLine());
    ASSERT_TRUE(stat);
    const std::string line = made.statLine();
    EXPECT_EQ(*parseProcessStat(line), (ProcessStat{.comm = "cat",
                                                    .state = 'R',
                                                    .flags = 4194560,
                                                    .userTicks = 12,
                                                    .systemTicks = 34,
                                                    .threadCount = 5,
                                                    .startTime = 125093,
                                                    .residentPages = 414}));
}

TEST(ProcessStat, TakesAnyBytesBetweenTheOuterParenthesesAsTheShortName) {
    using namespace std::string_literals;
    for (const std::string& comm :
         {"(sd-pam)"s, "a) R 1 2 3"s, "a b c"s, ")"s, "("s, ") ("s, "two\nlines"s, ""s, "\xFF\xFE\x80"s,
          "tab\there"s, "kworker/u8:1-events_unbound"s, "nul\0byte"s}) {
        const std::string line = lineWithComm(comm);
        const auto stat = parseProcessStat(line);
        ASSERT_TRUE(stat) << line;
        EXPECT_EQ(stat->comm, comm);
        EXPECT_EQ(stat->state, 'S');
        EXPECT_EQ(stat->residentPages, 100u);
    }
}

TEST(ProcessStat, IsNothingWhenItIsCutBeforeTheEndOfTheResidentPages) {
    const std::string line = lineWithComm("pro(gram");
    const std::size_t afterResident = line.find(" 100 ") + 5;
    for (std::size_t size = 0; size < afterResident; ++size)
        EXPECT_FALSE(parseProcessStat(line.substr(0, size))) << size;
    for (std::size_t size = afterResident + 1; size <= line.size(); ++size)
        EXPECT_TRUE(parseProcessStat(line.substr(0, size)) == parseProcessStat(line) ||
                    parseProcessStat(line.substr(0, size))->residentPages == 100u)
            << size;
}

TEST(ProcessStat, IsNothingWithoutItsParenthesesOrNumbers) {
    for (const char* text :
         {"", " ", "\n", "17", "17 (", "17 )", "17 )(", "17 (a", "17 a) S", "17 (a)", "17 (a) ", "17 (a) S",
          "17 (a) SS 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22",
          "17 (a) S x x x x x x x x x x x x x x x x x x x x x x x x x x"})
        EXPECT_FALSE(parseProcessStat(text)) << text;
    EXPECT_TRUE(parseProcessStat("17 (a) S 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22"));
}

TEST(ProcessStat, TakesNumbersBeyondTheirTypeAsTheLargest) {
    const std::string huge = "99999999999999999999999999";
    const auto stat = parseProcessStat("17 (a) S 1 2 3 4 5 6 7 8 9 10 " + huge + " " + huge +
                                       " 13 14 15 16 " + huge + " 18 " + huge + " 20 " + huge + " 22\n");
    ASSERT_TRUE(stat);
    constexpr std::uint64_t largest = ~std::uint64_t{0};
    EXPECT_EQ(stat->userTicks, largest);
    EXPECT_EQ(stat->systemTicks, largest);
    EXPECT_EQ(stat->threadCount, largest);
    EXPECT_EQ(stat->startTime, largest);
    EXPECT_EQ(stat->residentPages, largest);
}

TEST(ProcessStat, SurvivesAnyBytes) {
    std::mt19937 random(20260101);
    const std::string line = lineWithComm("program");
    int parsed = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text = line;
        for (unsigned change = random() % 4 + 1; change > 0; --change)
            text[random() % text.size()] = static_cast<char>(random() % 256);
        const auto stat = parseProcessStat(text);
        if (stat) {
            ++parsed;
            EXPECT_LE(stat->comm.size(), text.size());
            static_cast<void>(processName("", stat->comm));
        }
    }
    EXPECT_GT(parsed, 0);
}

TEST(ProcessStat, ZombiesAndProcessesWithoutATaskDoNotRun) {
    EXPECT_TRUE(isRunning({.comm = "a", .state = 'S', .threadCount = 1}));
    EXPECT_TRUE(isRunning({.comm = "a", .state = 'I', .threadCount = 1}));
    EXPECT_FALSE(isRunning({.comm = "a", .state = 'Z', .threadCount = 1}));
    EXPECT_FALSE(isRunning({.comm = "a", .state = 'X', .threadCount = 1}));
    EXPECT_FALSE(isRunning({.comm = "a", .state = 'S', .threadCount = 0}));
    EXPECT_FALSE(isRunning({.comm = "a", .state = 'Z', .threadCount = 0}));
}

TEST(ProcessStat, AProcessWhoseFirstThreadHasEndedStillRuns) {
    EXPECT_TRUE(isRunning({.comm = "a", .state = 'Z', .threadCount = 3}));
}

TEST(ProcessStat, KnowsAThreadOfTheKernelByItsFlag) {
    EXPECT_TRUE(isKernelThread({.comm = "kworker/0:1", .flags = kernelThread | 0x40}));
    EXPECT_FALSE(isKernelThread({.comm = "bash", .flags = 4194304}));
}

TEST(ProcessName, IsTheLastComponentOfThePath) {
    EXPECT_EQ(processName("/usr/lib/firefox-esr/firefox-esr", "GeckoMain"), "firefox-esr");
    EXPECT_EQ(processName("/opt/two words/the program", "the program"), "the program");
    EXPECT_EQ(processName("relative", "x"), "relative");
}

TEST(ProcessName, LosesOnlyTheMarkOfARemovedFile) {
    EXPECT_EQ(processName("/usr/bin/sshd (deleted)", "sshd"), "sshd");
    EXPECT_EQ(processName("/memfd:runner (deleted)", "3"), "memfd:runner");
    EXPECT_EQ(processName("/usr/bin/tool (deleted) (deleted)", "x"), "tool (deleted)");
    EXPECT_EQ(processName("/usr/bin/(deleted)", "x"), "(deleted)");
}

TEST(ProcessName, IsTheShortNameWithoutAPath) {
    EXPECT_EQ(processName("", "systemd-resolve"), "systemd-resolve");
    EXPECT_EQ(processName("/", "init"), "init");
    EXPECT_EQ(processName("/ (deleted)", "init"), "init");
    EXPECT_EQ(processName("", ""), "");
}

TEST(ProcessName, IsReadable) {
    EXPECT_EQ(processName("/bin/two\nlines", "x"), "two lines");
    EXPECT_EQ(processName("/bin/\xFFname", "x"), "\xEF\xBF\xBDname");
    EXPECT_EQ(processName("", "cod\xE2\x80\xAE"
                              "exe"),
              "codexe");
    EXPECT_EQ(processName("/bin/\xE2\x80\xAE", "short"), "short");
}

TEST(ProcessFiles, KeepLittleMoreMemoryThanTheListedPidsNeed) {
    const ProcessTree tree;
    constexpr std::size_t count = 600;
    for (std::size_t pid = 1; pid <= count; ++pid)
        std::filesystem::create_directory(tree.root() / "proc" / std::to_string(pid));
    ProcessFiles files(tree.root());
    ASSERT_TRUE(files.open());
    ASSERT_EQ(files.list().size(), count);
    EXPECT_LE(files.list().capacity(), count + count / 10);
}

TEST(ProcessName, OfCharactersThatShowNothingDoesNotHideTheProcess) {
    EXPECT_EQ(processName("", "\xE2\x80\xAE\xE2\x81\xA6"), "\xEF\xBF\xBD");
    EXPECT_EQ(processName("/bin/\xE2\x80\xAE", "\xE2\x80\xAE"), "\xEF\xBF\xBD");
}

} // namespace
} // namespace orvelle::linux_platform
