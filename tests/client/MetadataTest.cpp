// What comments hold, and what they may not do to the process that reads them.

#include "corvane/client/CVNMetadata.h"

#include <gtest/gtest.h>

#include <string>

#include "corvane/scan/Util.h"
#include "tests/support/Painted.h"

namespace {

using namespace std::string_literals;
using Ondo::Util::utf8;

/// "none" when there is no object.
std::string metadata(std::u16string_view comment) {
    const std::optional<CVNDictionary> result = CVNMetadataFromComment(comment);
    return result ? Ondo::Test::show(CVNValue::dictionary(*result)) : "none";
}

std::u16string comment(std::u16string_view json) {
    return u"<!--" + std::u16string(json) + u"-->";
}

std::u16string repeat(std::u16string_view piece, std::int64_t count) {
    std::u16string text;
    for (std::int64_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

TEST(Metadata, OfComments) {
    const struct {
        std::u16string comment;
        std::string expected;
    } cases[] = {
        {u"<!-- {\"preview\":\"true\",\"embed\":true} -->", "{embed:true preview:\"true\"}"},
        {u"<!--{}-->", "{}"},
        {u"<!--\n\t{ }\r\n-->", "{}"},
        // The frame: three units fall off the end, whatever they are.
        {u"<!--{}", "none"},
        {u"<!----->", "none"},
        {u"<!--{}abc", "{}"},
        {u"<!-{} -->", "none"},
        {u" <!--{}-->", "none"},
        {u"", "none"},
        // Only an object, and all of the text.
        {u"<!-- [{}] -->", "none"},
        {u"<!-- \"a\" -->", "none"},
        {u"<!-- null -->", "none"},
        {u"<!-- {} {} -->", "none"},
        {u"<!-- {\"a\":1} b -->", "none"},
        {u"<!--{}\0 b-->"s, "none"},
        {u"<!-- {\"a\":1,} -->", "none"},
        {u"<!-- {'a':1} -->", "none"},
        {u"<!-- {\"a\"} -->", "none"},
        {u"<!-- {\"a\":} -->", "none"},
        {u"<!-- {\"a\":/**/1} -->", "none"},
        {u"<!-- {\"a\":NaN} -->", "none"},
        {u"<!-- {\"a\" -->", "none"},
        {u"<!-- some words -->", "none"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(metadata(c.comment), c.expected) << utf8(c.comment);
}

TEST(Metadata, Values) {
    const struct {
        std::u16string json;
        std::string expected;
    } cases[] = {
        {u"{\"a\":[null,true,false,{},[],[[1],\"b\"]]}", "{a:[null true false {} [] [[1] \"b\"]]}"},
        {u"{\"b\":{\"a\":{\"c\":1}},\"a\":2}", "{a:2 b:{a:{c:1}}}"},
        {u"{\"a\":1,\"b\":2,\"a\":[3]}", "{a:[3] b:2}"},
        {u"{\"\":\"\"}", "{:\"\"}"},
        // Numbers
        {u"{\"a\":[0,-0,-7,9223372036854775807,-9223372036854775808]}",
         "{a:[0 0 -7 9223372036854775807 -9223372036854775808]}"},
        {u"{\"a\":[9223372036854775808,-9223372036854775809,18446744073709551616]}",
         "{a:[9223372036854775808.000000 -9223372036854775808.000000 18446744073709551616.000000]}"},
        {u"{\"a\":[1.5,-0.25e1,1e2,1E-400]}", "{a:[1.500000 -2.500000 100.000000 0.000000]}"},
        {u"{\"a\":1e400}", "none"},
        {u"{\"a\":01}", "none"},
        {u"{\"a\":+1}", "none"},
        {u"{\"a\":1.}", "none"},
        // Strings
        {u"{\"\u00E9\U0001F600\":\"\u4E2D\"}", "{\xC3\xA9\xF0\x9F\x98\x80:\"\xE4\xB8\xAD\"}"},
        {u"{\"a\":\"\\u00e9\\uD83D\\uDE00\\n\\t\\/\\\"\"}", "{a:\"\xC3\xA9\xF0\x9F\x98\x80\\n\\t/\"\"}"},
        {u"{\"a\":\"x\\u0000y\"}", "{a:\"x\0y\"}"s},
        {u"{\"a\":\"x\0y\"}"s, "none"},
        {u"{\"a\":\"x\ny\"}", "none"},
        {u"{\"a\":\"\\x\"}", "none"},
        {u"{\"a\":\"\\uD83D\"}", "none"},
        {u"{\"a\":\"\\uDE00\\uD83D\"}", "none"},
        {u"{\"a\":\"\\u12\"}", "none"},
        {std::u16string(u"{\"a\":\"") + char16_t{0xD83D} + u"\"}", "{a:\"\xEF\xBF\xBD\"}"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(metadata(comment(c.json)), c.expected) << utf8(c.json);
}

TEST(Metadata, DepthIsLimited) {
    for (const std::int64_t depth : {2, 63, 64, 65, 5000}) {
        const std::int64_t inner = depth - 1;
        const std::u16string arrays = u"{\"a\":" + repeat(u"[", inner) + repeat(u"]", inner) + u"}";
        const std::u16string objects = repeat(u"{\"a\":", inner) + u"{}" + repeat(u"}", inner);
        EXPECT_EQ(metadata(comment(arrays)) != "none", depth <= 64) << depth;
        EXPECT_EQ(metadata(comment(objects)) != "none", depth <= 64) << depth;
    }
    // It is not the number of containers.
    EXPECT_NE(metadata(comment(u"{\"a\":[" + repeat(u"[[],{}],", 200) + u"0]}")), "none");
}

TEST(Metadata, HostileTextsGiveNothing) {
    for (const char16_t* piece : {u"[", u"{\"a\":", u"{\"a\":[", u"{", u"\"", u"-", u"\"\\", u"1", u"1e"})
        for (const std::int64_t count : {64, 5000, 1000000}) {
            SCOPED_TRACE(utf8(piece) + " x " + std::to_string(count));
            EXPECT_EQ(metadata(comment(repeat(piece, count))), "none");
            EXPECT_EQ(metadata(comment(u"{\"a\":" + repeat(piece, count))), "none");
        }
}

TEST(Metadata, LengthIsLimited) {
    const std::u16string head = u"{\"a\":\"";
    for (const std::size_t length : {std::size_t{65535}, std::size_t{65536}, std::size_t{65537}}) {
        const std::u16string value(length - head.size() - 2, u'\u4E2D');
        const auto result = CVNMetadataFromComment(comment(head + value + u"\"}"));
        ASSERT_EQ(result.has_value(), length <= 65536) << length;
        EXPECT_TRUE(!result || result->at(u"a").stringValue() == value);
    }
}

} // namespace
