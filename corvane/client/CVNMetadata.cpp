#include "corvane/client/CVNMetadata.h"

#include <cerrno> // which json.hpp needs, but includes only with streams
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "corvane/scan/Util.h"

namespace {

constexpr std::size_t lengthLimit = 65536;
constexpr std::size_t depthLimit = 64;

/// Builds the object of a JSON text from the parser's events; the library sets their names. A `false` ends
/// the parse. Objects and arrays wait on a stack until they are closed, so that no depth of text needs one of
/// calls.
class ObjectBuilder {
public:
    CVNDictionary result; ///< once the parse has come through

    bool null() { return add({}); }
    bool boolean(bool value) { return add(CVNValue::boolean(value)); }
    bool number_integer(std::int64_t value) { return add(CVNValue::integer(value)); }
    bool number_unsigned(std::uint64_t value) {
        const bool fits = value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
        return add(fits ? CVNValue::integer(static_cast<std::int64_t>(value))
                        : CVNValue::real(static_cast<double>(value)));
    }
    bool number_float(double value, const std::string&) { return add(CVNValue::real(value)); }
    bool string(const std::string& value) { return add(CVNValue::string(Ondo::Util::utf16(value))); }
    bool binary(const std::vector<std::uint8_t>&) { return false; }

    bool start_object(std::size_t) { return open(true); }
    bool start_array(std::size_t) { return !open_.empty() && open(false); }
    bool key(const std::string& name) {
        open_.back().key = Ondo::Util::utf16(name);
        return true;
    }
    bool end_object() {
        CVNDictionary members = std::move(open_.back().members);
        open_.pop_back();
        if (!open_.empty()) return add(CVNValue::dictionary(std::move(members)));
        result = std::move(members);
        return true;
    }
    bool end_array() {
        CVNArray elements = std::move(open_.back().elements);
        open_.pop_back();
        return add(CVNValue::array(std::move(elements)));
    }
    template <class Error>
    bool parse_error(std::size_t, const std::string&, const Error&) {
        return false;
    }

private:
    struct Open {
        bool isObject;
        CVNDictionary members;
        CVNArray elements;
        std::u16string key; ///< of the member whose value comes next
    };

    bool open(bool isObject) {
        if (open_.size() == depthLimit) return false;
        open_.push_back({isObject, {}, {}, {}});
        return true;
    }

    /// A value that stands in no object is none that is asked for. Of members with one name the last counts.
    bool add(CVNValue value) {
        if (open_.empty()) return false;
        Open& around = open_.back();
        if (around.isObject)
            around.members.insert_or_assign(std::move(around.key), std::move(value));
        else
            around.elements.push_back(std::move(value));
        return true;
    }

    std::vector<Open> open_; ///< from the outermost inwards
};

} // namespace

std::optional<CVNDictionary> CVNMetadataFromComment(std::u16string_view comment) {
    if (!comment.starts_with(u"<!--") || comment.size() < 8) return std::nullopt;
    const std::u16string_view text = comment.substr(4, comment.size() - 7);
    // The parser takes a NUL for the end of its input.
    if (text.size() > lengthLimit || text.find(u'\0') != std::u16string_view::npos) return std::nullopt;

    ObjectBuilder builder;
    if (!nlohmann::json::sax_parse(Ondo::Util::utf8(text), &builder)) return std::nullopt;
    return std::move(builder.result);
}
