#include "corvane/inline/Entity.h"

#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr std::int64_t longestName = 31;
constexpr std::int64_t longestHexadecimal = 6;
constexpr std::int64_t longestDecimal = 7;

bool isAsciiLetterOrDigit(char32_t c) {
    return Predicate::isIn(c, U'a', U'z') || Predicate::isIn(c, U'A', U'Z') || Predicate::isDecimalNumber(c);
}

/// Takes what matches, if a semicolon follows; else the cursor fails and the result is empty.
template <class P>
std::u16string_view matchReference(Go& go, P predicate, std::int64_t longest) {
    const std::int64_t start = go.pos();
    const std::int64_t end = go.nextMatch(predicate, 1, longest);
    go.nextMatch(Go::character(u';'), 1, 1);
    return go.hasFailed() ? std::u16string_view() : go.substring(start, end);
}

/// What stands behind the "&", packed as by entityToCodepoint(). The cursor fails when that is no reference.
std::uint64_t matchValue(Go& go) {
    if (!go.isNext(Go::character(u'#'))) {
        const std::uint64_t value =
            Entity::entityToCodepoint(matchReference(go, isAsciiLetterOrDigit, longestName));
        if (value == 0) go.setPos(Go::NoPos);
        return value;
    }
    go.nextMatch(Go::always, 1, 1);
    if (!go.isNext(Go::characterAnyOf(u"xX")))
        return static_cast<std::uint64_t>(
            Util::decimalToInteger(matchReference(go, Go::decimalNumber, longestDecimal)));
    go.nextMatch(Go::always, 1, 1);
    return static_cast<std::uint64_t>(
        Util::hexadecimalToInteger(matchReference(go, Go::hexadecimalNumber, longestHexadecimal)));
}

} // namespace

Entity::EntityInfo Entity::entityAt(std::int64_t index) {
    CORVANE_ASSERT(index >= 0 && index < entityCount, "Entity");
    const Row& row = rows[index];
    const auto length = static_cast<std::size_t>(rows[index + 1].nameStart - row.nameStart);
    return {{names + row.nameStart, length}, row.firstCodepoint, row.secondCodepoint};
}

std::uint64_t Entity::entityToCodepoint(std::u16string_view name) {
    std::int64_t low = 0;
    std::int64_t high = entityCount;
    while (low < high) {
        const std::int64_t middle = low + (high - low) / 2;
        if (entityAt(middle).name < name)
            low = middle + 1;
        else
            high = middle;
    }
    if (low == entityCount) return 0;
    const EntityInfo found = entityAt(low);
    if (found.name != name) return 0;
    return std::uint64_t{found.secondCodepoint} << 32 | found.firstCodepoint;
}

std::int64_t Entity::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    const std::int64_t line = cursor.currentLine();
    const std::int64_t start = cursor.pos();
    const std::int64_t openEnd = cursor.nextMatch(Go::character(u'&'), 1, 1);
    const std::uint64_t value = matchValue(cursor);
    if (cursor.hasFailed()) return Go::NoPos;

    const std::int64_t end = cursor.pos();
    auto entity = std::make_unique<EntityNode>(start, end, line, value);
    ParserBase::linkMarker(entity.get(), ONDO_ENTITY_OPEN_MARKER_NODE, start, openEnd, line);
    ParserBase::linkMarker(entity.get(), ONDO_ENTITY_CLOSE_MARKER_NODE, end - 1, end, line);
    return parser.merge(node, std::move(entity)) ? end : Go::NoPos;
}

bool EntityNode::isValidEntityCodepoint(std::uint32_t value) {
    return Predicate::isIn(value, 1, 0x10FFFF) && !Predicate::isIn(value, 0xD800, 0xDFFF);
}

std::u16string EntityNode::toString() const {
    std::u16string text = Util::utf16(isValidEntityCodepoint(firstCodepoint) ? firstCodepoint : U'\uFFFD');
    if (secondCodepoint != 0) Util::addUtf16(secondCodepoint, text);
    return text;
}

std::u16string EntityNode::toIndentedTree() const {
    const std::u16string second = secondCodepoint == 0 ? u"" : u", " + Util::toString(secondCodepoint);
    return Node::toIndentedTree() + u"{" + Util::toString(firstCodepoint) + second + u"}";
}

void EntityNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    Util::addHtmlEscaped(toString(), out);
}

void EntityNode::appendValue(std::u16string& out, std::u16string_view) const {
    out += toString();
}

bool EntityNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const EntityNode&>(other);
    return firstCodepoint == node.firstCodepoint && secondCodepoint == node.secondCodepoint;
}

} // namespace Ondo::Inline
