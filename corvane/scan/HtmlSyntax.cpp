#include "corvane/scan/HtmlSyntax.h"

namespace Ondo::HtmlSyntax {

namespace {

constexpr Predicate::Function<isLetter> letter{};

constexpr bool isTagNameCharacter(char32_t c) {
    return isLetterOrDigit(c) || c == U'-';
}
constexpr bool isAttributeNameStart(char32_t c) {
    return isLetter(c) || c == U'_' || c == U':';
}
constexpr bool isAttributeNameCharacter(char32_t c) {
    return isAttributeNameStart(c) || isLetterOrDigit(c) || c == U'.' || c == U'-';
}
constexpr bool isUnquotedValueCharacter(char32_t c) {
    return !Predicate::isSpaceOrTab(c) && !Predicate::isLineEndingCharacter(c) && c != U'"' && c != U'\'' &&
           c != U'=' && c != U'<' && c != U'>' && c != U'`';
}

void skip(Go& go, char16_t c) {
    go.nextMatch(Go::character(c), 1, 1);
}

/// Blanks with at most one line ending.
void matchOptionalSpacing(GoLines& go) {
    go.nextWhile(Go::spaceOrTab);
    go.nextWhileLineEnding(1);
    go.nextWhile(Go::spaceOrTab);
}

bool matchRequiredSpacing(GoLines& go) {
    const std::int64_t start = go.pos();
    matchOptionalSpacing(go);
    return go.pos() != start;
}

void matchTagName(GoLines& go) {
    go.nextMatch(letter, 1, 1);
    go.nextWhile(isTagNameCharacter);
}

/// Up to behind the first `end`, across lines.
void matchThrough(GoLines& go, std::u16string_view end) {
    const char16_t first = end[0];
    while (!go.hasFailed()) {
        go.nextWhile(Go::no(Go::character(first)));
        if (go.isNextString(end)) {
            go.nextMatchString(end);
            return;
        }
        if (go.pos() < go.maxPos())
            go.setPos(go.pos() + 1);
        else if (const std::int64_t line = go.currentLine();
                 go.nextWhileLineEnding(1), go.currentLine() == line)
            go.setPos(Go::NoPos);
    }
}

void matchQuotedAttributeValue(GoLines& go) {
    const char16_t quote[] = {go.unsafePeekNextCharacter(), u'\0'};
    go.setPos(go.pos() + 1);
    matchThrough(go, quote);
}

void matchAttributeValue(GoLines& go) {
    if (go.isNext(Go::characterAnyOf(u"\"'")))
        matchQuotedAttributeValue(go);
    else
        go.nextMatch(isUnquotedValueCharacter, 1, Go::NoLimit);
}

/// The part from "=" on, which may be missing.
void matchAttributeValueSpec(GoLines& go) {
    GoLines tried = go;
    matchOptionalSpacing(tried);
    if (!tried.isNext(Go::character(u'='))) return;
    skip(tried, u'=');
    matchOptionalSpacing(tried);
    matchAttributeValue(tried);
    go = tried;
}

/// Attributes, each behind spacing, and the spacing behind the last.
void matchAttributes(GoLines& go) {
    while (matchRequiredSpacing(go) && go.isNext(isAttributeNameStart)) {
        go.nextWhile(isAttributeNameCharacter);
        matchAttributeValueSpec(go);
    }
}

} // namespace

void matchOpenOrCloseTag(GoLines& go) {
    skip(go, u'<');
    const bool isClosing = go.isNext(Go::character(u'/'));
    if (isClosing) skip(go, u'/');
    matchTagName(go);
    if (go.hasFailed()) return;
    if (isClosing) {
        matchOptionalSpacing(go);
    } else {
        matchAttributes(go);
        go.nextWhile(Go::character(u'/'), 1);
    }
    skip(go, u'>');
}

void matchComment(GoLines& go) {
    go.nextMatchString(u"<!--");
    for (const std::u16string_view close : {u">", u"->", u"-->"}) {
        if (!go.isNextString(close)) continue;
        go.nextMatchString(close);
        return;
    }
    while (!go.hasFailed()) {
        matchThrough(go, u"-->");
        const bool isBehindDash = !go.hasFailed() && go.isWithOffset(-4, Go::character(u'-'));
        if (!isBehindDash) return;
    }
}

void matchProcessingInstruction(GoLines& go) {
    go.nextMatchString(u"<?");
    matchThrough(go, u"?>");
}

void matchDeclaration(GoLines& go) {
    go.nextMatchString(u"<!");
    go.nextMatch(letter, 1, 1);
    matchThrough(go, u">");
}

void matchCData(GoLines& go) {
    go.nextMatchString(u"<![CDATA[");
    matchThrough(go, u"]]>");
}

} // namespace Ondo::HtmlSyntax
