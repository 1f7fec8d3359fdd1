#include "SummaryJson.h"

#include <algorithm>
#include <vector>

#include "ValueJson.h"
#include "corvane/analysis/TreeSummary.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Cli {

namespace {

using CVN::TreeSummary;

std::string jsonOf(const std::u16string& text) {
    return jsonText(std::u16string_view(text));
}

std::string jsonOf(const TreeSummary::WikiLink& link) {
    return R"({"title":)" + jsonOf(link.title) + R"(,"offset":)" + std::to_string(link.offset) + "}";
}

template <class Element>
std::string jsonOf(const std::vector<Element>& elements) {
    std::string json = "[";
    for (const Element& each : elements)
        json += (json.size() > 1 ? "," : "") + jsonOf(each);
    return json + "]";
}

std::vector<std::u16string> sortedTags(const TreeSummary& summary) {
    std::vector<std::u16string> tags(summary.tags.begin(), summary.tags.end());
    std::sort(tags.begin(), tags.end());
    return tags;
}

constexpr struct {
    const char* key;
    std::int64_t TreeSummary::*count;
} counts[] = {
    {"codeBlockCount", &TreeSummary::codeBlockCount},
    {"todoCount", &TreeSummary::todoCount},
    {"doneCount", &TreeSummary::doneCount},
    {"spaceIndentedLineCount", &TreeSummary::spaceIndentedLineCount},
    {"tabIndentedLineCount", &TreeSummary::tabIndentedLineCount},
};

} // namespace

std::string summaryLine(const std::string& file, std::u16string_view text, Ondo::RuleConfig::RuleSet rules) {
    const Ondo::Tree tree(std::u16string(text), rules);
    const TreeSummary summary(tree);
    std::string line = R"({"file":)" + jsonOf(Ondo::Util::utf16(file)) + R"(,"title":)" +
                       jsonOf(summary.title) + R"(,"subtitle":)" + jsonOf(summary.subtitle) + R"(,"tags":)" +
                       jsonOf(sortedTags(summary)) + R"(,"links":)" + jsonOf(summary.links) +
                       R"(,"wikiLinks":)" + jsonOf(summary.wikiLinks);
    for (const auto& [key, count] : counts)
        line += R"(,")" + std::string(key) + R"(":)" + std::to_string(summary.*count);
    return line + "}\n";
}

} // namespace Cli
