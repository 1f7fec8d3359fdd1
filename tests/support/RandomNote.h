#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "corvane/tree/Range.h"

namespace Ondo::Test {

/// Random notes and edits, built to hit what is hard to keep current: fences and HTML blocks that open and
/// close, lists joined over blank lines, indented lines behind lists, setext underlines, quotes with lazy
/// lines, line endings of all kinds.
class RandomNote {
public:
    explicit RandomNote(std::uint64_t seed) : random_(seed) {}

    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

    std::u16string note(std::size_t lines) {
        std::u16string text;
        for (std::size_t i = below(lines + 1); i > 0; --i)
            text += line() + lineEnding();
        if (below(3) == 0) text += line();
        return text;
    }

    /// A piece to insert: mostly syntax.
    std::u16string piece() {
        switch (below(8)) {
        case 0:
            return {};
        case 1:
            return line();
        case 2:
            return line() + lineEnding();
        case 3:
            return lineEnding() + line();
        case 4:
            return note(5);
        default:
            return std::u16string(pick(pieces));
        }
    }

    Range range(std::int64_t length) {
        const auto offset = static_cast<std::int64_t>(below(static_cast<std::size_t>(length) + 1));
        std::int64_t extent = 0;
        if (below(2) == 0) extent = static_cast<std::int64_t>(below(below(6) == 0 ? 60 : 4));
        return {offset, std::min(extent, length - offset)};
    }

private:
    template <std::size_t N>
    std::u16string_view pick(const std::u16string_view (&from)[N]) {
        return from[below(N)];
    }

    std::u16string lineEnding() {
        const std::size_t kind = below(16);
        return kind == 0 ? u"\r" : kind == 1 ? u"\r\n" : u"\n";
    }

    std::u16string line() {
        std::u16string line;
        while (below(3) == 0)
            line += pick(prefixes);
        line += pick(contents);
        if (below(12) == 0) line += u"  ";
        return line;
    }

    static constexpr std::u16string_view prefixes[] = {u"> ",  u">",   u"- ",   u"* ",  u"1. ",  u"2) ",
                                                       u"  ",  u"   ", u"    ", u"\t",  u" ",    u"- [ ] ",
                                                       u">\t", u"-\t", u"10. ", u"-  ", u"> > ", u"      "};
    static constexpr std::u16string_view contents[] = {
        u"",           u"",       u"",     u"a",       u"text",    u"# h",          u"## h ##",  u"===",
        u"---",        u"--",     u"-",    u"=",       u"***",     u"```",          u"````",     u"~~~",
        u"``` x",      u"$$",     u"$$$",  u"2. x",    u"1. x",    u"- b",          u"+",        u"<div>",
        u"</div>",     u"<!--",   u"-->",  u"<pre>",   u"</pre>",  u"[!NOTE]",      u"[!tip] t", u"| a |",
        u"|---|",      u"[a]: b", u"'t",   u"[^a]: b", u"...",     u"\u05D0\u05D1", u"12",       u"\u5B57",
        u"\U0001F534", u"\\",     u"x  y", u"[ ] t",   u"\u0627 b"};
    static constexpr std::u16string_view pieces[] = {
        u"a",   u"x",     u" ",  u"\n", u"\n\n", u"\r",  u"\r\n",   u"\t", u"    ", u"- ",      u"-",   u"> ",
        u">",   u"#",     u"# ", u"`",  u"``",   u"```", u"~",      u"$",  u"$$",   u"=",       u"*",   u"1.",
        u"1. ", u"<div>", u"<",  u"|",  u"[",    u"+ ",  u"\u05D0", u"2",  u"_",    u"[!NOTE]", u"[ ] "};

    std::mt19937_64 random_;
};

} // namespace Ondo::Test
