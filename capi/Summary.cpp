#include <utility>

#include "capi/Arguments.h"
#include "capi/Handles.h"

using namespace CApi;

// The layout that corvane.h promises where 64-bit numbers are aligned to their size.
static_assert(alignof(std::int64_t) != 8 || sizeof(corvane_wikilink) == 40);
static_assert(sizeof(corvane_summary_counts) == 40);

namespace {

corvane_status giveText(const corvane_summary* summary, const std::u16string CVNTextSummary::*member,
                        const corvane_unit** text, std::int64_t* length) {
    if (!summary || !text || !length) return CORVANE_ERROR_NULL;
    const std::u16string& found = summary->summary.*member;
    *text = found.c_str();
    *length = std::ssize(found);
    return CORVANE_OK;
}

corvane_status giveList(const corvane_summary* summary, const corvane_strings corvane_summary::*member,
                        const corvane_strings** list) {
    if (!summary || !list) return CORVANE_ERROR_NULL;
    *list = &(summary->*member);
    return CORVANE_OK;
}

} // namespace

corvane_summary::corvane_summary(CVNTextSummary summary_) : summary(std::move(summary_)) {
    tags.texts.assign(summary.tags.begin(), summary.tags.end());
    links.texts = std::move(summary.links);
    for (const CVNTextSummaryWikiLink& link : summary.wikiLinks)
        titles.texts.push_back(link.decodedTitle().value_or(std::u16string()));
    for (std::size_t i = 0; i < titles.texts.size(); ++i) {
        const CVNTextSummaryWikiLink& link = summary.wikiLinks[i];
        const std::u16string& title = titles.texts[i];
        wikilinks.push_back(
            {link.title.c_str(), std::ssize(link.title), title.c_str(), std::ssize(title), link.offset});
    }
}

corvane_status corvane_note_summary(const corvane_note* note, corvane_summary** summary) {
    if (!note || !summary) return CORVANE_ERROR_NULL;
    *summary = new corvane_summary(note->ast.textSummary());
    return CORVANE_OK;
}

void corvane_summary_destroy(corvane_summary* summary) {
    delete summary;
}

corvane_status corvane_summary_title(const corvane_summary* summary, const corvane_unit** text,
                                     int64_t* length) {
    return giveText(summary, &CVNTextSummary::title, text, length);
}

corvane_status corvane_summary_subtitle(const corvane_summary* summary, const corvane_unit** text,
                                        int64_t* length) {
    return giveText(summary, &CVNTextSummary::subtitle, text, length);
}

corvane_status corvane_summary_tags(const corvane_summary* summary, const corvane_strings** tags) {
    return giveList(summary, &corvane_summary::tags, tags);
}

corvane_status corvane_summary_links(const corvane_summary* summary, const corvane_strings** links) {
    return giveList(summary, &corvane_summary::links, links);
}

corvane_status corvane_summary_wikilinks(const corvane_summary* summary, const corvane_wikilink** wikilinks,
                                         int64_t* count) {
    if (!summary || !wikilinks || !count) return CORVANE_ERROR_NULL;
    *wikilinks = summary->wikilinks.data();
    *count = std::ssize(summary->wikilinks);
    return CORVANE_OK;
}

corvane_status corvane_summary_count(const corvane_summary* summary, corvane_summary_counts* counts) {
    if (!summary || !counts) return CORVANE_ERROR_NULL;
    const CVNTextSummary& found = summary->summary;
    *counts = {found.codeBlockCount, found.todoCount, found.doneCount, found.spaceIndentedLineCount,
               found.tabIndentedLineCount};
    return CORVANE_OK;
}
