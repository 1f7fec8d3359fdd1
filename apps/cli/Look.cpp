#include "Look.h"

namespace Cli {

namespace {

// Of middling brightness, to be read on dark and on light.
enum Hue : int { Blue = 33, Cyan = 37, Green = 71, Grey = 244, Orange = 172, Purple = 134, Red = 167 };

/// Colours of pens, to write on with black.
enum Ink : int { Black = 16, RedInk = 210, BlueInk = 117, GreenInk = 120, YellowInk = 227, PurpleInk = 183 };

constexpr int Same = -2; // as the rows above left it

/// What a row does to the look that the rows above it left.
struct Change {
    unsigned on = 0; ///< attributes
    unsigned off = 0;
    int foreground = Same;
    int background = Same;
    Form form = Form::Text; ///< which changes nothing
};

struct Row {
    CVNAttributeName key;
    bool (*test)(const CVNValue&);
    Change change;
};

bool any(const CVNValue&) {
    return true;
}

template <std::int64_t number>
bool is(const CVNValue& value) {
    return value.integerValue() == number;
}

/// The value that tells the cells of a table's delimiter row from others.
bool isBoolean(const CVNValue& value) {
    return value.kind() == CVNValue::Kind::Boolean;
}

constexpr Change mark = {.on = Dim, .off = Bold | Italic | Underline | Strike};
constexpr Change aside = {.on = Dim, .foreground = TerminalColor};
constexpr Change link = {.on = Underline, .foreground = Blue};
constexpr Change code = {.foreground = Cyan};
constexpr Change formula = {.on = Italic, .foreground = Orange};

constexpr Change ink(int color) {
    return {.foreground = Black, .background = color};
}

constexpr Change callout(int color) {
    return {.on = Bold, .foreground = color};
}

/// The keys that change a look, and how: later rows have the last word.
constexpr Row rows[] = {
    // Blocks
    {CVNHeadingAttributeName, any, {.on = Bold, .foreground = Purple}},
    {CVNHeadingAttributeName, is<1>, {.on = Underline}},
    {CVNBlockquoteMarkerAttributeName, any, {.foreground = Grey, .form = Form::Bar}},
    {CVNCalloutAttributeName, is<0>, callout(Blue)},
    {CVNCalloutAttributeName, is<1>, callout(Green)},
    {CVNCalloutAttributeName, is<2>, callout(Purple)},
    {CVNCalloutAttributeName, is<3>, callout(Orange)},
    {CVNCalloutAttributeName, is<4>, callout(Red)},
    {CVNIndentedCodeAttributeName, any, code},
    {CVNFencedCodeAttributeName, any, code},
    {CVNFencedCodeLanguageAttributeName, any, mark},
    {CVNMathBlockAttributeName, any, formula},
    {CVNHTMLBlockAttributeName, any, aside},
    {CVNReferenceDefinitionLabelAttributeName, any, {.foreground = Blue}},
    {CVNReferenceDefinitionLinkAttributeName, any, aside},
    {CVNReferenceDefinitionTitleAttributeName, any, aside},

    // Inlines
    {CVNStrongAttributeName, any, {.on = Bold}},
    {CVNEmphasisAttributeName, any, {.on = Italic}},
    {CVNStrikethroughAttributeName, any, {.on = Strike}},
    {CVNUnderlineAttributeName, any, {.on = Underline}},
    {CVNCodeAttributeName, any, code},
    {CVNMathSpanAttributeName, any, formula},
    {CVNHTMLEntityAttributeName, any, {.foreground = Orange}},
    {CVNHTMLInlineAttributeName, any, aside},
    {CVNArrowAttributeName, any, {.foreground = Orange}},
    {CVNLinkLabelAttributeName, any, link},
    {CVNReferenceTextAttributeName, any, link},
    {CVNReferenceLabelAttributeName, any, {.foreground = Blue}},
    {CVNImageLabelAttributeName, any, {.on = Italic, .off = Underline, .foreground = Green}},
    {CVNAutoLinkURLAttributeName, any, link},
    {CVNAutoLinkEmailAttributeName, any, link},
    {CVNWikiLinkAttributeName, any, link},
    {CVNHashtagAttributeName, any, {.foreground = Green}},
    {CVNFootNoteLabelAttributeName, any, {.foreground = Blue}},
    {CVNLinkURLAttributeName, any, mark},
    {CVNLinkTitleAttributeName, any, mark},
    {CVNImageURLAttributeName, any, mark},
    {CVNImageTitleAttributeName, any, mark},

    // Markers
    {CVNHeadingMarkerAttributeName, any, mark},
    {CVNListMarkerAttributeName, any, {.on = Dim, .form = Form::Task}},
    {CVNThematicBreakAttributeName, any, {.on = Dim, .form = Form::Line}},
    {CVNFencedCodeMarkerAttributeName, any, mark},
    {CVNMathBlockMarkerAttributeName, any, mark},
    {CVNTableMarkerAttributeName, any, mark},
    {CVNTableCellAttributeName, isBoolean, mark},
    {CVNFootNoteMarkerAttributeName, any, mark},
    {CVNReferenceMarkerAttributeName, any, mark},
    {CVNStrongMarkerAttributeName, any, mark},
    {CVNEmphasisMarkerAttributeName, any, mark},
    {CVNStrikethroughMarkerAttributeName, any, mark},
    {CVNUnderlineMarkerAttributeName, any, mark},
    {CVNCodeMarkerAttributeName, any, mark},
    {CVNHighlighterMarkerAttributeName, any, mark},
    {CVNHashtagMarkerAttributeName, any, mark},
    {CVNHashtagSeparatorAttributeName, any, mark},
    {CVNEscapeAttributeName, any, mark},
    {CVNHardLinebreakAttributeName, any, mark},
    {CVNHTMLEntityMarkerAttributeName, any, mark},
    {CVNAutoLinkMarkerAttributeName, any, mark},
    {CVNMathSpanMarkerAttributeName, any, mark},
    {CVNWikiLinkMarkerAttributeName, any, mark},
    {CVNWikiLinkSeparatorAttributeName, any, mark},
    {CVNWikiLinkAliasSeparatorAttributeName, any, mark},
    {CVNLinkMarkerAttributeName, any, mark},
    {CVNImageMarkerAttributeName, any, mark},

    // Wholes that outweigh their parts
    {CVNHighlighterColorAttributeName, is<0>, ink(YellowInk)},
    {CVNHighlighterColorAttributeName, is<1>, ink(RedInk)},
    {CVNHighlighterColorAttributeName, is<2>, ink(BlueInk)},
    {CVNHighlighterColorAttributeName, is<3>, ink(GreenInk)},
    {CVNHighlighterColorAttributeName, is<4>, ink(YellowInk)},
    {CVNHighlighterColorAttributeName, is<5>, ink(PurpleInk)},
    {CVNColorAttributeName, any, {.form = Form::Swatch}},
    {CVNYamlAttributeName, any, aside},
    {CVNMetadataAttributeName, any, aside},
    {CVNFoldMarkerAttributeName, any, {.form = Form::Hidden}},
    {CVNFoldAttributeName, any, {.on = Dim, .form = Form::Fold}},
};

int changed(int color, int change) {
    return change == Same ? color : change;
}

void apply(const Change& change, Look& look) {
    look.pen.attributes = (look.pen.attributes | change.on) & ~change.off;
    look.pen.foreground = changed(look.pen.foreground, change.foreground);
    look.pen.background = changed(look.pen.background, change.background);
    if (change.form != Form::Text) look.form = change.form;
}

} // namespace

Look lookOf(const Values& values) {
    Look look;
    for (const Row& row : rows) {
        const CVNValue* value = values[row.key.id()];
        if (value && row.test(*value)) apply(row.change, look);
    }
    return look;
}

} // namespace Cli
