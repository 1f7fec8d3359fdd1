#include "corvane/operation/TagSpelling.h"

#include <algorithm>
#include <memory>

#include "corvane/block/Paragraph.h"
#include "corvane/inline/BackslashEscape.h"
#include "corvane/inline/Entity.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/scan/Lines.h"
#include "corvane/tree/InlineParser.h"

namespace CVN::Operation {

namespace {

/// Reads a text as a tag, with no other rule that could take it away.
class TagReader {
public:
    TagReader() {
        attributeRules_.addRule(std::make_shared<Ondo::Inline::BackslashEscape>());
        attributeRules_.addRule(std::make_shared<Ondo::Inline::Entity>());
    }

    /// Whether a tag of that path stands from `start` to `end`.
    bool isTag(std::u16string_view text, std::int64_t start, std::int64_t end, std::u16string_view encoded) {
        Ondo::Lines lines(text);
        Ondo::InlineParserNode parser(text, lines, none_, attributeRules_);
        const auto length = static_cast<std::int64_t>(text.size());
        const auto content = std::make_unique<Ondo::Block::ParagraphNode>(0, length, 0, 1);
        Ondo::GoLines cursor(text, lines, 0, 0);
        if (cursor.to(start).hasFailed() || !cursor.isNext(Ondo::Go::character(u'#'))) return false;
        if (rule_.match(parser, content.get(), cursor) != end) return false;
        const auto* const tag = static_cast<const Ondo::Inline::HashtagNode*>(content->lastChild);
        return tag->encodedSegments() == encoded;
    }

private:
    Ondo::InlineRuleMap none_;
    Ondo::InlineRuleMap attributeRules_;
    Ondo::Inline::Hashtag rule_;
};

/// How a character of a name is written where it can't stand for itself.
struct Escape {
    char16_t character;
    enum When {
        Always,   ///< it ends a tag
        IfNeeded, ///< it stands in the way in some names
        IfGuarded ///< it closes what began before the tag, or ends the cell of a table
    } when;
    std::u16string_view text;
};

constexpr Escape escapes[] = {
    {u'#', Escape::Always, u"\\#"},        {u'&', Escape::IfNeeded, u"\\&"},
    {u'[', Escape::IfNeeded, u"\\["},      {u']', Escape::IfNeeded, u"\\]"},
    {u'<', Escape::IfNeeded, u"\\<"},      {u'|', Escape::IfGuarded, u"\\|"},
    {u'`', Escape::IfGuarded, u"&grave;"}, {u'$', Escape::IfGuarded, u"\\$"},
    {u'>', Escape::IfGuarded, u"&gt;"},    {u')', Escape::IfGuarded, u"\\)"},
    {u'"', Escape::IfGuarded, u"\\\""},    {u'\'', Escape::IfGuarded, u"\\'"},
};

const Escape* escapeOf(char16_t c) {
    for (const Escape& escape : escapes)
        if (escape.character == c) return &escape;
    return nullptr;
}

std::u16string escaped(std::u16string_view encoded, Escape::When level) {
    std::u16string text;
    for (const char16_t c : encoded) {
        const Escape* const escape = escapeOf(c);
        if (escape && escape->when <= level)
            text += escape->text;
        else
            text += c;
    }
    return text;
}

} // namespace

bool isClosing(std::u16string_view encoded) {
    return std::any_of(encoded.begin(), encoded.end(), [](char16_t c) {
        const Escape* const escape = escapeOf(c);
        return c == u']' || (escape && escape->when == Escape::IfGuarded);
    });
}

bool isSpelling(std::u16string_view text, std::u16string_view encoded, const TagPlace& place) {
    std::u16string line = place.before;
    const auto start = static_cast<std::int64_t>(line.size());
    line += text;
    const auto end = static_cast<std::int64_t>(line.size());
    return TagReader().isTag(line += place.behind, start, end, encoded);
}

std::vector<std::u16string> tagSpellings(std::u16string_view encoded, bool isGuarded) {
    std::vector<std::u16string> spellings;
    if (encoded.empty() || static_cast<std::int64_t>(encoded.size()) > longestTag) return spellings;
    if (encoded.find_first_of(u"\r\n") != std::u16string_view::npos) return spellings;
    for (const Escape::When level : {Escape::Always, Escape::IfNeeded, Escape::IfGuarded}) {
        if (isGuarded && level != Escape::IfGuarded) continue;
        const std::u16string text = u'#' + escaped(encoded, level);
        if (!spellings.empty() && text == *(spellings.end() - 2)) continue;
        spellings.push_back(text);
        spellings.push_back(text + u'/');
    }
    return spellings;
}

} // namespace CVN::Operation
