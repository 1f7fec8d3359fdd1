#include "capi/Json.h"

#include <charconv>
#include <iterator>

#include "corvane/scan/Util.h"

namespace CApi {

namespace {

using Ondo::Util::toString;

void addValue(const CVNValue& value, std::u16string& out);

void addEscape(char16_t unit, std::u16string& out) {
    out += u"\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        out += u"0123456789abcdef"[(unit >> shift) & 0xF];
}

void addString(std::u16string_view text, std::u16string& out) {
    out += u'"';
    for (std::int64_t at = 0; at < std::ssize(text);) {
        const char32_t c = Ondo::Util::codePointAt(text, at);
        const bool isLoneSurrogate = (c & 0xFFFFF800) == 0xD800;
        if (c == u'"' || c == u'\\')
            out += {u'\\', static_cast<char16_t>(c)};
        else if (c < 0x20 || isLoneSurrogate)
            addEscape(static_cast<char16_t>(c), out);
        else
            Ondo::Util::addUtf16(c, out);
        at += Ondo::Util::codeUnitCount(c);
    }
    out += u'"';
}

/// The shortest digits that give the number back.
void addFraction(double number, std::u16string& out) {
    char digits[32];
    char* const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    out.append(std::begin(digits), end);
}

/// Adds what stands between two brackets, one element after the other.
template <class Elements, class Add>
void addAll(char16_t open, const Elements& elements, Add add, char16_t close, std::u16string& out) {
    out += open;
    for (const auto& element : elements) {
        if (&element != &*elements.begin()) out += u',';
        add(element);
    }
    out += close;
}

void addDictionary(const CVNDictionary& dictionary, std::u16string& out) {
    const auto addMember = [&out](const CVNDictionary::value_type& member) {
        addString(member.first, out);
        out += u':';
        addValue(member.second, out);
    };
    addAll(u'{', dictionary, addMember, u'}', out);
}

void addValue(const CVNValue& value, std::u16string& out) {
    switch (value.kind()) {
    case CVNValue::Kind::Integer:
        out += toString(value.integerValue());
        break;
    case CVNValue::Kind::Boolean:
        out += value.booleanValue() ? u"true" : u"false";
        break;
    case CVNValue::Kind::Double:
        addFraction(value.doubleValue(), out);
        break;
    case CVNValue::Kind::String:
        addString(value.stringValue(), out);
        break;
    case CVNValue::Kind::Dictionary:
        addDictionary(*value.dictionaryValue(), out);
        break;
    case CVNValue::Kind::Array:
        addAll(
            u'[', *value.arrayValue(), [&out](const CVNValue& each) { addValue(each, out); }, u']', out);
        break;
    case CVNValue::Kind::Null:
    case CVNValue::Kind::ListInfo:
        out += u"null";
        break;
    }
}

} // namespace

std::u16string toJson(const CVNDictionary& dictionary) {
    std::u16string out;
    addDictionary(dictionary, out);
    return out;
}

} // namespace CApi
