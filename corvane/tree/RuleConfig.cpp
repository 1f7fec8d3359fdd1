// The dialect on one page: the rules in order of precedence, what terminates what, and the options by rule
// set. A construct is added as one file under block/ or inline/ and one row here.

#include "corvane/tree/RuleConfig.h"

#include <algorithm>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/BlankLine.h"
#include "corvane/block/BlockQuote.h"
#include "corvane/block/Callout.h"
#include "corvane/block/FencedCode.h"
#include "corvane/block/FootnoteDefinition.h"
#include "corvane/block/HtmlBlock.h"
#include "corvane/block/IndentedCode.h"
#include "corvane/block/LinkReferenceDefinition.h"
#include "corvane/block/List.h"
#include "corvane/block/MathBlock.h"
#include "corvane/block/Paragraph.h"
#include "corvane/block/SetextHeading.h"
#include "corvane/block/Table.h"
#include "corvane/block/ThematicBreak.h"
#include "corvane/block/Yaml.h"
#include "corvane/inline/Autolink.h"
#include "corvane/inline/BackslashEscape.h"
#include "corvane/inline/CodeSpan.h"
#include "corvane/inline/Color.h"
#include "corvane/inline/Email.h"
#include "corvane/inline/EmphaseStrong.h"
#include "corvane/inline/Entity.h"
#include "corvane/inline/Folding.h"
#include "corvane/inline/FootnoteReference.h"
#include "corvane/inline/HardLineBreak.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Highlight.h"
#include "corvane/inline/Image.h"
#include "corvane/inline/Link.h"
#include "corvane/inline/MathSpan.h"
#include "corvane/inline/RawHtml.h"
#include "corvane/inline/Replace.h"
#include "corvane/inline/UnderlineStrikethrough.h"
#include "corvane/inline/Url.h"
#include "corvane/inline/Wikilink.h"

