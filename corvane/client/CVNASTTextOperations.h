#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"

/// Snippets of Markdown from values, for CVNAST. See StringBuilder and FilenameMatch.
class CORVANE_EXPORT CVNASTTextOperations {
public:
    static std::u16string percentEscapedURL(std::u16string_view url);
    static std::u16string percentDecodedURL(std::u16string_view url);
    static std::u16string safeLabelString(std::u16string_view label);
    static std::u16string markdownImageWithLabel(std::u16string_view label, std::u16string_view url,
                                                 std::u16string_view title);
    static std::u16string markdownFileWithLabel(std::u16string_view label, std::u16string_view url,
                                                bool preview);
    /// `preview` asks for a preview of what the link leads to.
    static std::u16string markdownLinkWithLabel(std::u16string_view label, std::u16string_view url,
                                                std::u16string_view title, bool preview);
    static std::u16string footnoteReferenceWithLabel(std::u16string_view label);
    static std::u16string referenceDefinitionWithLabel(std::u16string_view label, std::u16string_view text);
    static std::u16string codeBlockWithString(std::u16string_view code);
    static std::u16string tableStringWithRows(std::int64_t rows, std::int64_t columns);
    /// A task item, without a line ending.
    static std::u16string taskWithText(std::u16string_view text, bool completed);
    /// As FilenameMatch::filenameVariants(), in the same order.
    static std::vector<std::u16string> filenameVariantsForURL(std::u16string_view url);

protected:
    CVNASTTextOperations() = default;
};
