#include "ValueJson.h"

#include <nlohmann/json.hpp>

#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Json = nlohmann::ordered_json;

Json jsonOf(const CVNValue& value);

Json jsonOf(const CVNListInfo& info) {
    return {{"listLevel", info.listLevel},
            {"itemIndex", info.itemIndex},
            {"listType", info.listType},
            {"listSubType", info.listSubType},
            {"taskType", info.taskType},
            {"orderedListItemNumber", info.orderedListItemNumber},
            {"relativeListLevel", info.relativeListLevel}};
}

Json jsonOf(const CVNArray& array) {
    Json json = Json::array();
    for (const CVNValue& each : array)
        json.push_back(jsonOf(each));
    return json;
}

Json jsonOf(const CVNDictionary& dictionary) {
    Json json = Json::object();
    for (const auto& [name, value] : dictionary)
        json[Ondo::Util::utf8(name)] = jsonOf(value);
    return json;
}

Json jsonOf(const CVNValue& value) {
    switch (value.kind()) {
    case CVNValue::Kind::Null:
        return nullptr;
    case CVNValue::Kind::Integer:
        return value.integerValue();
    case CVNValue::Kind::Boolean:
        return value.booleanValue();
    case CVNValue::Kind::Double:
        return value.doubleValue();
    case CVNValue::Kind::String:
        return Ondo::Util::utf8(value.stringValue());
    case CVNValue::Kind::Array:
        return jsonOf(*value.arrayValue());
    case CVNValue::Kind::Dictionary:
        return jsonOf(*value.dictionaryValue());
    case CVNValue::Kind::ListInfo:
        return jsonOf(*value.listInfoValue());
    }
    return nullptr;
}

/// U+007F to U+009F, which a terminal would obey, as escapes.
std::string withoutControls(const std::string& json) {
    std::string safe;
    for (std::size_t at = 0; at < json.size(); ++at) {
        const auto byte = [&](std::size_t i) { return i < json.size() ? json[i] & 0xFF : 0; };
        const bool isPair = byte(at) == 0xC2 && byte(at + 1) < 0xA0;
        if (!isPair && byte(at) != 0x7F) {
            safe += json[at];
            continue;
        }
        const int unit = isPair ? byte(++at) : 0x7F;
        safe += {'\\', 'u', '0', '0', "0123456789abcdef"[unit >> 4], "0123456789abcdef"[unit & 0xF]};
    }
    return safe;
}

} // namespace

std::string jsonText(const CVNValue& value) {
    return withoutControls(jsonOf(value).dump());
}

std::string jsonText(std::u16string_view text) {
    return withoutControls(Json(Ondo::Util::utf8(text)).dump());
}

std::string listOf(const std::vector<std::int64_t>& numbers) {
    std::string list;
    for (const std::int64_t number : numbers)
        list += (list.empty() ? "" : ",") + std::to_string(number);
    return list;
}

} // namespace Cli
