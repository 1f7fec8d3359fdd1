#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/client/QueryNotes.h"

namespace Ondo::Test {

/// What the blocks of an enumeration were called with, a string each, up to `limit` calls.
class QueryLog {
public:
    explicit QueryLog(const CVNAttributedString& text, std::size_t limit = SIZE_MAX)
        : text_(text), limit_(limit) {}

    std::vector<std::string> calls;

    /// The enumeration with that name.
    void run(std::string_view name, CVNRange range, CVNEnumerationOptions options) {
        namespace Query = CVN::Query;
        if (const auto* const wrapped = Query::wrappedQuery(name))
            (*wrapped)(text_, range, options,
                       [this](CVNRange text, CVNRange opening, CVNRange closing, bool& stop) {
                           add({shown(opening), shown(text), shown(closing)}, stop);
                       });
        if (const auto* const link = Query::linkQuery(name))
            (*link)(text_, range, options, [this](const Query::LinkRanges& ranges, bool& stop) {
                add({shown(ranges.link), shown(ranges.opening), shown(ranges.label), shown(ranges.url),
                     shown(ranges.title), shown(ranges.closing)},
                    stop);
            });
        if (const auto* const query = Query::runQuery(name))
            (*query)(text_, range, options, [this](CVNRange run, const CVNValue& value, bool& stop) {
                const std::u16string string(value.stringValue());
                add({shown(run),
                     value.isString() ? Util::utf8(string) : std::to_string(value.integerValue())},
                    stop);
            });
        if (const auto* const list = Query::listQuery(name))
            (*list)(
                text_, range, options,
                [this](CVNRange whole, bool& stop) {
                    add({"list", shown(whole)}, stop);
                },
                [this](CVNRange text, CVNRange marker, const CVNListInfo& info, bool& stop) {
                    add({shown(text), shown(marker),
                         std::to_string(info.listLevel) + '.' + std::to_string(info.itemIndex)},
                        stop);
                });
        if (name == Query::enumerateTableInRange.name) tables(range, options);
        if (name == Query::enumerateHighlighterInRange.name) highlights(range, options);
    }

    std::string joined() const {
        std::string all;
        for (const std::string& call : calls)
            all += (all.empty() ? "" : "; ") + call;
        return all;
    }

private:
    void tables(CVNRange range, CVNEnumerationOptions options) {
        CVN::Query::enumerateTableInRange(
            text_, range, options,
            [this](CVNRange, std::int64_t rows, std::int64_t columns, bool& stop) {
                add({"table", std::to_string(rows), std::to_string(columns)}, stop);
            },
            [this](const CVN::Query::TableCell& cell, bool& stop) {
                add({shown(cell.range), shown(cell.content), std::to_string(cell.alignment),
                     cell.isDelimiter ? "delimiter" : "cell"},
                    stop);
            });
    }

    void highlights(CVNRange range, CVNEnumerationOptions options) {
        CVN::Query::enumerateHighlighterInRange(
            text_, range, options,
            [this](CVNRange text, CVNRange opening, CVNRange closing, bool& stop) {
                add({shown(opening), shown(text), shown(closing)}, stop);
            },
            [this](CVNRange run, std::int64_t color, bool& stop) {
                add({"color", shown(run), std::to_string(color)}, stop);
            },
            [this](CVNRange marker, std::int64_t value, std::int64_t nesting, bool& stop) {
                add({shown(marker), std::to_string(value), std::to_string(nesting)}, stop);
            });
    }

    void add(std::initializer_list<std::string> parts, bool& stop) {
        std::string call;
        for (const std::string& each : parts)
            call += (call.empty() ? "" : "|") + each;
        calls.push_back(call);
        stop = calls.size() >= limit_;
    }
    std::string shown(CVNRange range) const { return part(text_, range); }

    const CVNAttributedString& text_;
    std::size_t limit_;
};

/// The names of all enumerations.
inline std::vector<std::string_view> enumerationNames() {
    std::vector<std::string_view> names = {CVN::Query::enumerateTableInRange.name,
                                           CVN::Query::enumerateHighlighterInRange.name};
    const auto take = [&names](const auto& table) {
        for (const auto* const query : table)
            names.push_back(query->name);
    };
    take(CVN::Query::wrappedQueries);
    take(CVN::Query::linkQueries);
    take(CVN::Query::runQueries);
    take(CVN::Query::listQueries);
    return names;
}

} // namespace Ondo::Test
