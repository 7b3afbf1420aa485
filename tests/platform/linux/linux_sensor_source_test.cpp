#include "hwmon_tree.h"
#include "platform/linux/linux_sensor_source.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace orvelle::linux_platform {
namespace {

class LinuxSensorSourceTest : public ::testing::Test {
protected:
    HwmonTree tree;

    struct Sample {
        std::optional<double> cpu;
        std::optional<double> gpu;
        std::vector<NamedTemperature> sensors;
        std::vector<std::int64_t> fans;
    };

    static Sample sampleOf(LinuxSensorSource& source) {
        Sample sample;
        sample.cpu = source.readCPUTemperature();
        sample.gpu = source.readGPUTemperature();
        sample.sensors = source.readSensors();
        sample.fans = source.readFanSpeeds();
        return sample;
    }
    [[nodiscard]] Sample firstSample() const {
        LinuxSensorSource source(tree.root());
        return sampleOf(source);
    }
    static std::vector<std::string> namesOf(const Sample& sample) {
        std::vector<std::string> names;
        for (const NamedTemperature& sensor : sample.sensors)
            names.push_back(sensor.name);
        return names;
    }

    /// A laptop, its chips numbered in the order in which their drivers happened to load.
    void buildLaptop(const std::vector<int>& numbers) const {
        tree.device("virtual/thermal/thermal_zone0", "thermal", "class");
        tree.chip(numbers[0], "virtual/thermal/thermal_zone0", "acpitz", {{"temp1_input", "48000"}});
        tree.nvme(numbers[1], "0000:04:00.0", numbers[1], "SAMSUNG MZVLB512HBJQ-000L7", "36850");
        tree.device("platform/coretemp.0", "platform");
        tree.chip(numbers[2], "platform/coretemp.0", "coretemp",
                  {{"temp1_input", "61000"},
                   {"temp1_label", "Package id 0"},
                   {"temp1_crit", "100000"},
                   {"temp2_input", "60000"},
                   {"temp2_label", "Core 0"},
                   {"temp10_input", "59000"},
                   {"temp10_label", "Core 8"},
                   {"temp3_input", "58000"},
                   {"temp3_label", "Core 1"}});
        tree.device("platform/thinkpad_hwmon", "platform");
        tree.chip(numbers[3], "platform/thinkpad_hwmon", "thinkpad",
                  {{"temp1_input", "61000"},
                   {"temp1_label", "CPU"},
                   {"temp2_input", "0"},
                   {"temp2_label", "GPU"},
                   {"fan1_input", "2573"},
                   {"fan2_input", "0"}});
        tree.device("virtual/thermal/thermal_zone1", "thermal", "class");
        tree.chip(numbers[4], "virtual/thermal/thermal_zone1", "iwlwifi_1", {{"temp1_input", "41000"}});
    }