namespace Ondo {

namespace {

using Sets = unsigned;

constexpr Sets in(RuleConfig::RuleSet set) {
    return 1U << static_cast<unsigned>(set);
}

constexpr Sets C = in(RuleConfig::Commonmark);
constexpr Sets E = in(RuleConfig::Extended);
constexpr Sets S = in(RuleConfig::Simplified);

/// What rules of one tree share.
struct Shared {
    std::shared_ptr<Block::LinkReferenceDefinition> definitions;
    std::shared_ptr<Block::FootnoteDefinition> footnotes;
    std::shared_ptr<Inline::LinkBase::OpenerStack> openers;
};

template <class Rule>
std::shared_ptr<BlockRule> block(const Shared&) {
    return std::make_shared<Rule>();
}

/// A definition rule owns a label index, which the rules of its references share.
template <auto Member>
std::shared_ptr<BlockRule> definition(const Shared& shared) {
    return shared.*Member;
}

template <class Rule>
std::shared_ptr<InlineRule> plain(const Shared&) {
    return std::make_shared<Rule>();
}

template <class Rule>
std::shared_ptr<InlineRule> link(const Shared& shared) {
    return std::make_shared<Rule>(shared.openers, shared.definitions);
}

std::shared_ptr<InlineRule> footnoteReference(const Shared& shared) {
    return std::make_shared<Inline::FootnoteReference>(shared.footnotes);
}

std::shared_ptr<InlineRule> leftArrow(const Shared&) {
    return std::make_shared<Inline::Replace>(u"<-", u"\u2190");
}

std::shared_ptr<InlineRule> rightArrow(const Shared&) {
    return std::make_shared<Inline::Replace>(u"->", u"\u2192");
}

/// A rule of the dialect.
template <class Base>
struct RuleRow {
    Sets sets;
    std::shared_ptr<Base> (*make)(const Shared& shared);
};

constexpr RuleRow<BlockRule> blockRows[] = {
    {C | E, block<Block::IndentedCode>},
    {E | S, block<Block::Yaml>},
    {E | S, block<Block::Table>},
    {C | E | S, block<Block::FencedCode>},
    {E | S, block<Block::MathBlock>},
    {C | E, block<Block::SetextHeading>},
    {C | E | S, block<Block::ThematicBreak>},
    {C | E | S, block<Block::AtxHeading>},
    {C | E | S, block<Block::List>},
    {E | S, definition<&Shared::footnotes>},
    {C | E | S, definition<&Shared::definitions>},
    {C | E | S, block<Block::HtmlBlock>},
    {C | E | S, block<Block::BlockQuote>},
    {E | S, block<Block::Callout>},
    {C | E | S, block<Block::Paragraph>},
    {C | E | S, block<Block::BlankLine>},
};

constexpr RuleRow<InlineRule> inlineRows[] = {
    {C | E | S, plain<Inline::HardLineBreak>},
    {C | E | S, plain<Inline::BackslashEscape>},
    {E | S, plain<Inline::Url>},
    {E | S, plain<Inline::Email>},
    {C | E | S, plain<Inline::Entity>},
    {C | E | S, plain<Inline::CodeSpan>},
    {E | S, plain<Inline::MathSpan>},
    {C | E | S, plain<Inline::Autolink>},
    {E | S, plain<Inline::Folding>},
    {C | E | S, plain<Inline::RawHtml>},
    {E | S, plain<Inline::Wikilink>},
    {E | S, footnoteReference},
    {C | E | S, link<Inline::Image>},
    {C | E | S, link<Inline::Link>},
    {C | E | S, plain<Inline::EmphaseStrong>},
    {E | S, plain<Inline::Highlight>},
    {E | S, plain<Inline::UnderlineStrikethrough>},
    {E | S, plain<Inline::Color>},
    {E | S, plain<Inline::Hashtag>},
    {E | S, leftArrow},
    {E | S, rightArrow},
};

constexpr RuleRow<InlineRule> attributeRows[] = {
    {C | E | S, plain<Inline::BackslashEscape>},
    {C | E | S, plain<Inline::Entity>},
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
    {"FootnoteDefinition", E | S,
     "SetextHeading AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock Table MathBlock"},
    {"Table", E | S, "IndentedCode"},
    {"MathBlock", E | S, "IndentedCode"},
};

template <auto Option>
struct OptionOf;
template <class Rule, bool Rule::*Option>
struct OptionOf<Option> {
    static void set(RuleBase& rule) { static_cast<Rule&>(rule).*Option = true; }
};

void setLogogramFlanking(RuleBase& rule) {
    static_cast<Inline::EmphaseStrongBase&>(rule).options.logogramFlanking = true;
}

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
    {"Link", E | S, OptionOf<&Inline::LinkBase::allowUndefinedReferences>::set},
    {"Image", E | S, OptionOf<&Inline::LinkBase::allowUndefinedReferences>::set},
    {"Link", E | S, OptionOf<&Inline::LinkBase::leavesFootnotes>::set},
    {"Image", E | S, OptionOf<&Inline::LinkBase::leavesFootnotes>::set},
    {"EmphaseStrong", S, setLogogramFlanking},
    {"UnderlineStrikethrough", S, setLogogramFlanking},
    {"Highlight", S, setLogogramFlanking},
    {"Wikilink", S, OptionOf<&Inline::Wikilink::escapedPipeIsSeparator>::set},
};

template <class Rules>
auto findByName(const Rules& rules, std::string_view name) {
    return std::find_if(rules.begin(), rules.end(),
                        [name](const auto& rule) { return rule->type_name() == name; });
}

template <class Map, class Row, std::size_t N>
void fill(Map& map, const Row (&rows)[N], Sets set, const Shared& shared) {
    for (const Row& row : rows)
        if (row.sets & set) map.addRule(row.make(shared));
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

RuleConfig::RuleConfig(RuleSet ruleSet) : referencesNeedDefinitions(ruleSet == Commonmark) {
    const RuleBase::Batch batch;
    const Sets set = in(ruleSet);
    const Shared shared{std::make_shared<Block::LinkReferenceDefinition>(),
                        std::make_shared<Block::FootnoteDefinition>(), Inline::LinkBase::makeOpenerStack()};
    fill(blockRules, blockRows, set, shared);
    fill(inlineRules, inlineRows, set, shared);
    fill(attributeRules, attributeRows, set, shared);
    connectionGroups = {&shared.definitions->labeledConnections};
    if (set & (E | S)) connectionGroups.push_back(&shared.footnotes->labeledConnections);
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
    referencesNeedDefinitions = other.referencesNeedDefinitions;
    return *this;
}

RuleConfig::~RuleConfig() {
    releaseRules();
}

/// Rules end each other, so that their terminating rules hold pointers in a circle.
void RuleConfig::releaseRules() {
    const RuleBase::Batch batch;
    for (const auto& rule : blockRules.getAllBlockRules())
        rule->terminatingRules.clear();
    blockRules.clear();
    inlineRules.clear();
    attributeRules.clear();
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

std::vector<LabeledNode*> RuleConfig::nodesWithIndirectChange() const {
    std::vector<LabeledNode*> nodes;
    for (const LabeledConnections* group : connectionGroups)
        nodes.insert(nodes.end(), group->changedNodes.begin(), group->changedNodes.end());
    return nodes;
}

void RuleConfig::resetIndirectChangeTracking() {
    for (LabeledConnections* group : connectionGroups)
        group->resetIndirectChangeTracking();
}

} // namespace Ondo
