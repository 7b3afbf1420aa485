#include "damaged_tree.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <vector>

namespace orvelle::soak {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t hugeSize = std::size_t{3} << 20;

constexpr std::array limits{"0",
                            "-1",
                            "2147483647",
                            "2147483648",
                            "-2147483649",
                            "4294967295",
                            "4294967296",
                            "9223372036854775807",
                            "9223372036854775808",
                            "-9223372036854775808",
                            "18446744073709551615",
                            "18446744073709551616",
                            "99999999999999999999999999",
                            "1e308",
                            "-0.0",
                            "nan",
                            "inf",
                            "0x7f",
                            ""};

constexpr std::array oddNames{"\xFF\xFE",
                              "\x1b[31mred",
                              "a\nb",
                              "..x",
                              "\xE2\x80\xAE"
                              "flip",
                              "0",
                              "00",
                              "-1",
                              "2147483647",
                              "2147483648",
                              "99999999999999999999",
                              "card0-eDP",
                              "hwmon99999",
                              "BAT\x01",
                              " ",
                              "1 2",
                              "sda!x",
                              "\xED\xA0\x80"};

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// Replaces one of the text's numbers.
void changeNumber(std::string& text, Dice& dice) {
    const auto begin = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(dice.below(text.size() + 1)),
                                    text.end(), isDigit);
    const auto end = std::find_if_not(begin, text.end(), isDigit);
    if (begin != end)
        text.replace(begin, end, dice.pick(limits));
}

/// Where a line of the text begins, and the size with its end.
std::pair<std::size_t, std::size_t> someLine(const std::string& text, Dice& dice) {
    const std::size_t place = dice.below(text.size() + 1);
    const std::size_t before = place == 0 ? std::string::npos : text.rfind('\n', place - 1);
    const std::size_t begin = before == std::string::npos ? 0 : before + 1;
    const std::size_t end = std::min(text.find('\n', place), text.size() - 1);
    return {begin, text.empty() ? 0 : end + 1 - begin};
}

void damageOnce(std::string& text, Dice& dice) {
    const auto [begin, size] = someLine(text, dice);
    switch (dice.below(8)) {
    case 0:
        text.resize(dice.below(text.size() + 1));
        return;
    case 1:
        text.erase(begin, size);
        return;
    case 2:
        text.insert(dice.below(text.size() + 1), text.substr(begin, size));
        return;
    case 3:
        for (std::size_t left = dice.below(600); left > 0 && text.size() < hugeSize; --left)
            text.insert(begin, text.substr(begin, size));
        return;
    case 4:
        text.insert(dice.below(text.size() + 1), dice.pick(oddNames));
        return;
    case 5:
        if (!text.empty())
            dice.pick(text) = static_cast<char>(dice.below(256));
        return;
    default:
        for (std::size_t left = 1 + dice.below(20); left > 0; --left)
            changeNumber(text, dice);
    }
}

std::string textOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// Writes a new file in the place of another.
void replaceFile(const fs::path& file, const std::string& text) {
    std::error_code ignored;
    fs::remove(file, ignored);
    std::ofstream(file, std::ios::binary) << text;
}

void rename(const fs::path& entry, Dice& dice) {
    std::error_code ignored; // the name may be taken
    fs::rename(entry, entry.parent_path() / dice.pick(oddNames), ignored);
}

void relink(const fs::path& entry, Dice& dice) {
    const std::array<fs::path, 4> targets{entry.filename(), "nowhere", "..", "../.."};
    std::error_code ignored;
    fs::remove_all(entry, ignored);
    fs::create_symlink(dice.pick(targets), entry, ignored);
}

void damageEntry(const fs::path& entry, Dice& dice) {
    const bool isFile = fs::is_regular_file(fs::symlink_status(entry));
    std::error_code ignored;
    switch (dice.below(isFile ? 12 : 4)) {
    case 0:
        fs::remove_all(entry, ignored);
        return;
    case 1:
        relink(entry, dice);
        return;
    case 2:
        rename(entry, dice);
        return;
    case 3:
        fs::remove_all(entry, ignored);
        fs::create_directory(entry, ignored);
        return;
    case 4:
        replaceFile(entry, {});
        return;
    case 5: {
        std::string text = textOf(entry);
        while (dice.oneIn(4) && !text.empty() && text.size() < hugeSize)
            text += text;
        replaceFile(entry, text);
        return;
    }
    default:
        replaceFile(entry, damagedText(textOf(entry), dice));
    }
}

/// Every entry below the root, in an order that does not depend on the file system.
std::vector<fs::path> entriesBelow(const fs::path& root) {
    std::vector<fs::path> entries;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root))
        entries.push_back(entry.path());
    std::ranges::sort(entries);
    return entries;
}

} // namespace

std::string damagedText(std::string text, Dice& dice) {
    for (std::size_t left = 1 + dice.below(4); left > 0; --left)
        damageOnce(text, dice);
    return text;
}

void damageTree(const std::filesystem::path& root, Dice& dice) {
    std::vector<fs::path> entries = entriesBelow(root);
    const std::size_t most = dice.oneIn(4) ? 200 : 20;
    for (std::size_t left = 1 + dice.below(most); left > 0 && !entries.empty(); --left) {
        const fs::path entry = dice.pick(entries);
        std::error_code ignored;
        if (fs::exists(fs::symlink_status(entry, ignored)))
            damageEntry(entry, dice);
    }
}

} // namespace orvelle::soak
