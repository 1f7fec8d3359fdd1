// The dialect on one page: the rules in order of precedence, what terminates what, and the options by rule
// set. A construct is added as one file under block/ or inline/ and one row here.

#include "corvane/tree/RuleConfig.h"

#include <algorithm>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/BlankLine.h"
#include "corvane/block/BlockQuote.h"
#include "corvane/block/Callout.h"
#include "corvane/block/FencedCode.h"
#include "corvane/block/IndentedCode.h"
#include "corvane/block/List.h"
#include "corvane/block/MathBlock.h"
#include "corvane/block/Paragraph.h"
#include "corvane/block/SetextHeading.h"
#include "corvane/block/ThematicBreak.h"

namespace Ondo {

namespace {

using Sets = unsigned;

constexpr Sets in(RuleConfig::RuleSet set) {
    return 1U << static_cast<unsigned>(set);
}

constexpr Sets C = in(RuleConfig::Commonmark);
constexpr Sets E = in(RuleConfig::Extended);
constexpr Sets S = in(RuleConfig::Simplified);

template <class Rule>
std::shared_ptr<BlockRule> block() {
    return std::make_shared<Rule>();
}

/// A rule of the dialect. A row without a maker is a place in the order that no rule has taken yet.
template <class Base>
struct RuleRow {
    std::string_view name;
    Sets sets;
    std::shared_ptr<Base> (*make)();
};

constexpr RuleRow<BlockRule> blockRows[] = {
    {"IndentedCode", C | E, block<Block::IndentedCode>},
    {"Yaml", E | S, nullptr},
    {"Table", E | S, nullptr},
    {"FencedCode", C | E | S, block<Block::FencedCode>},
    {"MathBlock", E | S, block<Block::MathBlock>},
    {"SetextHeading", C | E, block<Block::SetextHeading>},
    {"ThematicBreak", C | E | S, block<Block::ThematicBreak>},
    {"AtxHeading", C | E | S, block<Block::AtxHeading>},
    {"List", C | E | S, block<Block::List>},
    {"FootnoteDefinition", E | S, nullptr},
    {"LinkReferenceDefinition", C | E | S, nullptr},
    {"HtmlBlock", C | E | S, nullptr},
    {"BlockQuote", C | E | S, block<Block::BlockQuote>},
    {"Callout", E | S, block<Block::Callout>},
    {"Paragraph", C | E | S, block<Block::Paragraph>},
    {"BlankLine", C | E | S, block<Block::BlankLine>},
};

constexpr RuleRow<InlineRule> inlineRows[] = {
    {"HardLineBreak", C | E | S, nullptr},
    {"BackslashEscape", C | E | S, nullptr},
    {"Url", E | S, nullptr},
    {"Email", E | S, nullptr},
    {"Entity", C | E | S, nullptr},
    {"CodeSpan", C | E | S, nullptr},
    {"MathSpan", E | S, nullptr},
    {"Autolink", C | E | S, nullptr},
    {"Folding", E | S, nullptr},
    {"RawHtml", C | E | S, nullptr},
    {"Wikilink", E | S, nullptr},
    {"FootnoteReference", E | S, nullptr},
    {"Image", C | E | S, nullptr},
    {"Link", C | E | S, nullptr},
    {"EmphaseStrong", C | E | S, nullptr},
    {"Highlight", E | S, nullptr},
    {"UnderlineStrikethrough", E | S, nullptr},
    {"Color", E | S, nullptr},
    {"Hashtag", E | S, nullptr},
    {"Replace", E | S, nullptr}, // "<-" by "←"
    {"Replace", E | S, nullptr}, // "->" by "→"
};

constexpr RuleRow<InlineRule> attributeRows[] = {
    {"BackslashEscape", C | E | S, nullptr},
    {"Entity", C | E | S, nullptr},
};

/// `rule` ends where one of `terminating` begins, tried in this order.
struct TerminatingRow {
    std::string_view rule;
    Sets sets;
    std::string_view terminating;
};

constexpr TerminatingRow terminatingRows[] = {
    {"List", C | E | S, "AtxHeading ThematicBreak BlockQuote FencedCode"},
    {"List", E | S, "Table MathBlock"},
    {"BlockQuote", C | E | S, "AtxHeading ThematicBreak List FencedCode HtmlBlock"},
    {"BlockQuote", E | S, "Table MathBlock"},
    {"SetextHeading", C | E | S, "AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock"},
    {"SetextHeading", E | S, "Table MathBlock"},
    {"Paragraph", C | E | S, "SetextHeading AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock"},
    {"Paragraph", E | S, "Table MathBlock"},
    {"Paragraph", S, "LinkReferenceDefinition FootnoteDefinition"},
    {"LinkReferenceDefinition", C | E | S,
     "SetextHeading AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock"},
    {"LinkReferenceDefinition", E | S, "Table MathBlock"},
    {"Table", E | S, "IndentedCode"},
    {"MathBlock", E | S, "IndentedCode"},
};

template <auto Option>
struct OptionOf;
template <class Rule, bool Rule::*Option>
struct OptionOf<Option> {
    static void set(RuleBase& rule) { static_cast<Rule&>(rule).*Option = true; }
};

/// An option that is off but for these rule sets.
struct OptionRow {
    std::string_view rule;
    Sets sets;
    void (*set)(RuleBase&);
};

constexpr OptionRow optionRows[] = {
    {"AtxHeading", E | S, OptionOf<&Block::AtxHeading::requiresSpaceAtLineEnd>::set},
    {"SetextHeading", E | S, OptionOf<&Block::SetextHeading::rejectsSingleDash>::set},
    {"ThematicBreak", E | S, OptionOf<&Block::ThematicBreak::rejectsEmphasisLookalikes>::set},
    {"List", E | S, OptionOf<&Block::List::tasks>::set},
    {"List", E | S, OptionOf<&Block::List::markerNeedsBlank>::set},
    {"List", E | S, OptionOf<&Block::List::emptyItemInterruptsParagraph>::set},
    {"List", E | S, OptionOf<&Block::List::anyNumberInterruptsParagraph>::set},
    {"List", S, OptionOf<&Block::List::noLazyContinuation>::set},
    {"List", S, OptionOf<&Block::List::tabContinuesItem>::set},
    {"BlockQuote", S, OptionOf<&Block::BlockQuote::noLazyContinuation>::set},
};

template <class Rules>
auto findByName(const Rules& rules, std::string_view name) {
    return std::find_if(rules.begin(), rules.end(),
                        [name](const auto& rule) { return rule->type_name() == name; });
}

template <class Map, class Row, std::size_t N>
void fill(Map& map, const Row (&rows)[N], Sets set) {
    for (const Row& row : rows)
        if ((row.sets & set) && row.make) map.addRule(row.make());
}

void addTerminatingRules(const BlockRuleMap& map, const TerminatingRow& row) {
    const auto& all = map.getAllBlockRules();
    const auto rule = findByName(all, row.rule);
    if (rule == all.end()) return;
    for (std::string_view rest = row.terminating; !rest.empty();) {
        const std::size_t length = std::min(rest.find(' '), rest.size());
        const auto terminating = findByName(all, rest.substr(0, length));
        if (terminating != all.end()) (*rule)->terminatingRules.addRule(*terminating);
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
}

template <class Map>
void setOption(const Map& map, const OptionRow& row) {
    for (const auto& rule : map.getAllRules())
        if (rule->type_name() == row.rule) row.set(*rule);
}

template <class Map>
bool removeFrom(Map& map, std::string_view name) {
    const auto& all = map.getAllRules();
    const auto found = findByName(all, name);
    if (found == all.end()) return false;
    const auto rule = *found; // the map's own pointer goes
    map.removeRule(rule);
    return true;
}

} // namespace

RuleConfig::RuleConfig(RuleSet ruleSet) {
    const Sets set = in(ruleSet);
    fill(blockRules, blockRows, set);
    fill(inlineRules, inlineRows, set);
    fill(attributeRules, attributeRows, set);
    for (const TerminatingRow& row : terminatingRows)
        if (row.sets & set) addTerminatingRules(blockRules, row);
    for (const OptionRow& row : optionRows) {
        if (!(row.sets & set)) continue;
        setOption(blockRules, row);
        setOption(inlineRules, row);
    }
}

RuleConfig::RuleConfig(RuleConfig&& other) noexcept = default;

RuleConfig& RuleConfig::operator=(RuleConfig&& other) noexcept {
    releaseRules();
    blockRules = std::move(other.blockRules);
    inlineRules = std::move(other.inlineRules);
    attributeRules = std::move(other.attributeRules);
    connectionGroups = std::move(other.connectionGroups);
    return *this;
}

RuleConfig::~RuleConfig() {
    releaseRules();
}

/// Rules end each other, so that their terminating rules hold pointers in a circle.
void RuleConfig::releaseRules() {
    for (const auto& rule : blockRules.getAllBlockRules())
        rule->terminatingRules.clear();
}

std::shared_ptr<RuleBase> RuleConfig::ruleInstanceByName(std::string_view name) const {
    const auto& blocks = blockRules.getAllBlockRules();
    if (const auto rule = findByName(blocks, name); rule != blocks.end()) return *rule;
    for (const InlineRuleMap* map : {&inlineRules, &attributeRules})
        if (const auto rule = findByName(map->getAllRules(), name); rule != map->getAllRules().end())
            return *rule;
    return nullptr;
}

void RuleConfig::removeRuleByName(std::string_view name) {
    removeFrom(blockRules, name);
    removeFrom(inlineRules, name);
    removeFrom(attributeRules, name);
}

std::set<LabeledNode*> RuleConfig::nodesWithIndirectChange() const {
    std::set<LabeledNode*> nodes;
    for (const LabeledConnections* group : connectionGroups)
        nodes.insert(group->changedNodes.begin(), group->changedNodes.end());
    return nodes;
}

void RuleConfig::resetIndirectChangeTracking() {
    for (LabeledConnections* group : connectionGroups)
        group->resetIndirectChangeTracking();
}

} // namespace Ondo