    void buildDesktop() const {
        tree.device("pci0000:00/0000:00:18.3", "pci");
        tree.chip(2, "pci0000:00/0000:00:18.3", "k10temp",
                  {{"temp1_input", "55125"},
                   {"temp1_label", "Tctl"},
                   {"temp3_input", "49500"},
                   {"temp3_label", "Tccd1"}});
        tree.device("pci0000:00/0000:0b:00.0", "pci");
        tree.chip(3, "pci0000:00/0000:0b:00.0", "amdgpu",
                  {{"temp1_input", "52000"},
                   {"temp1_label", "edge"},
                   {"temp2_input", "58000"},
                   {"temp2_label", "junction"},
                   {"fan1_input", "1250"}});
        tree.nvme(0, "0000:01:00.0", 0, "Samsung SSD 980 PRO 1TB", "41850");
        tree.nvme(1, "0000:04:00.0", 1, "Samsung SSD 980 PRO 1TB", "38850");
    }
};

TEST_F(LinuxSensorSourceTest, ALaptopShowsItsSensorsWithTheKernelsLabels) {
    buildLaptop({0, 1, 2, 3, 4});
    const Sample sample = firstSample();
    EXPECT_EQ(sample.cpu, 61.0);
    EXPECT_EQ(sample.gpu, std::nullopt);
    EXPECT_EQ(sample.sensors, (std::vector<NamedTemperature>{
                                  {"coretemp.0/coretemp/temp1", "coretemp Package id 0", 61.0},
                                  {"coretemp.0/coretemp/temp2", "coretemp Core 0", 60.0},
                                  {"coretemp.0/coretemp/temp3", "coretemp Core 1", 58.0},
                                  {"coretemp.0/coretemp/temp10", "coretemp Core 8", 59.0},
                                  {"acpitz/temp1", "acpitz", 48.0},
                                  {"iwlwifi_1/temp1", "iwlwifi_1", 41.0},
                                  {"0000:04:00.0/nvme/temp1", "SAMSUNG MZVLB512HBJQ-000L7 Composite", 36.85},
                                  {"thinkpad_hwmon/thinkpad/temp1", "thinkpad CPU", 61.0},
                              }));
    EXPECT_EQ(sample.fans, std::vector<std::int64_t>{2573});
}

TEST_F(LinuxSensorSourceTest, KeysAndOrderDoNotDependOnTheKernelsNumbering) {
    buildLaptop({0, 1, 2, 3, 4});
    const Sample before = firstSample();
    tree.remove("sys");
    buildLaptop({7, 12, 0, 4, 2});
    const Sample after = firstSample();
    EXPECT_EQ(after.sensors, before.sensors);
    EXPECT_EQ(after.cpu, before.cpu);
}

TEST_F(LinuxSensorSourceTest, ADesktopDistinguishesTwoEqualDrives) {
    buildDesktop();
    const Sample sample = firstSample();
    EXPECT_EQ(sample.cpu, 55.125);
    EXPECT_EQ(sample.gpu, 52.0);
    EXPECT_EQ(sample.sensors,
              (std::vector<NamedTemperature>{
                  {"0000:00:18.3/k10temp/temp1", "k10temp Tctl", 55.125},
                  {"0000:00:18.3/k10temp/temp3", "k10temp Tccd1", 49.5},
                  {"0000:0b:00.0/amdgpu/temp1", "amdgpu edge", 52.0},
                  {"0000:0b:00.0/amdgpu/temp2", "amdgpu junction", 58.0},
                  {"0000:01:00.0/nvme/temp1", "Samsung SSD 980 PRO 1TB (0000:01:00.0) Composite", 41.85},
                  {"0000:04:00.0/nvme/temp1", "Samsung SSD 980 PRO 1TB (0000:04:00.0) Composite", 38.85},
              }));
    EXPECT_EQ(sample.fans, std::vector<std::int64_t>{1250});
}

TEST_F(LinuxSensorSourceTest, DrivesOfDifferentModelsNeedNoAddress) {
    tree.nvme(0, "0000:01:00.0", 0, "Samsung SSD 980 PRO 1TB", "41850");
    tree.nvme(1, "0000:04:00.0", 1, "WD_BLACK SN850X 2000GB", "38850");
    EXPECT_EQ(namesOf(firstSample()), (std::vector<std::string>{"Samsung SSD 980 PRO 1TB Composite",
                                                                "WD_BLACK SN850X 2000GB Composite"}));
}

TEST_F(LinuxSensorSourceTest, ChipsThatShareNameAndAddressAreNumbered) {
    tree.device("pci0000:00/0000:00:1f.4", "pci");
    for (const int adapter : {2, 10}) {
        const std::string folder = "pci0000:00/0000:00:1f.4/i2c-" + std::to_string(adapter);
        const std::string client = folder + "/" + std::to_string(adapter) + "-0050";
        tree.device(client, "i2c");
        tree.chip(20 - adapter, client, "jc42", {{"temp1_input", std::to_string(30000 + adapter)}});
    }
    EXPECT_EQ(firstSample().sensors,
              (std::vector<NamedTemperature>{
                  {"0000:00:1f.4 i2c 0050/jc42/temp1", "jc42 (0000:00:1f.4 i2c 0050)", 30.002},
                  {"0000:00:1f.4 i2c 0050#2/jc42/temp1", "jc42 (0000:00:1f.4 i2c 0050#2)", 30.010},
              }));
}

TEST_F(LinuxSensorSourceTest, AnARMBoardsProcessorIsItsThermalZone) {
    tree.device("virtual/thermal/thermal_zone0", "thermal", "class");
    tree.chip(0, "virtual/thermal/thermal_zone0", "cpu_thermal", {{"temp1_input", "47236"}});
    tree.device("virtual/thermal/thermal_zone1", "thermal", "class");
    tree.chip(1, "virtual/thermal/thermal_zone1", "gpu_thermal", {{"temp1_input", "45000"}});
    const Sample sample = firstSample();
    EXPECT_EQ(sample.cpu, 47.236);
    EXPECT_EQ(sample.gpu, 45.0);
    EXPECT_EQ(namesOf(sample), (std::vector<std::string>{"cpu_thermal", "gpu_thermal"}));
}

TEST_F(LinuxSensorSourceTest, AMachineWithNothingHasNothing) {
    for (int count = 0; count < 12; ++count) {
        const Sample sample = firstSample();
        EXPECT_EQ(sample.cpu, std::nullopt);
        EXPECT_EQ(sample.gpu, std::nullopt);
        EXPECT_TRUE(sample.sensors.empty());
        EXPECT_TRUE(sample.fans.empty());
    }
}

TEST_F(LinuxSensorSourceTest, ImplausibleReadingsAreAbsent) {
    tree.device("platform/chip.0", "platform");
    tree.chip(0, "platform/chip.0", "chip",
              {{"temp1_input", "-274000"},
               {"temp2_input", "0"},
               {"temp3_input", "150000"},
               {"temp4_input", "65273000"},
               {"temp5_input", "garbage"},
               {"temp6_input", "45abc"},
               {"temp7_input", ""},
               {"temp8_input", "99999999999999999999999"},
               {"temp9_input", "149999"},
               {"temp10_input", "1"},
               {"temp_input", "40000"},
               {"temp1x_input", "40000"},
               {"in1_input", "40000"}});
    EXPECT_EQ(firstSample().sensors,
              (std::vector<NamedTemperature>{{"chip.0/chip/temp9", "chip temp9", 149.999},
                                             {"chip.0/chip/temp10", "chip temp10", 0.001}}));
}

TEST_F(LinuxSensorSourceTest, FansThatStandStillOrFailAreAbsent) {
    tree.device("platform/chip.0", "platform");
    tree.chip(0, "platform/chip.0", "chip",
              {{"fan1_input", "0"},
               {"fan2_input", "-5"},
               {"fan3_input", "x"},
               {"fan10_input", "900"},
               {"fan4_input", "700"}});
    EXPECT_EQ(firstSample().fans, (std::vector<std::int64_t>{700, 900}));
}

TEST_F(LinuxSensorSourceTest, ImplausibleFanSpeedsAreCut) {
    tree.device("platform/nct6775.656", "platform");
    tree.chip(0, "platform/nct6775.656", "nct6798",
              {{"fan1_input", "100000"}, {"fan2_input", "100001"}, {"fan3_input", "9223372036854775807"}});
    EXPECT_EQ(firstSample().fans, std::vector(3, maximumFanSpeed));
}

TEST_F(LinuxSensorSourceTest, TheNextBestSensorStandsInForTheProcessor) {
    buildLaptop({0, 1, 2, 3, 4});
    tree.write(HwmonTree::chipFolder(2) + "/temp1_input", "0");
    EXPECT_EQ(firstSample().cpu, 60.0);
    tree.remove("sys/devices/platform/coretemp.0");
    EXPECT_EQ(firstSample().cpu, 61.0) << "what the board's controller calls CPU";
    tree.remove("sys/devices/platform/thinkpad_hwmon");
    EXPECT_EQ(firstSample().cpu, 48.0) << "the firmware's thermal zone";
    tree.remove("sys/devices/virtual");
    EXPECT_EQ(firstSample().cpu, std::nullopt);
}

TEST_F(LinuxSensorSourceTest, FollowsTheValuesFromSampleToSample) {
    buildDesktop();
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sampleOf(source).cpu, 55.125);
    tree.write(HwmonTree::chipFolder(2) + "/temp1_input", "70000\n");
    tree.write(HwmonTree::chipFolder(3) + "/fan1_input", "0\n");
    const Sample sample = sampleOf(source);
    EXPECT_EQ(sample.cpu, 70.0);
    EXPECT_TRUE(sample.fans.empty());
}

