#pragma once

#include <cstdint>
#include <vector>

#include "corvane/scan/Go.h"
#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// A pipe table, directly below the document only. Every row begins and ends with a pipe and has the number
/// of columns of the delimiter row; a line that doesn't ends the table.
class CORVANE_EXPORT Table : public BlockRule {
public:
    Table() : BlockRule(u"|") {}
    std::string_view type_name() const override { return "Table"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;

    /// Takes the cursor from inside a cell to behind the pipe that closes it; false, and not moved, when none
    /// does. A slash takes the power from the character behind it, as a backslash does from a pipe.
    static bool matchColumn(Go& cursor);
};

class CORVANE_EXPORT TableNode : public Node {
public:
    enum class ColumnAlignment : std::int32_t { Default, Left, Right, Center };

    std::vector<ColumnAlignment> alignments; ///< one for each column

    TableNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_TABLE_NODE, offset, end, line, 2) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

class CORVANE_EXPORT TableHeaderRowNode : public Node {
public:
    TableHeaderRowNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_TABLE_HEADER_ROW_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

class CORVANE_EXPORT TableDelimiterRowNode : public Node {
public:
    TableDelimiterRowNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_TABLE_DELIMITER_ROW_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

class CORVANE_EXPORT TableDataRowNode : public Node {
public:
    TableDataRowNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_TABLE_DATA_ROW_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

/// What stands between two pipes, with its blanks. Between adjacent pipes there is no node.
class CORVANE_EXPORT TableCellNode : public Node {
public:
    TableNode::ColumnAlignment alignment;

    TableCellNode(std::int64_t offset, std::int64_t end, std::int64_t line,
                  TableNode::ColumnAlignment alignment_)
        : Node(ONDO_TABLE_CELL_NODE, offset, end, line, 0), alignment(alignment_) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
