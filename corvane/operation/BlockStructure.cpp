#include "corvane/operation/BlockStructure.h"

#include <algorithm>

#include "corvane/block/List.h"

namespace CVN::Operation {

using Ondo::Node;

std::u16string indentationString(std::int64_t width, const Node* node, IndentStyle style) {
    if (width == 0 || style == IndentStyle::Spaces)
        return std::u16string(static_cast<std::size_t>(std::max<std::int64_t>(width, 0)), u' ');
    std::u16string tabs;
    for (; node; node = node->parent)
        if (node->type == Ondo::ONDO_LIST_ITEM_NODE) tabs += u'\t';
    return tabs;
}

std::int64_t markerIndentWidth(Node* item) {
    constexpr std::int64_t boxWidth = 4;
    const Node* const marker = item->firstMarker();
    if (!marker) return 0;
    const bool isTask = static_cast<const Ondo::Block::ListItemNode*>(item)->isTask();
    return marker->charCount - (isTask ? boxWidth : 0);
}

std::u16string withUncheckedTasks(std::u16string text) {
    for (const char16_t* const box : {u"[x]", u"[X]"})
        for (auto at = text.find(box); at != std::u16string::npos; at = text.find(box, at))
            text[at + 1] = u' ';
    return text;
}

} // namespace CVN::Operation