TEST_F(LinuxSensorSourceTest, OnceAValueIsLostTheNextSampleSearchesAgain) {
    buildDesktop();
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sampleOf(source).sensors.size(), 6u);
    // A sysfs file of a device that has gone cannot be read; an empty text stands for that here.
    tree.write(HwmonTree::chipFolder(1) + "/temp1_input", "");
    tree.remove(HwmonTree::chipFolder(1));
    tree.nvme(9, "0000:05:00.0", 2, "WD_BLACK SN850X 2000GB", "38850");
    EXPECT_EQ(sampleOf(source).sensors.size(), 5u);
    EXPECT_EQ(namesOf(sampleOf(source)).back(), "WD_BLACK SN850X 2000GB Composite");
}

TEST_F(LinuxSensorSourceTest, NewChipsAreFoundWithinTenSamples) {
    LinuxSensorSource source(tree.root());
    EXPECT_TRUE(sampleOf(source).sensors.empty());
    buildDesktop();
    for (int sample = 2; sample <= 10; ++sample)
        EXPECT_TRUE(sampleOf(source).sensors.empty()) << sample;
    EXPECT_EQ(sampleOf(source).sensors.size(), 6u);
}

TEST_F(LinuxSensorSourceTest, AChannelThatDoesNotAnswerIsTriedAgainAtTheNextSearch) {
    tree.device("platform/chip.0", "platform");
    tree.chip(0, "platform/chip.0", "chip", {{"temp1_input", ""}});
    LinuxSensorSource source(tree.root());
    EXPECT_TRUE(sampleOf(source).sensors.empty());
    tree.write(HwmonTree::chipFolder(0) + "/temp1_input", "40000");
    for (int sample = 2; sample <= 10; ++sample)
        EXPECT_TRUE(sampleOf(source).sensors.empty()) << sample;
    EXPECT_EQ(sampleOf(source).sensors.size(), 1u);
}

