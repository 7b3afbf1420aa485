#include "darwin/simulated/kernel.h"

#include <gtest/gtest.h>

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <mach/mach.h>

// The simulated system must notice what its tests rely on it to notice.
namespace orvelle::simulated {
namespace {

class AccountingTest : public ::testing::Test {
protected:
    AccountingTest() {
        kernel() = Kernel{};
        kernel().machine.processors = {.count = 1, .words = {1, 2, 3, 4}};
        kernel().machine.services["Thing"] = {{.properties = Properties{{"Key", Properties{{"Inner", 1}}}}}};
    }

    static io_service_t findThing() {
        return IOServiceGetMatchingService(kIOMainPortDefault, IOServiceMatching("Thing"));
    }
};

TEST_F(AccountingTest, PagesCountUntilTheirWholeAnswerIsReleased) {
    const mach_port_t host = mach_host_self();
    natural_t count = 0;
    processor_info_array_t words = nullptr;
    mach_msg_type_number_t wordCount = 0;
    ASSERT_EQ(host_processor_info(host, PROCESSOR_CPU_LOAD_INFO, &count, &words, &wordCount), KERN_SUCCESS);
    const auto address = reinterpret_cast<vm_address_t>(words);
    EXPECT_EQ(kernel().live().pages, 1u);
    EXPECT_NE(vm_deallocate(mach_task_self(), address, wordCount), KERN_SUCCESS) << "words are not bytes";
    EXPECT_EQ(kernel().live().pages, 1u);
    EXPECT_EQ(kernel().complaints().size(), 1u);
    EXPECT_EQ(vm_deallocate(mach_task_self(), address, wordCount * sizeof(integer_t)), KERN_SUCCESS);
    EXPECT_EQ(kernel().live(), (Live{.ports = 1}));
}

TEST_F(AccountingTest, ANameGivenBackTwiceOrToTheWrongCallIsAComplaint) {
    const mach_port_t host = mach_host_self();
    IOObjectRelease(host);
    EXPECT_EQ(kernel().live().ports, 1u);
    mach_port_deallocate(mach_task_self(), host);
    EXPECT_EQ(kernel().live().ports, 0u);
    EXPECT_EQ(kernel().complaints().size(), 1u);
    mach_port_deallocate(mach_task_self(), host);
    EXPECT_EQ(kernel().complaints().size(), 2u);
}

TEST_F(AccountingTest, AServiceAndItsConnectionAreReleasedOnTheirOwn) {
    const io_service_t service = findThing();
    EXPECT_EQ(kernel().live(), (Live{.registryObjects = 1})) << "the look-up consumed its dictionary";
    io_connect_t connection = IO_OBJECT_NULL;
    ASSERT_EQ(IOServiceOpen(service, mach_task_self(), 0, &connection), KERN_SUCCESS);
    IOObjectRelease(service);
    EXPECT_EQ(kernel().live(), (Live{.connections = 1}));
    IOServiceClose(connection);
    EXPECT_EQ(kernel().live(), Live{});
}

TEST_F(AccountingTest, ADictionaryLivesWithWhatItContainsAndEndsOnce) {
    const io_service_t service = findThing();
    CFMutableDictionaryRef properties = nullptr;
    ASSERT_EQ(IORegistryEntryCreateCFProperties(service, &properties, kCFAllocatorDefault, kNilOptions),
              KERN_SUCCESS);
    EXPECT_EQ(kernel().live().coreFoundationObjects, 3u);
    CFRelease(properties);
    EXPECT_EQ(kernel().live().coreFoundationObjects, 0u);
    CFRelease(properties);
    EXPECT_EQ(kernel().complaints().size(), 1u);
    IOObjectRelease(service);
}

TEST_F(AccountingTest, AMatchingDictionaryThatNobodyUsesIsMissed) {
    const CFMutableDictionaryRef matching = IOServiceMatching("Thing");
    EXPECT_EQ(kernel().live().coreFoundationObjects, 2u);
    CFRelease(matching);
}

} // namespace
} // namespace orvelle::simulated
