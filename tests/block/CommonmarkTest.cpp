#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

// The examples of CommonMark 0.31.2 in its rule set; all pass. With CORVANE_SECTIONS set the test prints the
// rows of the table by section in docs/conformance.md.

namespace Ondo::Test {
namespace {

struct Example {
    std::u16string markdown;
    std::string html;
};

struct Section {
    std::string name;
    std::vector<Example> examples;
};

std::string withTabs(std::string text) {
    const std::string arrow = "\u2192";
    for (std::size_t at = text.find(arrow); at != std::string::npos; at = text.find(arrow, at))
        text.replace(at, arrow.size(), "\t");
    return text;
}

const std::string fence(32, '`');

/// The rest of an example behind its opening fence: markdown, a line ".", HTML, a closing fence.
Example readExample(std::istream& in) {
    std::string parts[2];
    std::string line;
    for (std::size_t part = 0; std::getline(in, line) && line != fence;) {
        if (line == "." && part == 0)
            part = 1;
        else
            parts[part] += line + '\n';
    }
    return {Util::utf16(withTabs(parts[0])), withTabs(parts[1])};
}

/// By headings of level 2; a section need not have an example.
std::vector<Section> readSections(std::istream& in) {
    std::vector<Section> sections;
    std::string line;
    while (std::getline(in, line)) {
        if (line.rfind("## ", 0) == 0)
            sections.push_back({line.substr(3), {}});
        else if (line == fence + " example")
            sections.back().examples.push_back(readExample(in));
    }
    return sections;
}

std::string specPath() {
    const char* const folder = std::getenv("CORVANE_NPM");
    return folder ? std::string(folder) + "/commonmark-spec/spec.txt" : std::string();
}

bool passes(const Example& example, std::size_t number) {
    const Tree tree(example.markdown, RuleConfig::Commonmark);
    EXPECT_EQ(checkTree(tree), "") << number;
    const std::string html = Util::utf8(tree.toHtml());
    EXPECT_EQ(html, example.html) << number << ": " << visible(example.markdown);
    return html == example.html;
}

TEST(Commonmark, Examples) {
    std::ifstream in(specPath());
    if (!in && !std::getenv("CI"))
        GTEST_SKIP() << "needs spec.txt of the npm package commonmark-spec in the folder CORVANE_NPM";
    ASSERT_TRUE(in) << "CI needs spec.txt of the npm package commonmark-spec in the folder CORVANE_NPM";
    std::size_t number = 0;
    for (const Section& section : readSections(in)) {
        std::size_t passed = 0;
        for (const Example& example : section.examples)
            if (passes(example, ++number)) ++passed;
        if (std::getenv("CORVANE_SECTIONS") && !section.examples.empty())
            std::printf("| %s | %zu | %zu |\n", section.name.c_str(), passed, section.examples.size());
    }
    EXPECT_EQ(number, 652U);
}

} // namespace
} // namespace Ondo::Test
