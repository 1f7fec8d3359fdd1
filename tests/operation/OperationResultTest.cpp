#include "corvane/operation/OperationResult.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Test::applied;
using Ondo::Test::Drawn;
using Ondo::Test::visible;

/// A replacement of `length` units at `offset` of a drawn text.
struct Case {
    std::u16string_view before;
    std::int64_t offset;
    std::int64_t length;
    std::u16string text;
    std::u16string_view after;
};

Result resultOf(const Case& each) {
    const Drawn before(each.before);
    Result result(each.offset, each.length, each.text, before.selection.offset, before.selection.length);
    result.offsetSelection();
    return result;
}

TEST(OperationResult, CarriesTheSelectionOverTheReplacement) {
    const Case cases[] = {
        // before the selection, up to its start
        {u"abc⟦de⟧f", 0, 2, u"XYZ", u"XYZc⟦de⟧f"},
        {u"abc⟦de⟧f", 1, 2, u"", u"a⟦de⟧f"},
        {u"abc⟦de⟧f", 3, 0, u"XY", u"abcXY⟦de⟧f"},
        {u"abc‸def", 3, 0, u"XY", u"abcXY‸def"},
        {u"‸", 0, 0, u"XY", u"XY‸"},
        // behind it, from its end on
        {u"a⟦bc⟧def", 4, 1, u"XYZ", u"a⟦bc⟧dXYZf"},
        {u"a⟦bc⟧def", 3, 2, u"X", u"a⟦bc⟧Xf"},
        {u"a⟦bc⟧def", 3, 0, u"XY", u"a⟦bc⟧XYdef"},
        {u"a‸bcdef", 1, 2, u"X", u"a‸Xdef"}, // a caret at its start counts as before it
        // inside it
        {u"a⟦bcde⟧f", 2, 1, u"XYZ", u"a⟦bXYZde⟧f"},
        {u"a⟦bcde⟧f", 1, 2, u"", u"a⟦de⟧f"},
        {u"a⟦bcde⟧f", 3, 2, u"X", u"a⟦bcX⟧f"},
        {u"a⟦bcde⟧f", 3, 0, u"X", u"a⟦bcXde⟧f"},
        // over all of it
        {u"a⟦bc⟧def", 1, 2, u"XYZ", u"aXYZ‸def"},
        {u"a⟦bc⟧def", 0, 5, u"X", u"X‸f"},
        {u"a⟦bc⟧def", 1, 3, u"", u"a‸ef"},
        {u"ab‸cdef", 1, 3, u"XY", u"aXY‸ef"},
        // over its tail, over its head
        {u"a⟦bcd⟧ef", 2, 3, u"XYZW", u"a⟦b⟧XYZWf"},
        {u"a⟦bcd⟧ef", 3, 2, u"", u"a⟦bc⟧f"},
        {u"ab⟦cde⟧f", 1, 2, u"XYZW", u"aXYZW⟦de⟧f"},
        {u"ab⟦cde⟧f", 0, 4, u"", u"⟦e⟧f"},
        // nothing
        {u"ab⟦cd⟧ef", 2, 0, u"", u"ab⟦cd⟧ef"},
        {u"ab⟦cd⟧ef", 4, 0, u"", u"ab⟦cd⟧ef"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(visible(applied(Drawn(each.before), {resultOf(each)}).drawing()), visible(each.after))
            << visible(each.before) << " with " << visible(each.text) << " for " << each.length << " at "
            << each.offset;
}

TEST(OperationResult, AListCarriesTheSelectionOfItsFirstResultOn) {
    const Drawn before(u"one ⟦two⟧ three");
    std::vector<Result> results;
    Result::addToList(results, 7, 0, u"**", before.selection.offset, before.selection.length);
    Result::addToList(results, 4, 0, u"**", 1, 1);
    Result::addToList(results, 0, 4, u"", 99, 99);
    EXPECT_EQ(visible(applied(before, {results[0]}).drawing()), "one ⟦two⟧** three");
    EXPECT_EQ(visible(applied(before, {results[0], results[1]}).drawing()), "one **⟦two⟧** three");
    EXPECT_EQ(visible(applied(before, results).drawing()), "**⟦two⟧** three");
}

TEST(OperationResult, ACorrectedSelectionIsCarriedOn) {
    const Drawn before(u"a ‸");
    std::vector<Result> results;
    Result::addToList(results, 2, 0, u"****", before.selection.offset, 0);
    results.back().selectionOffset -= 2;
    Result::addToList(results, 0, 0, u"> ", 0, 0);
    EXPECT_EQ(visible(applied(before, results).drawing()), "> a **‸**");
    EXPECT_EQ(results.size(), 2u);
}

TEST(OperationResultDeathTest, NumbersAreNotNegative) {
    const auto pattern = [](const std::string& number) {
        return "\\(" + number + " >= 0\\), function Result.*source OperationResult";
    };
    EXPECT_DEATH(Result(-1, 0, u"", 0, 0), pattern("replaceOffset"));
    EXPECT_DEATH(Result(0, -1, u"", 0, 0), pattern("replaceLength"));
    EXPECT_DEATH(Result(0, 0, u"", -1, 0), pattern("selectionOffset"));
    EXPECT_DEATH(Result(0, 0, u"", 0, -1), pattern("selectionLength"));
    std::vector<Result> results;
    EXPECT_DEATH(Result::addToList(results, 0, 0, u"", 0, -1), pattern("selectionLength"));
}

} // namespace
} // namespace CVN::Operation
