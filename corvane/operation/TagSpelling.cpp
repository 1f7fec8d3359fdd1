#include "corvane/operation/TagSpelling.h"

#include <memory>
#include <span>

#include "corvane/block/Paragraph.h"
#include "corvane/inline/BackslashEscape.h"
#include "corvane/inline/Entity.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
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
        Always,    ///< it ends a tag, or the cell of a table
        IfGuarded, ///< it closes what began before the tag
        IfNeeded   ///< it stands in the way in some names
    } when;
    std::u16string_view text;
};

constexpr Escape escapes[] = {
    {u'#', Escape::Always, u"\\#"},        {u'|', Escape::Always, u"\\|"},
    {u'`', Escape::IfGuarded, u"&grave;"}, {u'$', Escape::IfGuarded, u"\\$"},
    {u'>', Escape::IfGuarded, u"&gt;"},    {u'&', Escape::IfNeeded, u"\\&"},
    {u'(', Escape::IfNeeded, u"\\("},      {u')', Escape::IfNeeded, u"\\)"},
    {u'{', Escape::IfNeeded, u"\\{"},      {u'}', Escape::IfNeeded, u"\\}"},
    {u'[', Escape::IfNeeded, u"\\["},      {u']', Escape::IfNeeded, u"\\]"},
    {u'<', Escape::IfNeeded, u"\\<"},      {u'\n', Escape::IfNeeded, u"&NewLine;"},
};

const Escape* escapeOf(char16_t c) {
    for (const Escape& escape : escapes)
        if (escape.character == c) return &escape;
    return nullptr;
}

std::u16string escaped(std::u16string_view encoded, bool isGuarded, bool isNeeded) {
    const bool isOn[] = {true, isGuarded, isNeeded};
    std::u16string text;
    for (const char16_t c : encoded) {
        const Escape* const escape = escapeOf(c);
        if (escape && isOn[escape->when])
            text += escape->text;
        else
            text += c;
    }
    return text;
}

/// What stands around a name, the plainest first. A slash at an end adds no segment, and keeps apart what may
/// not stand next to a marker.
struct Markers {
    std::u16string_view open;
    std::u16string_view close;
};

constexpr Markers plainMarkers[] = {{u"#", u""}, {u"#", u"#"}};
constexpr Markers slashMarkers[] = {{u"#", u"/"}, {u"#", u"/#"}, {u"#/", u"#"}, {u"#/", u"/#"}};

} // namespace

bool hasClosingCharacter(std::u16string_view encoded) {
    return encoded.find_first_of(u"`$>") != std::u16string_view::npos;
}

bool hasOpeningCharacter(std::u16string_view text) {
    return text.find_first_of(u"`$<") != std::u16string_view::npos;
}

bool isSpelling(std::u16string_view text, std::u16string_view encoded, const TagPlace& place) {
    std::u16string line = place.before;
    const auto start = static_cast<std::int64_t>(line.size());
    line += text;
    const auto end = static_cast<std::int64_t>(line.size());
    return TagReader().isTag(line += place.behind, start, end, encoded);
}

std::u16string tagSpelling(std::u16string_view path, const TagPlace& place) {
    const std::u16string encoded = Ondo::Segments::encode(Ondo::Segments::decode(path));
    const auto firstThatFits = [&](std::span<const Markers> markers) {
        for (const int level : {0, 1, 2}) {
            const std::u16string name = escaped(encoded, place.isGuarded || level == 2, level > 0);
            for (const Markers& each : markers) {
                std::u16string text = std::u16string(each.open) + name + std::u16string(each.close);
                if (isSpelling(text, encoded, place)) return text;
            }
        }
        return std::u16string();
    };
    if (encoded.empty() || static_cast<std::int64_t>(encoded.size()) > longestTag) return {};
    const std::u16string plain = firstThatFits(plainMarkers);
    return plain.empty() ? firstThatFits(slashMarkers) : plain;
}

} // namespace CVN::Operation
