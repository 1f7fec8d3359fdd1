#include "NameArgument.h"

#include <algorithm>
#include <string_view>

#include "Outcome.h"
#include "Results.h"
#include "corvane/analysis/CVNHashtag.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Ondo::Util::utf8;

std::u16string_view withoutBlanks(std::u16string_view text) {
    return Ondo::Util::trim(text, [](char32_t c) { return c == U' '; });
}

/// What stands between the markers; the text itself unless both are there.
std::u16string_view between(std::u16string_view text, std::u16string_view opening,
                            std::u16string_view closing) {
    if (text.size() < opening.size() + closing.size()) return text;
    if (!text.starts_with(opening) || !text.ends_with(closing)) return text;
    text.remove_suffix(closing.size());
    return withoutBlanks(text.substr(opening.size()));
}

std::u16string_view withoutMarkers(std::u16string_view tag) {
    tag = withoutBlanks(tag);
    const std::u16string_view inner = between(tag, u"#", u"#");
    return inner.size() < tag.size() ? inner : between(tag, u"#", u"");
}

/// The nearest name that a tag can have.
std::u16string nearestTag(std::u16string_view name) {
    const std::u16string clean = CVNHashtag::sanitizeTagName(name);
    std::u16string near = CVNHashtag::tagNameFromComponents(CVNHashtag::componentsForForTagName(clean));
    return CVNHashtag::hashtagStringForTagName(near).empty() ? std::u16string() : near;
}

[[noreturn]] void refuseTag(const std::string& what, const std::string& word, std::u16string_view name) {
    const std::u16string near = nearestTag(name);
    const std::string advice = near.empty() ? "" : "; \"" + utf8(near) + "\" would do";
    throw Failure(what + ": no tag can be called \"" + word + "\"" + advice, BadUsage);
}

[[noreturn]] void refuseTitle(const std::string& what, const std::string& word) {
    throw Failure(what + ": no note can be called \"" + word + "\"", BadUsage);
}

} // namespace

std::u16string tagArgument(const std::string& what, const std::string& word) {
    const std::u16string text = textOfArgument(what, word);
    std::u16string name(withoutMarkers(text));
    if (name.empty() || CVNHashtag::sanitizeTagName(name) != name) refuseTag(what, word, name);
    return name;
}

std::u16string newTagArgument(const std::string& what, const std::string& word) {
    std::u16string name = tagArgument(what, word);
    if (CVNHashtag::hashtagStringForTagName(name).empty()) refuseTag(what, word, name);
    return name;
}

std::u16string titleArgument(const std::string& what, const std::string& word) {
    const std::u16string text = textOfArgument(what, word);
    const std::u16string_view whole = withoutBlanks(text);
    std::u16string title(between(whole, u"[[", u"]]"));
    if (title.size() < whole.size() && title.find_first_of(u"/|\\[]") != std::u16string::npos)
        throw Failure(what + ": write the title alone, without [[ and ]], header and alias", BadUsage);
    const bool isLine = title.find_first_of(u"\r\n") == std::u16string::npos;
    if (!isLine || Ondo::Util::trim(title, Ondo::Go::unicodeWhitespace).empty()) refuseTitle(what, word);
    return title;
}

std::u16string newTitleArgument(const std::string& what, const std::string& word) {
    std::u16string title = titleArgument(what, word);
    if (std::any_of(title.begin(), title.end(), [](char16_t c) { return c < 0x20; })) refuseTitle(what, word);
    return title;
}

} // namespace Cli
