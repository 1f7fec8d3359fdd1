#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/scan/Unicode.h"

/// Predicates over characters, and their builders.
///
/// A predicate is a callable from char32_t to bool, held by value. Each has a type of its own, so that a
/// composed test is inlined into the scanning loop and costs no indirect call per character. The shared
/// constants are members of Go (Go::spaceOrTab ...).

namespace Ondo::Predicate {

/// A predicate made from a function, known at compile time.
template <bool (*Test)(char32_t)>
struct Function {
    constexpr bool operator()(char32_t c) const { return Test(c); }
};

struct Always {
    constexpr bool operator()(char32_t) const { return true; }
};

struct Never {
    constexpr bool operator()(char32_t) const { return false; }
};

struct Character {
    char32_t wanted;
    constexpr bool operator()(char32_t c) const { return c == wanted; }
};

/// True for any code unit of `wanted`, which the caller keeps alive.
struct CharacterAnyOf {
    std::u16string_view wanted;
    constexpr bool operator()(char32_t c) const {
        for (const char16_t unit : wanted)
            if (c == unit) return true;
        return false;
    }
};

template <class A, class B>
struct EitherOf {
    A a;
    B b;
    constexpr bool operator()(char32_t c) const { return a(c) || b(c); }
};

template <class P>
struct No {
    P p;
    constexpr bool operator()(char32_t c) const { return !p(c); }
};

constexpr bool isIn(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

constexpr bool isSpaceOrTab(char32_t c) {
    return c == U' ' || c == U'\t';
}

constexpr bool isWhitespace(char32_t c) {
    return isIn(c, 0x09, 0x0D) || c == U' ';
}

/// Vertical tab is ASCII whitespace, but no Unicode whitespace here, as in CommonMark.
constexpr bool isUnicodeWhitespace(char32_t c) {
    if (c < 0x80) return c == U' ' || c == 0x09 || c == 0x0A || c == 0x0C || c == 0x0D;
    return c == 0xA0 || c == 0x1680 || isIn(c, 0x2000, 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F ||
           c == 0x205F || c == 0x3000;
}

constexpr bool isLineEndingCharacter(char32_t c) {
    return c == U'\n' || c == U'\r';
}

constexpr bool isAsciiPunctuation(char32_t c) {
    return isIn(c, 0x21, 0x2F) || isIn(c, 0x3A, 0x40) || isIn(c, 0x5B, 0x60) || isIn(c, 0x7B, 0x7E);
}

inline bool isUnicodeOpenClosePunctuation(char32_t c) {
    return isUnicodeOpenPunctuation(c) || isUnicodeClosePunctuation(c);
}

inline bool isUnicodePunctuationOrSymbol(char32_t c) {
    return isUnicodePunctuation(c) || isUnicodeSymbol(c);
}

constexpr bool isDecimalNumber(char32_t c) {
    return isIn(c, U'0', U'9');
}

constexpr bool isHexadecimalNumber(char32_t c) {
    return isDecimalNumber(c) || isIn(c, U'A', U'F') || isIn(c, U'a', U'f');
}

/// Characters of scripts that set no spaces between words. Kana count: emphasis around «太字» must close
/// before the «の» that follows it.
constexpr bool isLogogram(char32_t c) {
    return isIn(c, 0x2E80, 0x2EFF) || isIn(c, 0x2F00, 0x2FDF) || isIn(c, 0x3000, 0x30FF) ||
           isIn(c, 0x3200, 0x33FF) || isIn(c, 0x3400, 0x4DBF) || isIn(c, 0x4E00, 0x9FCF) ||
           isIn(c, 0xAC00, 0xD7AF) || isIn(c, 0xF900, 0xFAFF) || isIn(c, 0xFE30, 0xFE4F) ||
           isIn(c, 0x20000, 0x2A6DF) || isIn(c, 0x2F800, 0x2FA1F);
}

} // namespace Ondo::Predicate
