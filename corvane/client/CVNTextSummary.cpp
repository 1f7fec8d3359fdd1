#include "corvane/client/CVNTextSummary.h"

#include <string_view>

#include "corvane/analysis/TreeSummary.h"
#include "corvane/client/ValueText.h"

using CVN::ValueText::unsignedString;

namespace {

const std::u16string& shown(const std::u16string& text) {
    return text;
}
std::u16string shown(const CVNTextSummaryWikiLink& link) {
    return link.description();
}

/// One a line.
template <class T>
std::u16string listed(const T& elements) {
    std::u16string text;
    std::u16string_view separator;
    for (const auto& element : elements) {
        text.append(separator).append(shown(element));
        separator = u"\n";
    }
    return text;
}

} // namespace

CVNTextSummary::CVNTextSummary(const CVN::TreeSummary& summary)
    : title(summary.title), subtitle(summary.subtitle), tags(summary.tags.begin(), summary.tags.end()),
      links(summary.links), codeBlockCount(summary.codeBlockCount), todoCount(summary.todoCount),
      doneCount(summary.doneCount), spaceIndentedLineCount(summary.spaceIndentedLineCount),
      tabIndentedLineCount(summary.tabIndentedLineCount) {
    wikiLinks.reserve(summary.wikiLinks.size());
    for (const CVN::TreeSummary::WikiLink& link : summary.wikiLinks)
        wikiLinks.push_back(CVNTextSummaryWikiLink::wikiLinkWithTitle(link.title, link.offset));
}

std::u16string CVNTextSummary::description() const {
    return u"CVNTextSummary\ntitle: " + title + u"\nsubtitle: " + subtitle + u"\ntags: " + listed(tags) +
           u"\nlinks: " + listed(links) + u"\nwiki links: " + listed(wikiLinks) + u"\nCode block count: " +
           unsignedString(codeBlockCount) + u"\ntodo count: " + unsignedString(todoCount) +
           u"\ndone count: " + unsignedString(doneCount) + u"\nspace indented line count: " +
           unsignedString(spaceIndentedLineCount) + u"\ntab indented line count: " +
           unsignedString(tabIndentedLineCount);
}
