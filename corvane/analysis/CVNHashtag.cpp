#include "corvane/analysis/CVNHashtag.h"

#include <algorithm>

#include "corvane/client/CVNAST.h"
#include "corvane/inline/Segments.h"
#include "corvane/operation/OperationTagBase.h"

using CVN::Operation::TagBase;

namespace {

using Names = std::span<const std::u16string>;

/// The text behind one command for each name, made one after the other.
template <class Command>
std::u16string textAfter(Names names, std::u16string_view string, Command command) {
    CVNAST note = CVNAST::fromMarkdown(string);
    for (const std::u16string& name : names)
        note.applyTextOperationResults(command(note, name));
    return std::u16string(note.markdown());
}

} // namespace

std::u16string CVNHashtag::hashtagStringForTagName(std::u16string_view name) {
    return TagBase::encodedSegmentsToMarkdown(name);
}

std::vector<std::u16string> CVNHashtag::hashtagStringsForTagNames(Names names) {
    std::vector<std::u16string> strings;
    for (const std::u16string& name : names)
        strings.push_back(hashtagStringForTagName(name));
    return strings;
}

std::u16string CVNHashtag::normalizeTagName(std::u16string_view name) {
    return TagBase::normalizeTag(name);
}

std::u16string CVNHashtag::sanitizeTagName(std::u16string_view name) {
    return TagBase::sanitizeTag(name);
}

std::u16string CVNHashtag::tagNameFromComponents(std::span<const std::u16string> components) {
    return Ondo::Segments::encode({components.begin(), components.end()});
}

std::vector<std::u16string> CVNHashtag::componentsForForTagName(std::u16string_view name) {
    std::vector<std::u16string> components = Ondo::Segments::decode(name);
    std::erase_if(components, [](const std::u16string& component) { return component.empty(); });
    return components;
}

std::u16string CVNHashtag::addTagNameToTheTopOfString(std::u16string_view name, std::u16string_view string) {
    const std::u16string names[] = {std::u16string(name)};
    return addTagsNamesToTheTopOfString(names, string);
}

std::u16string CVNHashtag::addTagNameToTheBottomOfString(std::u16string_view name,
                                                         std::u16string_view string) {
    const std::u16string names[] = {std::u16string(name)};
    return addTagsNamesToTheBottomOfString(names, string);
}

std::u16string CVNHashtag::addTagsNamesToTheTopOfString(Names names, std::u16string_view string) {
    return textAfter(names, string, [](const CVNAST& note, const std::u16string& name) {
        return note.addTagToTop(name, {0, 0});
    });
}

std::u16string CVNHashtag::addTagsNamesToTheBottomOfString(Names names, std::u16string_view string) {
    return textAfter(names, string, [](const CVNAST& note, const std::u16string& name) {
        return note.addTagToBottom(name, {0, 0});
    });
}

std::u16string CVNHashtag::removeTagName(std::u16string_view name, std::u16string_view string) {
    CVNAST note = CVNAST::fromMarkdown(string);
    note.applyTextOperationResults(note.removeTag(name, {0, 0}));
    return std::u16string(note.markdown());
}

std::u16string CVNHashtag::renameTagName(std::u16string_view name, std::u16string_view newTagName,
                                         std::u16string_view string) {
    CVNAST note = CVNAST::fromMarkdown(string);
    note.applyTextOperationResults(note.renameTag(name, newTagName, {0, 0}));
    return std::u16string(note.markdown());
}

std::u16string CVNHashtag::escapeTagsNames(Names names, std::u16string_view string) {
    return textAfter(names, string, [](const CVNAST& note, const std::u16string& name) {
        return note.escapeTag(name, {0, 0});
    });
}
