// Any bytes as a note and a name: what a list of notes shows of it keeps its limits, and the functions on
// texts answer a text that is parsed.
//
// The first byte chooses the rule set, the second how much of what follows is the name. The rest is the note.

#include "corvane/analysis/CVNHashtag.h"
#include "corvane/analysis/CVNWikiLink.h"
#include "corvane/analysis/FuzzySearch.h"
#include "corvane/analysis/TextStatistics.h"
#include "corvane/analysis/TreeSummary.h"
#include "corvane/client/CVNAST.h"
#include "fuzz/Bytes.h"

using namespace Ondo;
using CVN::TreeSummary;

namespace {

bool isTrimmed(std::u16string_view text) {
    return Util::trim(text, Go::unicodeWhitespace) == text;
}

std::string faultIn(const TreeSummary& summary) {
    if (std::ssize(summary.title) > TreeSummary::titleLimit) return "the title is too long";
    if (std::ssize(summary.subtitle) > TreeSummary::subtitleLimit) return "the subtitle is too long";
    if (!isTrimmed(summary.subtitle)) return "the subtitle has a blank at an end";
    for (const std::u16string& tag : summary.tags)
        if (tag.empty()) return "a tag has no name";
    return {};
}

std::string faultIn(const CVN::FuzzyMatch& match, std::u16string_view text) {
    std::int64_t last = -1;
    for (const std::int64_t index : match.indexes) {
        if (index <= last || index >= std::ssize(text)) return "an offset is out of order";
        last = index;
    }
    return match.score < 0 ? "the score is negative" : "";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Bytes bytes(data, size);
    CVNAST::ruleSet = bytes.ruleSet();
    const std::u16string name = bytes.text(bytes.size() * bytes.next() / 255);
    const std::u16string text = bytes.text(bytes.size());
    const Tree tree(text, CVNAST::ruleSet);
    Fuzz::stopIf(tree, faultIn(TreeSummary(tree)));
    Fuzz::stopIf(tree, faultIn(CVN::fuzzySearch(name, text), text));
    Fuzz::stopIf(tree, CVN::TextStatistics(text).wordsCount > text.size() ? "too many words" : "");

    const std::u16string names[] = {name};
    for (const std::u16string& changed :
         {CVNHashtag::addTagNameToTheTopOfString(name, text), CVNHashtag::removeTagName(name, text),
          CVNHashtag::renameTagName(name, u"a/b", text), CVNHashtag::escapeTagsNames(names, text),
          CVNWikiLink::updateWikiLinkWithTitle(name, u"a [b]|c", true, text)}) {
        const Tree parsed(changed, CVNAST::ruleSet);
        Fuzz::stopIf(parsed, Test::checkTree(parsed));
    }
    return 0;
}
