#include "corvane/inline/Entity.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "corvane/scan/Util.h"

namespace Ondo::Inline {

namespace {

std::vector<Entity::EntityInfo> table() {
    std::vector<Entity::EntityInfo> rows;
    for (std::int64_t i = 0; i < Entity::entityCount; ++i)
        rows.push_back(Entity::entityAt(i));
    return rows;
}

std::uint64_t packed(const Entity::EntityInfo& row) {
    return std::uint64_t{row.secondCodepoint} << 32 | row.firstCodepoint;
}

/// Sums over the published list. The order of the table has descents where names were cut.
TEST(EntityTable, IsThatOfTheStandard) {
    struct {
        int descents = 0, equals = 0, seconds = 0;
        std::size_t longest = 0, units = 0;
        std::uint64_t codepoints = 0;
    } found;
    const std::vector<Entity::EntityInfo> rows = table();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        found.longest = std::max(found.longest, rows[i].name.size());
        found.units += rows[i].name.size();
        found.seconds += rows[i].secondCodepoint != 0 ? 1 : 0;
        found.codepoints += rows[i].firstCodepoint + rows[i].secondCodepoint;
        if (i == 0) continue;
        found.descents += rows[i].name < rows[i - 1].name ? 1 : 0;
        found.equals += rows[i].name == rows[i - 1].name ? 1 : 0;
    }
    EXPECT_EQ(rows.size(), 2231U);
    EXPECT_EQ(found.descents, 18);
    EXPECT_EQ(found.equals, 3);
    EXPECT_EQ(found.seconds, 93);
    EXPECT_EQ(found.longest, 31U);
    EXPECT_EQ(found.units, 14410U);
    EXPECT_EQ(found.codepoints, 32328621U);
}

/// Each name of the table, and each that differs from one by its last unit, is looked up as the standard
/// library would, which in this order misses some.
TEST(EntityTable, LookupIsALowerBound) {
    const std::vector<Entity::EntityInfo> rows = table();
    const auto expected = [&rows](std::u16string_view name) {
        const auto row = std::lower_bound(
            rows.begin(), rows.end(), name,
            [](const Entity::EntityInfo& info, std::u16string_view wanted) { return info.name < wanted; });
        return row != rows.end() && row->name == name ? packed(*row) : 0;
    };
    std::vector<std::string> missed;
    for (const Entity::EntityInfo& row : rows) {
        const std::u16string longer = std::u16string(row.name) + u'z';
        const std::u16string_view shorter = row.name.substr(0, row.name.size() - 1);
        for (const std::u16string_view name : {row.name, shorter, std::u16string_view(longer)})
            EXPECT_EQ(Entity::entityToCodepoint(name), expected(name)) << Util::utf8(name);
        if (expected(row.name) == 0) missed.push_back(Util::utf8(row.name));
    }
    EXPECT_EQ(missed,
              (std::vector<std::string>{"GJcy", "G",  "LJcy", "L",    "amalg", "am",    "cop",     "emsp",
                                        "eta",  "et", "g",    "l",    "no",    "order", "orderof", "ordf",
                                        "rect", "re", "sh",   "sup1", "sup2",  "sup3",  "um"}));
}

} // namespace

} // namespace Ondo::Inline