TEST_F(LinuxSensorSourceTest, DriversMayKeepTheirAttributesWithTheDevice) {
    tree.write("sys/devices/platform/applesmc.768/name", "applesmc\n");
    tree.write("sys/devices/platform/applesmc.768/temp1_input", "52250\n");
    tree.write("sys/devices/platform/applesmc.768/temp1_label", "TC0P\n");
    tree.link("sys/devices/platform/applesmc.768/hwmon/hwmon0/device", "../..");
    tree.link("sys/class/hwmon/hwmon0", "../../devices/platform/applesmc.768/hwmon/hwmon0");
    EXPECT_EQ(firstSample().sensors,
              (std::vector<NamedTemperature>{{"applesmc.768/applesmc/temp1", "applesmc TC0P", 52.25}}));
}

TEST_F(LinuxSensorSourceTest, NamesAreMadeReadable) {
    tree.device("platform/chip.0", "platform");
    tree.chip(0, "platform/chip.0", "ch\xFFip",
              {{"temp1_input", "40000"},
               {"temp1_label", "a\tb\xE2\x80\xAE"
                               "c\nd"}});
    ASSERT_EQ(firstSample().sensors.size(), 1u);
    EXPECT_EQ(firstSample().sensors[0].name, "ch\xEF\xBF\xBDip a bc d");
}

TEST_F(LinuxSensorSourceTest, LoopsAndStrayFilesInTheTreeAreIgnored) {
    tree.link("sys/class/hwmon/hwmon0", "hwmon0");
    tree.write("sys/class/hwmon/hwmon1", "a file");
    tree.link("sys/class/hwmon/hwmon2", "../../devices/gone");
    tree.write("sys/class/hwmon/hwmon3/name/inside", "name is a folder");
    EXPECT_TRUE(firstSample().sensors.empty());
}

TEST_F(LinuxSensorSourceTest, AValueFileThatIsAPipeDoesNotBlock) {
    tree.device("platform/chip.0", "platform");
    tree.chip(0, "platform/chip.0", "chip", {{"temp1_input", "40000"}});
    ASSERT_EQ(::mkfifo((tree.root() / HwmonTree::chipFolder(0) / "temp2_input").c_str(), 0600), 0);
    EXPECT_EQ(namesOf(firstSample()), std::vector<std::string>{"chip temp1"});
}

} // namespace
} // namespace orvelle::linux_platform
