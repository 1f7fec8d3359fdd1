#pragma once

#include "corvane/scan/GoLines.h"

/// The grammar of raw HTML in CommonMark 0.31.2.
///
/// Each function takes the cursor, which stands on "<", behind its construct, across line endings. Where that
/// fails the cursor has failed, too.

namespace Ondo::HtmlSyntax {

CORVANE_EXPORT void matchOpenOrCloseTag(GoLines& go);
/// "<!--" up to the first "-->" before which no "-" stands; "<!-->" and "<!--->" are whole comments.
CORVANE_EXPORT void matchComment(GoLines& go);
/// "<?" up to "?>".
CORVANE_EXPORT void matchProcessingInstruction(GoLines& go);
/// "<!" and a letter, up to ">".
CORVANE_EXPORT void matchDeclaration(GoLines& go);
/// "<![CDATA[" up to "]]>".
CORVANE_EXPORT void matchCData(GoLines& go);

constexpr bool isLetter(char32_t c) {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z');
}
constexpr bool isLetterOrDigit(char32_t c) {
    return isLetter(c) || (c >= U'0' && c <= U'9');
}

} // namespace Ondo::HtmlSyntax
