#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "corvane/client/CVNAttributedString.h"
#include "corvane/client/CVNListInfo.h"
#include "corvane/scan/Assert.h"
#include "corvane/scan/Export.h"

/// The types of queries, told apart by what they take and answer. A query is a constant: its name, the keys
/// that it reads, and a function of the namespace Answer that it may share with others. CVNQuery.h says what
/// all have in common, and finds them by name.

namespace CVN::Query {

/// Up to 17 keys, in order.
class KeyList {
    std::array<std::uint8_t, 17> ids_{};
    std::uint8_t size_ = 0;

public:
    constexpr KeyList() = default;
    constexpr KeyList(std::initializer_list<CVNAttributeName> keys)
        : KeyList(std::span<const CVNAttributeName>(keys.begin(), keys.size())) {}
    constexpr explicit KeyList(std::span<const CVNAttributeName> keys) {
        CORVANE_ASSERT(keys.size() <= ids_.size(), "CVNQuery");
        for (const CVNAttributeName key : keys)
            ids_[size_++] = key.id();
    }

    constexpr std::size_t size() const { return size_; }
    constexpr CVNAttributeName operator[](std::size_t at) const { return CVNAttributeName::withId(ids_[at]); }

    template <class Predicate>
    constexpr bool hasKeyWhere(Predicate&& predicate) const {
        for (std::size_t at = 0; at < size_; ++at)
            if (predicate((*this)[at])) return true;
        return false;
    }
};

/// Whether something is so of a range.
struct RangeTest {
    std::string_view name;
    KeyList keys;
    bool (*holds)(const CVNAttributedString& text, const KeyList& keys, CVNRange range);

    bool operator()(const CVNAttributedString& text, CVNRange range) const {
        return holds(text, keys, range);
    }
};

/// Whether something is so of the character at an index.
struct IndexTest {
    std::string_view name;
    KeyList keys;
    bool (*holds)(const CVNAttributedString& text, const KeyList& keys, std::int64_t index);

    bool operator()(const CVNAttributedString& text, std::int64_t index) const {
        return holds(text, keys, index);
    }
};

/// A number that belongs to the character at an index.
struct NumberAtIndexQuery {
    std::string_view name;
    KeyList keys;
    std::int64_t (*number)(const CVNAttributedString& text, const KeyList& keys, std::int64_t index);

    std::int64_t operator()(const CVNAttributedString& text, std::int64_t index) const {
        return number(text, keys, index);
    }
};

/// The range of something around the character at an index. `markerRange`, if given, becomes the range of its
/// marker; what a query without a marker to speak of leaves there is {CVNNotFound, 0}.
struct RangeAtIndexQuery {
    std::string_view name;
    KeyList keys;
    CVNRange (*find)(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                     CVNRange* markerRange);

    CVNRange operator()(const CVNAttributedString& text, std::int64_t index,
                        CVNRange* markerRange = nullptr) const {
        if (markerRange) *markerRange = CVNRange::notFound();
        return find(text, keys, index, markerRange);
    }
};

/// The range of something of a given type or level around the character at an index.
struct NumberedRangeQuery {
    std::string_view name;
    KeyList keys;
    CVNRange (*find)(const CVNAttributedString& text, const KeyList& keys, std::int64_t number,
                     std::int64_t index);

    CVNRange operator()(const CVNAttributedString& text, std::int64_t number, std::int64_t index) const {
        return find(text, keys, number, index);
    }
};

/// A range that is made from a range.
struct RangeOfRangeQuery {
    std::string_view name;
    KeyList keys;
    CVNRange (*find)(const CVNAttributedString& text, const KeyList& keys, CVNRange range);

    CVNRange operator()(const CVNAttributedString& text, CVNRange range) const {
        return find(text, keys, range);
    }
};

/// What is known of the list item or quote line at an index, null when there is none. `itemRange` and
/// `markerRange`, if given, become the ranges of the item and its marker. The pointer is good until the next
/// addAttribute().
struct ItemInfoQuery {
    std::string_view name;
    KeyList keys;
    const CVNListInfo* (*find)(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                               CVNRange* itemRange, CVNRange* markerRange);

    const CVNListInfo* operator()(const CVNAttributedString& text, std::int64_t index,
                                  CVNRange* itemRange = nullptr, CVNRange* markerRange = nullptr) const {
        if (itemRange) *itemRange = CVNRange::notFound();
        if (markerRange) *markerRange = CVNRange::notFound();
        return find(text, keys, index, itemRange, markerRange);
    }
};

/// The query with that name of one of the tables, null when there is none.
template <class Query, std::size_t... counts>
constexpr const Query* queryNamed(std::string_view name, const Query* const (&... tables)[counts]) {
    const Query* found = nullptr;
    const auto look = [&](const Query* const* table, std::size_t count) {
        for (; count > 0; ++table, --count)
            if ((*table)->name == name) found = *table;
    };
    (look(tables, counts), ...);
    return found;
}

} // namespace CVN::Query
