#include "corvane/analysis/CVNWikiLink.h"

#include <algorithm>

#include "corvane/analysis/TextStatistics.h"
#include "corvane/client/CVNAST.h"
#include "corvane/inline/Segments.h"
#include "corvane/operation/OperationUpdateWikiLinks.h"
#include "corvane/scan/Util.h"

using CVN::TextStatistics;
using CVN::Operation::UpdateWikiLinks;
using Ondo::Node;

namespace {

/// In these nothing is offered. A bare URL or mail address is text like any other.
constexpr Ondo::NodeType forbidden[] = {Ondo::ONDO_HASHTAG_NODE, Ondo::ONDO_IMAGE_NODE, Ondo::ONDO_LINK_NODE,
                                        Ondo::ONDO_WIKILINK_NODE, Ondo::ONDO_AUTOLINK_NODE};

bool isForbidden(const Node* node) {
    return std::find(std::begin(forbidden), std::end(forbidden), node->type) != std::end(forbidden);
}

bool isFree(std::u16string_view string, std::int64_t offset) {
    const Ondo::Tree tree{std::u16string(string), Ondo::RuleConfig::Extended};
    const Node* const node = tree.nodeAtOffset(offset, Ondo::LevelSetting::Leaf);
    return !node || !(isForbidden(node) || node->hasAncestorWhere(isForbidden));
}

/// Where the character before `offset` begins, both halves of a pair taken together; -1 at the start.
std::int64_t characterBefore(std::u16string_view string, std::int64_t offset) {
    const std::int64_t pair = offset - 2;
    const bool isPair = pair >= 0 && Ondo::Util::codePointAt(string, pair) >= 0x10000;
    return isPair ? pair : offset - 1;
}

/// Whether a word may end at that place between two characters.
bool isBetweenWords(std::u16string_view string, std::int64_t offset) {
    return offset == 0 || offset == std::ssize(string) || TextStatistics::isWordSeparator(string, offset) ||
           TextStatistics::isWordSeparator(string, characterBefore(string, offset));
}

std::u16string inBrackets(std::u16string_view content) {
    return std::u16string(u"[[").append(content).append(u"]]");
}

} // namespace

std::u16string CVNWikiLink::encodeSegment(std::u16string_view segment) {
    return Ondo::Segments::encode({std::u16string(segment)});
}

std::u16string CVNWikiLink::encodeTitle(std::u16string_view title) {
    return UpdateWikiLinks::encodedSegmentsToMarkdown(encodeSegment(title));
}

std::u16string CVNWikiLink::wikiLinkStringForTitle(std::u16string_view title) {
    return inBrackets(encodeTitle(title));
}

std::u16string CVNWikiLink::wikiLinkStringForTitle(std::u16string_view title, std::u16string_view alias) {
    if (alias.empty()) return wikiLinkStringForTitle(title);
    return inBrackets(encodeTitle(title) + u'|' + encodeTitle(alias));
}

std::u16string CVNWikiLink::wikiLinkStringForTitleAndHeader(std::u16string_view title,
                                                            std::u16string_view header) {
    return inBrackets(encodeTitle(title) + u'/' + encodeTitle(header));
}

std::vector<std::u16string> CVNWikiLink::componentsForWikiLink(std::u16string_view wikiLink) {
    std::vector<std::u16string> components;
    for (std::u16string& segment : Ondo::Segments::decode(wikiLink)) {
        if (components.size() < 2)
            components.push_back(std::move(segment));
        else
            components.back().append(u"/").append(segment);
    }
    return components;
}

std::optional<std::u16string> CVNWikiLink::decodeTitleForWikiLink(std::u16string_view wikiLink) {
    std::vector<std::u16string> segments = Ondo::Segments::decode(wikiLink);
    if (segments.empty()) return std::nullopt;
    return std::move(segments.front());
}

std::vector<std::u16string> CVNWikiLink::decodeTitlesForWikiLinks(std::span<const std::u16string> wikiLinks) {
    std::vector<std::u16string> titles;
    for (const std::u16string& wikiLink : wikiLinks)
        titles.push_back(decodeTitleForWikiLink(wikiLink).value_or(std::u16string()));
    return titles;
}

std::u16string CVNWikiLink::decodeWikiLink(std::u16string_view wikiLink) {
    return UpdateWikiLinks::decodedSegmentsFromMarkdown(wikiLink);
}

std::u16string CVNWikiLink::updateWikiLinkWithTitle(std::u16string_view title, std::u16string_view to,
                                                    bool skipInTitle, std::u16string_view string) {
    CVNAST note = CVNAST::fromMarkdown(string);
    note.applyTextOperationResults(
        note.updateWikiLinks(encodeSegment(title), encodeSegment(to), skipInTitle, {0, 0}));
    return std::u16string(note.markdown());
}

bool CVNWikiLink::validateImplictBacklinkForRange(CVNRange range, std::u16string_view string) {
    const std::int64_t length = std::ssize(string);
    const bool isStretch = range.location >= 0 && range.length > 0 && range.location < length &&
                           range.length <= length - range.location;
    return isStretch && isBetweenWords(string, range.location) && isBetweenWords(string, range.end()) &&
           isFree(string, range.location);
}
