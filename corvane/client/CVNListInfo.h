#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "corvane/client/CVNArchive.h"
#include "corvane/scan/Export.h"

/// What an attribute run says about the list item or block quote it lies in.
///
/// A value: two runs count as one when theirs are equal. The numbers of `listType`, `listSubType` and
/// `taskType` are those of the enumerations below.
class CORVANE_EXPORT CVNListInfo {
public:
    enum ListType : std::int64_t { Unordered = 1, Ordered = 2, BlockQuote = 3 };
    enum ListSubType : std::int64_t {
        NoSubType = 0,
        Dash = 1,
        Asterisk = 2,
        Plus = 3,
        OrderedDot = 4,
        OrderedParenthesis = 5,
        Callout = 6
    };
    enum TaskType : std::int64_t { NoTask = 0, Todo = 1, Done = 2 };

    std::int64_t listLevel = 0; ///< lists and block quotes around the item's own list or quote
    std::int64_t itemIndex = 0; ///< from 0; in a quote the count of lines with a marker
    std::int64_t listType = 0;
    std::int64_t listSubType = 0;
    std::int64_t taskType = 0;
    std::int64_t orderedListItemNumber = 0; ///< 0 until set
    std::int64_t relativeListLevel = 0; ///< as listLevel, in the unbroken chain of the same kind; 0 until set

    static CVNListInfo listInfoWithListType(std::int64_t listType, std::int64_t subType,
                                            std::int64_t taskType, std::int64_t level,
                                            std::int64_t itemIndex);
    /// Null when a coding key is missing. Other keys don't matter, and no number is refused.
    static std::optional<CVNListInfo> initWithCoder(const CVNArchive& archive);
    void encodeWithCoder(CVNArchive& archive) const;
    static constexpr bool supportsSecureCoding = true;

    bool isOrderedList() const { return listType == Ordered; }
    bool isUnorderedList() const { return listType == Unordered; }
    bool isBlockQuote() const { return listType == BlockQuote; }
    bool isTaskList() const { return taskType != NoTask; }
    bool isCallout() const { return listSubType == Callout; }
    /// "." or ")"; null for an unordered item.
    std::optional<std::u16string_view> orderedListItemNumberDelimiter() const;

    bool operator==(const CVNListInfo& other) const { return isEqual(other); }
    bool isEqual(const CVNListInfo& other) const;
    /// Computed at the first call and kept, in copies too: a field that is set later does not change it.
    std::uint64_t hash() const;
    std::u16string description() const;

private:
    mutable std::uint64_t computedHash_ = 0; ///< 0 when not yet computed
};
