#include "corvane/client/CVNAST.h"

#include <utility>

#include "corvane/scan/Util.h"

Ondo::RuleConfig::RuleSet CVNAST::ruleSet = Ondo::RuleConfig::Extended;
void (*CVNAST::log)(std::u16string_view text) = nullptr;

namespace {

/// Edits with at most so many unchanged units between them are parsed as one.
constexpr std::int64_t maximumBatchGap = 3000;

std::u16string address(const void* pointer) {
    std::u16string digits;
    for (auto rest = reinterpret_cast<std::uintptr_t>(pointer); rest != 0; rest >>= 4)
        digits.insert(digits.begin(), u"0123456789abcdef"[rest & 0xF]);
    return u"0x" + digits;
}

} // namespace

void CVNAST::logRange(std::u16string_view what, CVNRange range) {
    if (!log) return;
    std::u16string text(what);
    text += u" {" + Ondo::Util::toString(range.location) + u", " + Ondo::Util::toString(range.length) + u'}';
    log(text);
}

void CVNAST::setUsesSimplifiedRuleSet(bool usesSimplifiedRuleSet) {
    ruleSet = usesSimplifiedRuleSet ? Ondo::RuleConfig::Simplified : Ondo::RuleConfig::Extended;
}

CVNAST::CVNAST()
    : ast(std::make_unique<Ondo::Tree>(std::u16string(), ruleSet)),
      replaceBatch(std::make_unique<Ondo::ReplaceBatch>()) {}

CVNAST CVNAST::fromMarkdown(std::u16string_view markdown) {
    CVNAST note;
    note.replaceRange({0, 0}, markdown);
    return note;
}

CVNAST::CVNAST(CVNAST&& other) noexcept = default;
CVNAST& CVNAST::operator=(CVNAST&& other) noexcept = default;
CVNAST::~CVNAST() = default;

std::u16string_view CVNAST::markdownForNode(const CVNASTNode& node) const {
    return ast->markdownForNode(node.node);
}

CVNASTNode CVNAST::rootNode() const {
    return *CVNASTNode::nodeForASTNode(ast->root.get());
}

std::u16string CVNAST::description() const {
    std::u16string text = u"<CVNAST: " + address(this) + u">\n";
    text += markdown();
    return text + u"\n.\n" + ast->toIndentedTree();
}

CVNRange CVNAST::replaceAllWithMarkdown(std::u16string_view markdown) {
    return replaceRange({0, markdownLength()}, markdown);
}

CVNRange CVNAST::replaceRange(CVNRange range, std::u16string_view markdown) {
    const std::vector<Ondo::Range> redraw = ast->replace(range.coreRange(), markdown);
    Ondo::Range all = redraw.front();
    for (const Ondo::Range& each : redraw) {
        logRange(u"Corvane parse subrange", CVNRange::of(each));
        all = Ondo::Range::unite(all, each);
    }
    logRange(u"Corvane parse range", CVNRange::of(all));
    return extendReparsedRange(CVNRange::of(all));
}

void CVNAST::batchReplaceRange(CVNRange range, std::u16string_view markdown) {
    replaceBatch->add(range.coreRange(), std::u16string(markdown));
}

CVNRange CVNAST::batchReplaceCommit() {
    if (replaceBatch->empty()) return CVNRange::notFound();
    const std::vector<Ondo::Replacement> merged = replaceBatch->merge(*ast, maximumBatchGap);
    for (const Ondo::Replacement& each : merged)
        ast->replaceDeferSync(each.range, each.replacement, false);
    replaceBatch->clear();
    const std::vector<Ondo::RangePair> pairs = ast->sync();
    Ondo::Range all = pairs.front().redrawRange;
    for (const Ondo::RangePair& pair : pairs)
        all = Ondo::Range::unite(all, pair.redrawRange);
    return extendReparsedRange(CVNRange::of(all));
}

void CVNAST::setParseInlinesOnly(bool inlinesOnly) {
    parseInlinesOnly = inlinesOnly;
    if (inlinesOnly) disableMath();
}

void CVNAST::disableMath() {
    ast->removeRuleByName("MathBlock");
    ast->removeRuleByName("MathSpan");
}
