#include "mutations.h"
#include "parsers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>

namespace orvelle::fuzz {

/// How the framework names a parser.
void PrintTo(const Parser& parser, std::ostream* stream) {
    *stream << parser.name;
}

namespace {

namespace fs = std::filesystem;

const fs::path corpora = ORVELLE_FUZZ_CORPUS;

/// Shared among the texts of a parser, so that a text more costs nothing.
constexpr std::size_t mutationsPerParser = 4000;
constexpr std::size_t mostCuts = 256;

std::vector<std::string> textsFor(const Parser& parser) {
    std::vector<fs::path> files(fs::directory_iterator(corpora / parser.name), fs::directory_iterator());
    std::ranges::sort(files);
    std::vector<std::string> texts;
    for (const fs::path& file : files) {
        std::ifstream stream(file, std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return texts;
}

/// Runs the parser on a copy of just the text's size, so that reading beyond its end is seen.
void run(const Parser& parser, std::string_view text) {
    const auto bytes = std::make_unique<char[]>(text.size());
    std::ranges::copy(text, bytes.get());
    EXPECT_NO_THROW(parser.body({bytes.get(), text.size()}))
        << parser.name << " on " << testing::PrintToString(std::string(text));
}

class FuzzedParser : public testing::TestWithParam<Parser> {};

TEST_P(FuzzedParser, KeepsItsPromisesOnEveryKeptText) {
    const std::vector<std::string> texts = textsFor(GetParam());
    EXPECT_GE(texts.size(), 3U);
    run(GetParam(), {});
    for (const std::string& text : texts)
        run(GetParam(), text);
}

TEST_P(FuzzedParser, KeepsItsPromisesWhereverATextIsCut) {
    for (const std::string& text : textsFor(GetParam())) {
        const std::size_t step = 1 + text.size() / mostCuts;
        for (std::size_t size = 0; size < text.size(); size += step)
            run(GetParam(), std::string_view(text).substr(0, size));
    }
}

TEST_P(FuzzedParser, KeepsItsPromisesOnDamagedTexts) {
    const std::vector<std::string> texts = textsFor(GetParam());
    ASSERT_FALSE(texts.empty());
    Mutations mutations(texts);
    for (std::size_t count = 0; count < mutationsPerParser && !HasFailure(); ++count)
        run(GetParam(), mutations.of(texts[count % texts.size()]));
}

INSTANTIATE_TEST_SUITE_P(Every, FuzzedParser, testing::ValuesIn(parsers),
                         [](const auto& parser) { return std::string(parser.param.name); });

TEST(FuzzedParsers, EveryCorpusHasItsParser) {
    std::set<std::string> folders;
    for (const fs::directory_entry& entry : fs::directory_iterator(corpora))
        folders.insert(entry.path().filename().string());
    std::set<std::string> names;
    for (const Parser& parser : parsers)
        names.emplace(parser.name);
    EXPECT_EQ(folders, names);
}

} // namespace
} // namespace orvelle::fuzz
