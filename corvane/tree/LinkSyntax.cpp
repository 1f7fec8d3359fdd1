#include "corvane/tree/LinkSyntax.h"

#include "corvane/scan/Escape.h"
#include "corvane/tree/Common.h"

namespace Ondo::LinkSyntax {

namespace {

bool isStop(char32_t c) {
    return c < 33 || c == 127;
}

/// To the next line. A line with nothing on it ends all that could be crossed.
bool crossLine(GoLines& go) {
    const std::int64_t line = go.currentLine();
    go.nextWhileLineEnding(1);
    return go.currentLine() != line && !go.isAtEnd();
}

void fail(GoLines& go) {
    go.setPos(Go::NoPos);
}

void finish(Span& span, const GoLines& go) {
    span.end = go.pos();
    span.lastLine = go.currentLine();
}

/// Up to `close`, which is not taken. Fails at an `open` that has its power, unless it is 0. `isBlank` tells
/// whether all in between is whitespace.
Span matchUpTo(GoLines& go, char16_t close, char16_t open, bool& isBlank) {
    Span span{go.pos(), Go::NoPos, go.currentLine(), 0};
    isBlank = true;
    while (true) {
        if (go.isAtEnd()) {
            if (crossLine(go)) continue;
            break;
        }
        const char16_t c = go.unsafePeekNextCharacter();
        if (c == close) {
            finish(span, go);
            return span;
        }
        if (c == open && open != 0) break;
        isBlank = isBlank && Go::unicodeWhitespace(c);
        if (c == u'\\')
            stepOverEscape(go);
        else
            go.step();
    }
    fail(go);
    return span;
}

Destination matchBracketed(GoLines& go) {
    go.step();
    Destination destination{{go.pos(), Go::NoPos, go.currentLine(), go.currentLine()}, true};
    while (!go.isAtEnd()) {
        const char16_t c = go.unsafePeekNextCharacter();
        if (c == u'<') break;
        if (c == u'>') {
            finish(destination.span, go);
            go.step();
            return destination;
        }
        if (c == u'\\')
            stepOverEscape(go);
        else
            go.step();
    }
    fail(go);
    return destination;
}

char16_t closerOf(char16_t opener) {
    return opener == u'(' ? u')' : opener;
}

} // namespace

Destination matchDestination(GoLines& go) {
    if (go.hasFailed() || go.isAtEnd()) {
        fail(go);
        return {};
    }
    if (go.unsafePeekNextCharacter() == u'<') return matchBracketed(go);
    return {matchBareDestination(go), false};
}

Span matchBareDestination(GoLines& go) {
    Span span{go.pos(), Go::NoPos, go.currentLine(), go.currentLine()};
    std::int64_t open = 0;
    for (; !go.isAtEnd(); go.step()) {
        const char16_t c = go.unsafePeekNextCharacter();
        if (isStop(c) || (c == u')' && open == 0)) break;
        if (c == u'(') ++open;
        if (c == u')') --open;
        // The backslash stays in the destination, the space does not.
        if (c == u'\\' && go.isWithOffset(1, Go::no(Go::character(u' ')))) go.step();
    }
    finish(span, go);
    return span;
}

Title matchTitle(GoLines& go) {
    if (!go.isNext(Go::characterAnyOf(u"\"'("))) return {};
    const char16_t opener = go.unsafePeekNextCharacter();
    go.step();
    bool isBlank = false;
    const Title title{matchUpTo(go, closerOf(opener), opener == u'(' ? opener : u'\0', isBlank), true};
    if (!go.hasFailed()) go.step();
    return title;
}

Span matchLabel(GoLines& go) {
    if (!go.isNext(Go::character(u'['))) {
        fail(go);
        return {};
    }
    go.step();
    bool isBlank = false;
    const Span label = matchUpTo(go, u']', u'[', isBlank);
    if (isBlank) fail(go);
    if (!go.hasFailed()) go.step();
    return label;
}

std::u16string labelString(std::u16string_view text, const Lines& lines, const Span& label) {
    const Go go(text);
    if (label.line == label.lastLine)
        return LabeledNode::normalizeLabel(go.substring(label.start, label.end));
    std::u16string joined(go.substring(label.start, lines[label.line].next));
    for (std::int64_t line = label.line + 1; line < label.lastLine; ++line)
        joined += go.substring(lines[line].contentStart, lines[line].next);
    joined += go.substring(lines[label.lastLine].contentStart, label.end);
    return LabeledNode::normalizeLabel(joined);
}

} // namespace Ondo::LinkSyntax
