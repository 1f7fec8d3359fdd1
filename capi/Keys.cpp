#include <algorithm>
#include <array>
#include <cstring>

#include "capi/corvane.h"
#include "corvane/client/CVNAttributeName.h"

namespace {

constexpr std::size_t nameCapacity = 40;
using Name = std::array<char, nameCapacity>;

/// The names of all keys, each with a 0 behind it; one that is too long does not compile.
constexpr auto names = [] {
    std::array<Name, CVNAttributeName::count> table{};
    for (std::size_t key = 0; key < table.size(); ++key)
        for (std::size_t i = 0; i < CVNAttributeNameStrings[key].size(); ++i)
            table[key].at(i) = static_cast<char>(CVNAttributeNameStrings[key][i]);
    return table;
}();
static_assert(std::all_of(names.begin(), names.end(), [](const Name& name) { return name.back() == 0; }));

} // namespace

int32_t corvane_key_count() {
    return static_cast<int32_t>(names.size());
}

const char* corvane_key_name(corvane_key key) {
    return key >= 0 && key < corvane_key_count() ? names[static_cast<std::size_t>(key)].data() : nullptr;
}

corvane_key corvane_key_with_name(const char* name) {
    if (!name) return -1;
    const auto found = std::find_if(names.begin(), names.end(),
                                    [name](const Name& each) { return !std::strcmp(each.data(), name); });
    return found != names.end() ? static_cast<corvane_key>(found - names.begin()) : -1;
}
