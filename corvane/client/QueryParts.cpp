#include "corvane/client/QueryParts.h"

#include "corvane/client/QueryBlockquotes.h"

namespace CVN::Query {

TableCell TableQuery::cell(const CVNAttributedString& text, CVNRange range, const CVNValue& value) {
    const CVNRange content = firstRunIn(text, CVNTableCellContentAttributeName, range);
    const bool isDelimiter = value.kind() == CVNValue::Kind::Boolean;
    const CVNValue* const alignment =
        isDelimiter ? text.attribute(CVNTableCellContentAttributeName, content.location) : &value;
    return {range, content, alignment ? alignment->integerValue() : 0, isDelimiter};
}

std::int64_t TableQuery::count(const CVNValue& table, std::u16string_view name) {
    const CVNDictionary* const counts = table.dictionaryValue();
    if (!counts) return 0;
    const auto count = counts->find(name);
    return count == counts->end() ? 0 : count->second.integerValue();
}

ListWalk::ListWalk(const CVNAttributedString& text, std::int64_t listType, CVNRange range,
                   CVNEnumerationOptions options)
    : items_(text, listType == CVNListInfo::BlockQuote ? blockquoteKeys : listKeys), listType_(listType),
      range_(clippedRange(text, range)), isReverse_(options == CVNEnumerationOptions::Reverse) {
    const std::int64_t first = items_.firstEndingBehind(range_.location);
    end_ = items_.firstEndingBehind(range_.end() - 1);
    if (end_ < items_.size() && items_.range(end_).location < range_.end()) ++end_;
    if (range_.length == 0 || end_ < first) end_ = first;
    list_ = {first, first - 1};
    if (!isReverse_) return;
    for (ItemRuns::Span list = items_.nextList(listType_, first, end_); list.first < end_;
         list = items_.nextList(listType_, list.last + 1, end_))
        all_.push_back(list);
}

bool ListWalk::nextList() {
    if (isReverse_) {
        if (all_.empty()) return false;
        list_ = all_.back();
        all_.pop_back();
        item_ = list_.last + 1;
        return true;
    }
    list_ = items_.nextList(listType_, list_.last + 1, end_);
    item_ = list_.first - 1;
    return list_.first < end_;
}

CVNRange ListWalk::list() const {
    return CVNRange::intersect(items_.rangeOfRuns(list_.first, list_.last), range_);
}

bool ListWalk::nextItem() {
    const std::int64_t step = isReverse_ ? -1 : 1;
    do
        item_ += step;
    while (item_ >= list_.first && item_ <= list_.last && !showsItem());
    return item_ >= list_.first && item_ <= list_.last;
}

bool ListWalk::showsItem() const {
    return info().listType == listType_ && (items_.beginsItem(item_) || !items_.isBlank(item_));
}

CVNRange ListWalk::marker() const {
    const CVNRange marker = items_.marker(item_);
    const CVNRange inRange = CVNRange::intersect(marker, range_);
    return marker.isFound() && inRange.length > 0 ? inRange : CVNRange::notFound();
}

} // namespace CVN::Query
