#include "corvane/client/CVNASTTextOperations.h"

#include "corvane/client/FilenameMatch.h"
#include "corvane/client/StringBuilder.h"

using CVN::FilenameMatch;
using CVN::StringBuilder;

std::u16string CVNASTTextOperations::percentEscapedURL(std::u16string_view url) {
    return StringBuilder::safeURLString(url);
}

std::u16string CVNASTTextOperations::percentDecodedURL(std::u16string_view url) {
    return FilenameMatch::percentDecode(url);
}

std::u16string CVNASTTextOperations::safeLabelString(std::u16string_view label) {
    return StringBuilder::safeLabelString(label);
}

std::u16string CVNASTTextOperations::markdownImageWithLabel(std::u16string_view label,
                                                            std::u16string_view url,
                                                            std::u16string_view title) {
    return StringBuilder::markdownImage(label, url, title);
}

std::u16string CVNASTTextOperations::markdownFileWithLabel(std::u16string_view label, std::u16string_view url,
                                                           bool preview) {
    return StringBuilder::markdownFile(label, url, preview);
}

std::u16string CVNASTTextOperations::markdownLinkWithLabel(std::u16string_view label, std::u16string_view url,
                                                           std::u16string_view title, bool preview) {
    constexpr StringBuilder::MetadataPair pairs[] = {{u"preview", u"true"}};
    return StringBuilder::markdownLink(label, url, title,
                                       StringBuilder::Metadata(pairs).first(preview ? 1 : 0));
}

std::u16string CVNASTTextOperations::footnoteReferenceWithLabel(std::u16string_view label) {
    return StringBuilder::footnoteReference(label);
}

std::u16string CVNASTTextOperations::referenceDefinitionWithLabel(std::u16string_view label,
                                                                  std::u16string_view text) {
    return StringBuilder::referenceDefinition(label, text);
}

std::u16string CVNASTTextOperations::codeBlockWithString(std::u16string_view code) {
    return StringBuilder::codeBlock(code);
}

std::u16string CVNASTTextOperations::tableStringWithRows(std::int64_t rows, std::int64_t columns) {
    return StringBuilder::table(rows, columns);
}

std::u16string CVNASTTextOperations::taskWithText(std::u16string_view text, bool completed) {
    return std::u16string(completed ? u"- [x] " : u"- [ ] ").append(text);
}

std::vector<std::u16string> CVNASTTextOperations::filenameVariantsForURL(std::u16string_view url) {
    const auto variants = FilenameMatch::filenameVariants(url);
    return {variants.begin(), variants.end()};
}
