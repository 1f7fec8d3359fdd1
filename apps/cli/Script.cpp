#include "Script.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <set>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "Input.h"
#include "Outcome.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Json = nlohmann::json;

/// Why a line is no edit.
struct BadLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string quoted(const std::string& name) {
    return '"' + name + '"';
}

/// Refuses while parsing what the parsed value can't show or should not grow to: members given twice, and
/// nesting.
class Guard {
    std::set<std::string> members_;

public:
    bool operator()(int depth, Json::parse_event_t event, const Json& parsed) {
        if (depth > 1 &&
            (event == Json::parse_event_t::array_start || event == Json::parse_event_t::object_start))
            throw BadLine("nested too deeply");
        if (depth == 1 && event == Json::parse_event_t::key) addMember(parsed.get<std::string>());
        return true;
    }

private:
    void addMember(const std::string& name) {
        if (name != "range" && name != "text") throw BadLine("unknown member " + quoted(name));
        if (!members_.insert(name).second) throw BadLine("member " + quoted(name) + " is there twice");
    }
};

/// What the library says, without its own prefix and without the text that it had read.
std::string reason(const Json::parse_error& error) {
    std::string_view what = error.what();
    const std::size_t start = what.find(": ");
    if (start != std::string_view::npos) what.remove_prefix(start + 2);
    return std::string(what.substr(0, what.find("; last read")));
}

Json parseJson(std::string_view line) {
    // The library takes it for the end of the text, and would not look behind it.
    if (line.find('\0') != std::string_view::npos) throw BadLine("a NUL character stands in the line");
    try {
        Guard guard;
        return Json::parse(line, std::ref(guard));
    } catch (const Json::parse_error& error) {
        throw BadLine("not JSON at byte " + std::to_string(error.byte) + " of the line: " + reason(error));
    } catch (const Json::out_of_range&) {
        throw BadLine("a number is too large");
    }
}

const Json& member(const Json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end()) throw BadLine("no member " + quoted(name));
    return *found;
}

bool isCount(const Json& value) {
    return value.is_number_unsigned() &&
           value.get<std::uint64_t>() <= std::numeric_limits<std::int64_t>::max();
}

Ondo::Range rangeOf(const Json& value) {
    if (!value.is_array() || value.size() != 2 || !isCount(value[0]) || !isCount(value[1]))
        throw BadLine("\"range\" is not an array of two whole numbers from 0 to 9223372036854775807");
    return {value[0].get<std::int64_t>(), value[1].get<std::int64_t>()};
}

std::u16string textOf(const Json& value) {
    if (!value.is_string()) throw BadLine("\"text\" is not a string");
    return Ondo::Util::utf16(value.get_ref<const std::string&>());
}

ScriptEdit parseLine(std::string_view line, std::int64_t number) {
    const Json object = parseJson(line);
    if (!object.is_object()) throw BadLine(R"(not an object like {"range":[0,0],"text":""})");
    return {number, rangeOf(member(object, "range")), textOf(member(object, "text"))};
}

bool isBlank(std::string_view line) {
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

} // namespace

std::string linePlace(const std::string& file, std::int64_t line) {
    return displayName(file) + ": line " + std::to_string(line);
}

std::vector<ScriptEdit> parseScript(std::string_view bytes, const std::string& file) {
    std::vector<ScriptEdit> edits;
    for (std::int64_t number = 1; !bytes.empty(); ++number) {
        const std::size_t length = std::min(bytes.find('\n'), bytes.size());
        const std::string_view line = bytes.substr(0, length);
        try {
            if (!isBlank(line)) edits.push_back(parseLine(line, number));
        } catch (const BadLine& bad) {
            throw Failure(linePlace(file, number) + ": " + bad.what());
        }
        bytes.remove_prefix(std::min(length + 1, bytes.size()));
    }
    return edits;
}

} // namespace Cli
