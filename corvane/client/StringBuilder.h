#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "corvane/scan/Export.h"

namespace CVN {

/// Markdown source from values: pure functions.
///
/// What is called safe here escapes; everything else goes in as it stands.
class CORVANE_EXPORT StringBuilder {
public:
    /// An entry of a metadata comment.
    struct MetadataPair {
        std::u16string_view key;
        std::u16string_view value;
    };
    using Metadata = std::span<const MetadataPair>;

    /// The longest table() that is written, in code units.
    static constexpr std::int64_t maximumTableLength = std::int64_t{1} << 24;

    /// A part of the text, without the whitespace and controls U+0009 to U+000D, U+0085 and Unicode's spaces
    /// and separators at its ends.
    static std::u16string_view trimWhitespaceAndNewlines(std::u16string_view text);
    /// Trimmed, with spaces for LFs, and with a backslash before each # ( ) [ ] that has none.
    static std::u16string safeLabelString(std::u16string_view label);
    /// Trimmed, without LFs, percent-escaped, with parentheses escaped as well. Escapes that are there stay.
    /// A telephone number, "tel:...", stays as it is written.
    static std::u16string safeURLString(std::u16string_view url);

    /// «<!-- {"key":"value", ...} -->»; empty for no pairs.
    static std::u16string metadataComment(Metadata metadata);
    /// «[label](url "title")», with label and URL made safe, and the comment directly behind. An empty title
    /// leaves no quotation marks.
    static std::u16string markdownLink(std::u16string_view label, std::u16string_view url,
                                       std::u16string_view title, Metadata metadata = {});
    static std::u16string markdownImage(std::u16string_view label, std::u16string_view url,
                                        std::u16string_view title);
    /// A link that embeds what it leads to; `preview` asks for a preview of it.
    static std::u16string markdownFile(std::u16string_view label, std::u16string_view url, bool preview);

    static std::u16string footnoteReference(std::u16string_view label);
    static std::u16string referenceDefinition(std::u16string_view label, std::u16string_view text);
    static std::u16string codeBlock(std::u16string_view text);
    /// A header row, the delimiter row and `rows` - 1 data rows, all cells empty, without a line ending
    /// behind the last: `rows` + 1 lines. No rows give the header row alone, fewer give nothing. Less than
    /// one column gives lines of one pipe. Empty for a table of more than maximumTableLength.
    static std::u16string table(std::int64_t rows, std::int64_t columns);
};

} // namespace CVN
