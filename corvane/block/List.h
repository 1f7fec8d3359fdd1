#pragma once

#include <memory>
#include <utility>

#include "corvane/scan/Go.h"
#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

class ListItemNode;

/// Bullet, ordered and task lists. An item's lines are found by indentation arithmetic and parsed with the
/// item as parent, so that sublists need no code of their own.
class CORVANE_EXPORT List : public BlockRule {
public:
    enum class MarkerType : std::uint32_t {
        ordered_dot,
        ordered_parenthesis,
        unordered_asterisk,
        unordered_dash,
        unordered_plus,
        none
    };
    enum class TaskType : std::uint32_t { todo, done, none };

    bool tasks = false;                        ///< "[ ]" and "[x]" behind a bullet make a task item
    bool markerNeedsBlank = false;             ///< a marker at the very end of a line is none
    bool emptyItemInterruptsParagraph = false; ///< an item without content can end a paragraph
    bool anyNumberInterruptsParagraph = false; ///< an ordered item can end a paragraph whatever its number
    bool noLazyContinuation = false;           ///< no lazy lines in items
    bool tabContinuesItem = false;             ///< a tab continues the item, whatever the marker's width

    List() : BlockRule(u"*-+0123456789") {}
    std::string_view type_name() const override { return "List"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;

    /// Moves behind a marker and at most one space; on `none` the cursor is back at its start.
    static MarkerType matchMarker(Go& cursor, bool markerNeedsBlank);
    /// Moves behind "[ ] " or "[x] "; on `none` the cursor has failed.
    static TaskType matchTask(Go& cursor);
    /// The number of lines consumed and the item, linked nowhere; (0, null) when no item starts on `line`,
    /// (1, null) when one would start under Check.
    std::pair<std::int64_t, std::unique_ptr<ListItemNode>>
    parseListItem(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                  const ListItemNode* previousItem, ParseAction action);

private:
    struct Head;
    bool matchHead(const BlockParser& parser, std::int64_t line, Head& head) const;
    bool mayInterrupt(const BlockParser& parser, std::int64_t line, const Node* parent,
                      const Head& head) const;
    class ItemLines;
};

class CORVANE_EXPORT ListNode : public Node {
public:
    List::MarkerType markerType;
    bool isLoose = false;

    ListNode(std::int64_t offset, std::int64_t end, std::int64_t line, List::MarkerType marker)
        : Node(ONDO_LIST_NODE, offset, end, line, 1), markerType(marker) {}

    bool isOrdered() const { return markerType < List::MarkerType::unordered_asterisk; }
    /// Loose is a list with a blank line in one of its items, other than as the item's first child.
    void setIsLoose();

    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

class CORVANE_EXPORT ListItemNode : public Node {
public:
    List::MarkerType markerType;
    List::TaskType taskType;
    std::int64_t writtenNumber; ///< as typed; 0 for a bullet
    std::int64_t number;        ///< counted from what the first item has, 1 for bullets

    ListItemNode(std::int64_t offset, std::int64_t end, std::int64_t line, List::MarkerType marker,
                 List::TaskType task, std::int64_t written, std::int64_t number_)
        : Node(ONDO_LIST_ITEM_NODE, offset, end, line, 1), markerType(marker), taskType(task),
          writtenNumber(written), number(number_) {}

    bool isTask() const { return taskType != List::TaskType::none; }
    bool isOrdered() const { return markerType < List::MarkerType::unordered_asterisk; }

    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
