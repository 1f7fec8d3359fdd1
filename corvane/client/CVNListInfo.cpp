#include "corvane/client/CVNListInfo.h"

#include "corvane/client/ValueText.h"

namespace {

using CVN::ValueText::unsignedString;

struct Field {
    std::u16string_view codingKey;
    std::int64_t CVNListInfo::*value;
};
constexpr Field fields[] = {
    {u"listLevel", &CVNListInfo::listLevel},
    {u"itemIndex", &CVNListInfo::itemIndex},
    {u"listType", &CVNListInfo::listType},
    {u"listSubType", &CVNListInfo::listSubType},
    {u"taskType", &CVNListInfo::taskType},
    {u"orderedListItemNumber", &CVNListInfo::orderedListItemNumber},
    {u"relativeListLevel", &CVNListInfo::relativeListLevel},
};

} // namespace

CVNListInfo CVNListInfo::listInfoWithListType(std::int64_t listType, std::int64_t subType,
                                              std::int64_t taskType, std::int64_t level,
                                              std::int64_t itemIndex) {
    CVNListInfo info;
    info.listLevel = level;
    info.itemIndex = itemIndex;
    info.listType = listType;
    info.listSubType = subType;
    info.taskType = taskType;
    return info;
}

std::optional<CVNListInfo> CVNListInfo::initWithCoder(const CVNArchive& archive) {
    CVNListInfo info;
    for (const Field& field : fields) {
        const std::optional<std::int64_t> value = archive.decode(field.codingKey);
        if (!value) return std::nullopt;
        info.*field.value = *value;
    }
    return info;
}

void CVNListInfo::encodeWithCoder(CVNArchive& archive) const {
    for (const Field& field : fields)
        archive.encode(field.codingKey, this->*field.value);
}

std::optional<std::u16string_view> CVNListInfo::orderedListItemNumberDelimiter() const {
    if (listSubType == OrderedDot) return u".";
    if (listSubType == OrderedParenthesis) return u")";
    return std::nullopt;
}

bool CVNListInfo::isEqual(const CVNListInfo& other) const {
    return itemIndex == other.itemIndex && listLevel == other.listLevel && listType == other.listType &&
           listSubType == other.listSubType && taskType == other.taskType &&
           orderedListItemNumber == other.orderedListItemNumber &&
           relativeListLevel == other.relativeListLevel;
}

std::uint64_t CVNListInfo::hash() const {
    if (computedHash_ == 0)
        computedHash_ = CVN::ValueText::hashOf(orderedListItemNumber, itemIndex, listLevel, listType,
                                               listSubType, taskType, relativeListLevel);
    return computedHash_;
}

std::u16string CVNListInfo::description() const {
    return u"List level: " + unsignedString(listLevel) + u" Item index: " + unsignedString(itemIndex);
}
