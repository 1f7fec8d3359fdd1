#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

/// Input that is meant to hurt: openers that never close, closers without an opener, deep nesting, each in
/// several places of a note. Robustness tests and benchmarks share it.

namespace Ondo::Test {

/// `open` repeated, and as many `close` behind them.
struct Hostile {
    std::u16string_view open;
    std::u16string_view close;
};

/// Where the repetitions stand: behind `head`, each between `before` and `behind`, before `tail`.
struct HostilePlace {
    const char* name;
    std::u16string_view head;
    std::u16string_view before;
    std::u16string_view behind;
    std::u16string_view tail;
};

/// An open text of nothing stands for runs of backticks that grow by one.
inline constexpr Hostile hostileUnits[] = {
    // emphasis
    {u"*a ", u""},
    {u"*", u""},
    {u"_a ", u""},
    {u"a** ", u""},
    {u"**a_b", u""},
    {u"*_", u""},
    {u"a*b_", u""},
    {u"==", u""},
    {u"==a", u""},
    {u" ==\U0001F534a", u""},
    {u"~", u""},
    {u"~a ~~b", u""},
    {u"*a ", u" b*"},
    {u"**a ", u" b**"},
    {u"~~a", u"b~"},
    {u"==a ", u" b=="},
    // brackets
    {u"[", u""},
    {u"]", u""},
    {u"![", u""},
    {u"](", u""},
    {u"[a](", u""},
    {u"[a](<b", u""},
    {u"[a](b 'c", u""},
    {u"![a](b\\", u""},
    {u"[a]", u""},
    {u"[a][", u""},
    {u"[a][b", u""},
    {u"[*a](b*", u""},
    {u"[", u"](b)"},
    {u"![", u"](b)"},
    {u"[", u"]"},
    {u"![", u"][a]"},
    {u"(", u")"},
    {u"[^a]", u""},
    {u"[^", u""},
    {u"[[", u""},
    {u"[[a|", u""},
    {u"[[a/", u""},
    {u"[[", u"]]"},
    {u"[[a]b", u""},
    // literals
    {u"", u""},
    {u"`a``", u""},
    {u"\\", u""},
    {u"\\`", u""},
    {u"&", u""},
    {u"&amp", u""},
    {u"&#1", u""},
    {u"$", u""},
    {u" $a", u""},
    {u" $a [b]", u""},
    {u" $a](", u""},
    // HTML
    {u"<", u""},
    {u"<!--", u""},
    {u"<!-- {\"fold\":true} -->", u""},
    {u"--", u""},
    {u"<a ", u""},
    {u"<a b='", u""},
    {u"<a b ", u""},
    {u"</a ", u""},
    {u"<?", u""},
    {u"<!A", u""},
    {u"<![CDATA[", u""},
    {u"<a@", u""},
    {u"<a:", u""},
    // addresses
    {u"a.", u""},
    {u"a.com", u""},
    {u"a@b.", u""},
    {u"a@b.c ", u""},
    {u"a@", u""},
    {u".", u""},
    {u":", u""},
    {u"://", u""},
    {u"http://a:", u""},
    {u"http://a.b/(", u""},
    {u"a:b@c.com", u""},
    {u"www.", u""},
    {u"http://a.b/?=", u""},
    {u"+://", u""},
    {u"a@b.http://()", u""},
    {u"#ffffff.b://,", u""},
    {u"(\\_x:y@a.com/[]", u""},
    // tags, colours, arrows
    {u"#", u""},
    {u"#a", u""},
    {u"#a b", u""},
    {u"#a/", u""},
    {u" #a\\", u""},
    {u"#ABCDEF", u""},
    {u"rgb(", u""},
    {u"rgbaaaa", u""},
    {u"->", u""},
    {u"<-", u""},
    {u"->> ", u""},
    // blocks
    {u"| a ", u""},
    {u"|\\", u""},
    {u"> [!NOTE]", u""},
    {u"> [!NOTE]\n", u""},
    {u"[a]: b\n", u""},
    {u"[a]: b '\n", u""},
    {u"[a]:\n", u""},
    {u"[a", u""},
    {u"[^a]: b [^a]\n", u""},
    {u"| a |\n|---|\n", u""},
    {u"|-", u""},
    {u"# a <!-- {\"fold\":true} -->\n", u""},
    {u"- a <!-- {\"fold\":true} -->\n", u""},
    {u"<div>\n", u""},
    {u"<!--\n\n", u""},
    {u"---\n", u""},
    {u"a  \n", u""},
    {u"a\\\n", u""},
    {u"\u05D0 a\n\n", u""},
    {u"\U0001F534", u""},
};

inline constexpr HostilePlace hostilePlaces[] = {
    {"paragraph", u"x ", u"", u"", u"\n"},
    {"lines", u"", u"", u"\n", u""},
    {"cell", u"| a |\n|---|\n| ", u"", u"", u" |\n"},
    {"rows", u"| a |\n|---|\n", u"| ", u" |\n", u""},
    {"item", u"- x", u"", u"\n  ", u"\n"},
    {"quote", u"", u"> ", u"\n", u""},
    {"heading", u"# ", u"", u"", u"\n"},
    {"footnote", u"[^a]: ", u"", u"", u"\n"},
};

/// `count` repetitions in a place. Backticks come in fewer runs, so that their text grows with `count`.
inline std::u16string hostileText(const Hostile& hostile, const HostilePlace& place, std::size_t count) {
    std::u16string text(place.head);
    const auto add = [&](std::u16string_view unit) {
        text.append(place.before).append(unit).append(place.behind);
    };
    if (hostile.open.empty())
        for (std::size_t length = 1; text.size() < count * 2; ++length)
            add(std::u16string(length, u'`') + u'a');
    else
        for (std::size_t i = 0; i < count; ++i)
            add(hostile.open);
    for (std::size_t i = 0; i < count && !hostile.close.empty(); ++i)
        add(hostile.close);
    return text.append(place.tail);
}

} // namespace Ondo::Test
