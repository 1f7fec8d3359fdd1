#include "tests/support/Painted.h"

#include <algorithm>

#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

std::string show(const CVNListInfo& info) {
    const std::pair<const char*, std::int64_t> fields[] = {{"level", info.listLevel},
                                                           {"index", info.itemIndex},
                                                           {"type", info.listType},
                                                           {"subtype", info.listSubType},
                                                           {"task", info.taskType},
                                                           {"number", info.orderedListItemNumber},
                                                           {"relative", info.relativeListLevel}};
    std::string out;
    for (const auto& [name, number] : fields)
        if (number != 0) out += (out.empty() ? "" : " ") + std::string(name) + ' ' + std::to_string(number);
    return '(' + out + ')';
}

std::string show(const CVNDictionary& dictionary) {
    std::string out;
    for (const auto& [key, value] : dictionary)
        out += (out.empty() ? "" : " ") + Util::utf8(key) + ':' + Test::show(value);
    return '{' + out + '}';
}

std::string show(const CVNArray& array) {
    std::string out;
    for (const CVNValue& value : array)
        out += (out.empty() ? "" : " ") + Test::show(value);
    return '[' + out + ']';
}

} // namespace

std::string show(const CVNValue& value) {
    switch (value.kind()) {
    case CVNValue::Kind::Null:
        return "null";
    case CVNValue::Kind::Integer:
        return std::to_string(value.integerValue());
    case CVNValue::Kind::Boolean:
        return value.booleanValue() ? "true" : "false";
    case CVNValue::Kind::Double:
        return std::to_string(value.doubleValue());
    case CVNValue::Kind::String:
        return '"' + Util::utf8(Util::escape(value.stringValue())) + '"';
    case CVNValue::Kind::Array:
        return show(*value.arrayValue());
    case CVNValue::Kind::Dictionary:
        return show(*value.dictionaryValue());
    case CVNValue::Kind::ListInfo:
        return show(*value.listInfoValue());
    }
    return {};
}

std::string showRuns(const CVNAttributedString& text, bool withDirection) {
    std::string out;
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id) {
        const CVNAttributeName name = CVNAttributeName::withId(id);
        if (name == CVNDirectionAttributeName && !withDirection) continue;
        const AttributeRuns& runs = text.runs(name);
        for (std::int64_t at = 0; at < runs.size(); ++at) {
            const auto length = static_cast<std::size_t>(runs[at].end - runs[at].location);
            out += Util::utf8(name.string().substr(3)) + " |" +
                   visible(text.string().substr(static_cast<std::size_t>(runs[at].location), length)) + "| " +
                   show(runs[at].value) + '\n';
        }
    }
    return out;
}

Painted::Painted(const CVNAST& note) : length_(note.markdownLength()) {
    for (std::vector<std::string>& values : values_)
        values.resize(static_cast<std::size_t>(length_));
    repaint(note, {0, length_});
}

void Painted::replace(CVNRange range, std::int64_t inserted) {
    for (std::vector<std::string>& values : values_) {
        const auto start = values.begin() + range.location;
        values.insert(values.erase(start, start + range.length), static_cast<std::size_t>(inserted), {});
    }
    length_ += inserted - range.length;
}

void Painted::repaint(const CVNAST& note, CVNRange range) {
    const CVNAttributedString text = note.annotatedStringForRange(range);
    for (std::size_t id = 0; id < values_.size(); ++id) {
        const auto start = values_[id].begin() + range.location;
        std::fill(start, start + text.length(), std::string());
        const AttributeRuns& runs = text.runs(CVNAttributeName::withId(static_cast<std::int64_t>(id)));
        for (std::int64_t at = 0; at < runs.size(); ++at)
            std::fill(start + runs[at].location, start + runs[at].end, show(runs[at].value));
    }
}

std::string Painted::difference(const CVNAST& note, const std::vector<CVNAttributeName>& skipped) const {
    CVNAST fresh;
    fresh.ast = std::make_unique<Tree>(std::u16string(note.markdown()), note.ast->ruleSet);
    const Painted wanted(fresh);
    if (wanted.length_ != length_) return "the length differs";
    for (std::size_t id = 0; id < values_.size(); ++id) {
        const CVNAttributeName name = CVNAttributeName::withId(static_cast<std::int64_t>(id));
        if (std::find(skipped.begin(), skipped.end(), name) != skipped.end() ||
            values_[id] == wanted.values_[id])
            continue;
        std::size_t at = 0;
        while (values_[id][at] == wanted.values_[id][at])
            ++at;
        return Util::utf8(name.string()) + " at " + std::to_string(at) + " is painted " + values_[id][at] +
               ", a fresh object has " + wanted.values_[id][at];
    }
    return {};
}

} // namespace Ondo::Test
