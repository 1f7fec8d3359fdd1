#include "corvane/client/QueryHas.h"

#include "corvane/client/QueryItems.h"

namespace CVN::Query {

bool Answer::hasAny(const CVNAttributedString& text, const KeyList& keys, std::int64_t index) {
    return keys.hasKeyWhere([&](CVNAttributeName key) { return text.attribute(key, index) != nullptr; });
}

bool Answer::hasTaskMarker(const CVNAttributedString& text, const KeyList& keys, std::int64_t index) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    return run != ItemRuns::noRun && items.info(run).isTaskList() && text.attribute(keys[1], index);
}

bool Answer::hasSublist(const CVNAttributedString& text, const KeyList& keys, std::int64_t index) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    return run != ItemRuns::noRun && items.hasSubitems(items.firstOfItem(run));
}

} // namespace CVN::Query
