#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

/// How fuzz targets read their input and report what they find.

namespace Ondo::Fuzz {

/// The bytes that libFuzzer made up, taken from the front.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}

    bool isEmpty() const { return at_ == end_; }
    std::size_t size() const { return static_cast<std::size_t>(end_ - at_); }
    /// 0 at the end.
    std::uint8_t next() { return isEmpty() ? 0 : *at_++; }
    RuleConfig::RuleSet ruleSet() { return Test::allRuleSets[next() % 3]; }
    /// As UTF-8, well formed or not; less where there is less.
    std::u16string text(std::size_t length) { return Util::utf16(take(length)); }
    /// As code units, lone surrogates and all.
    std::u16string units(std::size_t length) {
        const std::string bytes = take(length * 2);
        std::u16string units(bytes.size() / 2, u'\0');
        for (std::size_t i = 0; i < units.size(); ++i)
            units[i] = static_cast<char16_t>((bytes[2 * i] & 0xFF) | (bytes[2 * i + 1] & 0xFF) << 8);
        return units;
    }

private:
    std::string take(std::size_t length) {
        std::string bytes;
        while (length-- > 0 && !isEmpty())
            bytes += static_cast<char>(next());
        return bytes;
    }

    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

/// Stops the process if there is something to say.
inline void stopIf(const Tree& tree, const std::string& what) {
    if (what.empty()) return;
    std::fprintf(stderr, "%s: %s in \"%s\"\n", Test::nameOf(tree.ruleSet), what.c_str(),
                 Test::visible(tree.markdown()).c_str());
    std::abort();
}

} // namespace Ondo::Fuzz
