#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <set>

#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

// The examples of CommonMark 0.31.2 in its rule set, with those that can't pass yet: an example that is not
// expected to fail must pass, and one that passes must leave the table.

namespace Ondo::Test {
namespace {

struct Example {
    std::u16string markdown;
    std::string html;
};

std::string withTabs(std::string text) {
    const std::string arrow = "\u2192";
    for (std::size_t at = text.find(arrow); at != std::string::npos; at = text.find(arrow, at))
        text.replace(at, arrow.size(), "\t");
    return text;
}

/// An example stands between fences of 32 backticks: markdown, a line ".", HTML.
std::vector<Example> readExamples(std::istream& in) {
    const std::string fence(32, '`');
    std::vector<Example> examples;
    std::string line;
    while (std::getline(in, line)) {
        if (line != fence + " example") continue;
        std::string parts[2];
        for (std::size_t part = 0; std::getline(in, line) && line != fence;) {
            if (line == "." && part == 0)
                part = 1;
            else
                parts[part] += line + '\n';
        }
        examples.push_back({Util::utf16(withTabs(parts[0])), withTabs(parts[1])});
    }
    return examples;
}

constexpr int exampleCount = 652;

/// Numbers of examples, by the construct that they wait for.
const std::map<std::string, std::set<int>> expectedFailures = {
    {"backslash escapes", {12, 14, 15, 16, 17, 20, 21, 22, 23, 24, 65, 76, 102, 106}},
    {"entities", {25, 26, 27, 31, 32, 33, 34, 35, 37, 38, 39, 40, 41}},
    {"code spans", {121, 138, 145, 327, 328, 329, 330, 331, 332, 333, 334, 335,
                    336, 337, 338, 339, 340, 341, 342, 343, 344, 345, 346, 349}},
    {"emphasis",
     {56,  66,  80,  81,  82,  350, 355, 356, 357, 364, 369, 370, 373, 376, 377, 378, 381, 382, 389, 390,
      393, 394, 395, 396, 399, 402, 403, 404, 405, 406, 407, 408, 409, 410, 411, 412, 413, 414, 415, 416,
      417, 418, 419, 422, 423, 424, 425, 426, 427, 428, 429, 430, 431, 432, 433, 437, 438, 440, 441, 442,
      443, 444, 445, 446, 447, 449, 450, 452, 453, 454, 455, 456, 457, 458, 459, 460, 461, 462, 463, 464,
      465, 466, 467, 468, 469, 470, 471, 472, 473, 474, 475, 476, 477, 478, 479, 480, 481}},
    {"links",
     {482, 483, 484, 485, 486, 487, 489, 491, 492, 493, 494, 495, 496, 498, 499, 500, 501, 502, 503, 504,
      505, 506, 507, 509, 510, 512, 514, 515, 516, 517, 518, 519, 520, 521, 522, 523, 524, 525, 526, 527,
      528, 529, 530, 531, 532, 533, 534, 535, 536, 537, 538, 539, 540, 541, 542, 543, 544, 545, 549, 550,
      553, 554, 555, 556, 557, 558, 559, 560, 561, 562, 563, 564, 565, 566, 567, 568, 569, 570, 571}},
    {"images", {572, 573, 574, 575, 576, 577, 578, 579, 580, 581, 582,
                583, 584, 585, 586, 587, 588, 589, 591, 592, 593}},
    {"autolinks", {594, 595, 596, 597, 598, 599, 600, 601, 603, 604, 605, 606}},
    {"raw HTML", {613, 614, 615, 616, 617, 623, 625, 626, 627, 628, 629, 630, 631, 632}},
    {"hard line breaks", {226, 633, 634, 635, 636, 637, 638, 639, 640, 641, 642, 643}},
    {"HTML blocks", {148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161, 162, 163,
                     164, 165, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175, 176, 177, 178, 179,
                     180, 181, 182, 183, 184, 185, 186, 187, 188, 189, 190, 191, 308, 309}},
    {"link reference definitions", {192, 193, 194, 195, 196, 198, 200, 201, 202, 203, 204,
                                    205, 206, 207, 208, 210, 214, 215, 216, 217, 218, 317}},
};

std::string expectedFailure(int number) {
    for (const auto& [construct, numbers] : expectedFailures)
        if (numbers.count(number) != 0) return construct;
    return {};
}

std::string specPath() {
    const char* const folder = std::getenv("CORVANE_NPM");
    return folder ? std::string(folder) + "/commonmark-spec/spec.txt" : std::string();
}

TEST(Commonmark, Examples) {
    std::ifstream in(specPath());
    if (!in && !std::getenv("CI"))
        GTEST_SKIP() << "needs spec.txt of the npm package commonmark-spec in the folder CORVANE_NPM";
    ASSERT_TRUE(in) << "CI needs spec.txt of the npm package commonmark-spec in the folder CORVANE_NPM";
    const std::vector<Example> examples = readExamples(in);
    ASSERT_EQ(examples.size(), static_cast<std::size_t>(exampleCount));
    for (int number = 1; number <= exampleCount; ++number) {
        const Example& example = examples[static_cast<std::size_t>(number) - 1];
        const Tree tree(example.markdown, RuleConfig::Commonmark);
        EXPECT_EQ(checkTree(tree), "") << number;
        const std::string html = Util::utf8(tree.toHtml());
        const std::string construct = expectedFailure(number);
        if (construct.empty())
            EXPECT_EQ(html, example.html) << number << ": " << visible(example.markdown);
        else
            EXPECT_NE(html, example.html) << number << " passes: it is no longer waiting for " << construct;
    }
}

} // namespace
} // namespace Ondo::Test
