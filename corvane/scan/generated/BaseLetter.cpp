// Written by tools/generate_unicode.py; do not edit.
// Unicode 13.0.0: decompositions of Python's unicodedata, categories and scripts of @unicode/unicode-13.0.0 1.6.17 (npm).
#include "corvane/scan/Unicode.h"

namespace Ondo {

static constexpr char16_t alternating(char16_t c, char16_t even, char16_t odd) {
    return (c & 1) == 0 ? even : odd;
}

char16_t baseLetter(char16_t c) {
    if (c < 0xC0) return c;
    if (c < 0x476) {
        if (c < 0x1FA) {
            if (c < 0x136) {
                if (c < 0xF1) {
                    if (c < 0xD9) {
                        if (c < 0xCC) {
                            if (c < 0xC7) return c <= 0xC5 ? u'A' : c;
                            if (c < 0xC8) return u'C';
                            return u'E';
                        }
                        if (c < 0xD1) return c <= 0xCF ? u'I' : c;
                        if (c < 0xD2) return u'N';
                        return c <= 0xD6 ? u'O' : c;
                    }
                    if (c < 0xE7) {
                        if (c < 0xDD) return u'U';
                        if (c < 0xE0) return c == 0xDD ? u'Y' : c;
                        return c <= 0xE5 ? u'a' : c;
                    }
                    if (c < 0xE8) return u'c';
                    if (c < 0xEC) return u'e';
                    return c <= 0xEF ? u'i' : c;
                }
                if (c < 0x106) {
                    if (c < 0xFD) {
                        if (c < 0xF2) return u'n';
                        if (c < 0xF9) return c <= 0xF6 ? u'o' : c;
                        return u'u';
                    }
                    if (c < 0xFF) return c == 0xFD ? u'y' : c;
                    if (c < 0x100) return u'y';
                    return alternating(c, u'A', u'a');
                }
                if (c < 0x11C) {
                    if (c < 0x10E) return alternating(c, u'C', u'c');
                    if (c < 0x112) return c <= 0x10F ? alternating(c, u'D', u'd') : c;
                    return alternating(c, u'E', u'e');
                }
                if (c < 0x128) {
                    if (c < 0x124) return alternating(c, u'G', u'g');
                    return c <= 0x125 ? alternating(c, u'H', u'h') : c;
                }
                if (c < 0x134) return c <= 0x130 ? alternating(c, u'I', u'i') : c;
                return alternating(c, u'J', u'j');
            }
            if (c < 0x1CD) {
                if (c < 0x162) {
                    if (c < 0x14C) {
                        if (c < 0x139) return c <= 0x137 ? alternating(c, u'K', u'k') : c;
                        if (c < 0x143) return c <= 0x13E ? alternating(c, u'l', u'L') : c;
                        return c <= 0x148 ? alternating(c, u'n', u'N') : c;
                    }
                    if (c < 0x154) return c <= 0x151 ? alternating(c, u'O', u'o') : c;
                    if (c < 0x15A) return alternating(c, u'R', u'r');
                    return alternating(c, u'S', u's');
                }
                if (c < 0x176) {
                    if (c < 0x168) return c <= 0x165 ? alternating(c, u'T', u't') : c;
                    if (c < 0x174) return alternating(c, u'U', u'u');
                    return alternating(c, u'W', u'w');
                }
                if (c < 0x1A0) {
                    if (c < 0x179) return alternating(c, u'Y', u'y');
                    return c <= 0x17E ? alternating(c, u'z', u'Z') : c;
                }
                if (c < 0x1AF) return c <= 0x1A1 ? alternating(c, u'O', u'o') : c;
                return c <= 0x1B0 ? alternating(c, u'u', u'U') : c;
            }
            if (c < 0x1E6) {
                if (c < 0x1D3) {
                    if (c < 0x1CF) return alternating(c, u'a', u'A');
                    if (c < 0x1D1) return alternating(c, u'i', u'I');
                    return alternating(c, u'o', u'O');
                }
                if (c < 0x1DE) return c <= 0x1DC ? alternating(c, u'u', u'U') : c;
                if (c < 0x1E2) return alternating(c, u'A', u'a');
                return c <= 0x1E3 ? alternating(c, u'\u00C6', u'\u00E6') : c;
            }
            if (c < 0x1EE) {
                if (c < 0x1E8) return alternating(c, u'G', u'g');
                if (c < 0x1EA) return alternating(c, u'K', u'k');
                return alternating(c, u'O', u'o');
            }
            if (c < 0x1F4) {
                if (c < 0x1F0) return alternating(c, u'\u01B7', u'\u0292');
                return c == 0x1F0 ? u'j' : c;
            }
            if (c < 0x1F8) return c <= 0x1F5 ? alternating(c, u'G', u'g') : c;
            return alternating(c, u'N', u'n');
        }
        if (c < 0x3AB) {
            if (c < 0x226) {
                if (c < 0x20C) {
                    if (c < 0x200) {
                        if (c < 0x1FC) return alternating(c, u'A', u'a');
                        if (c < 0x1FE) return alternating(c, u'\u00C6', u'\u00E6');
                        return alternating(c, u'\u00D8', u'\u00F8');
                    }
                    if (c < 0x204) return alternating(c, u'A', u'a');
                    if (c < 0x208) return alternating(c, u'E', u'e');
                    return alternating(c, u'I', u'i');
                }
                if (c < 0x218) {
                    if (c < 0x210) return alternating(c, u'O', u'o');
                    if (c < 0x214) return alternating(c, u'R', u'r');
                    return alternating(c, u'U', u'u');
                }
                if (c < 0x21A) return alternating(c, u'S', u's');
                if (c < 0x21E) return c <= 0x21B ? alternating(c, u'T', u't') : c;
                return c <= 0x21F ? alternating(c, u'H', u'h') : c;
            }
            if (c < 0x389) {
                if (c < 0x232) {
                    if (c < 0x228) return alternating(c, u'A', u'a');
                    if (c < 0x22A) return alternating(c, u'E', u'e');
                    return alternating(c, u'O', u'o');
                }
                if (c < 0x386) return c <= 0x233 ? alternating(c, u'Y', u'y') : c;
                if (c < 0x388) return c == 0x386 ? u'\u0391' : c;
                return u'\u0395';
            }
            if (c < 0x38E) {
                if (c < 0x38A) return u'\u0397';
                if (c < 0x38C) return c == 0x38A ? u'\u0399' : c;
                return c == 0x38C ? u'\u039F' : c;
            }
            if (c < 0x390) {
                if (c < 0x38F) return u'\u03A5';
                return u'\u03A9';
            }
            if (c < 0x3AA) return c == 0x390 ? u'\u03B9' : c;
            return u'\u0399';
        }
        if (c < 0x403) {
            if (c < 0x3CA) {
                if (c < 0x3AE) {
                    if (c < 0x3AC) return u'\u03A5';
                    if (c < 0x3AD) return u'\u03B1';
                    return u'\u03B5';
                }
                if (c < 0x3AF) return u'\u03B7';
                if (c < 0x3B0) return u'\u03B9';
                return c == 0x3B0 ? u'\u03C5' : c;
            }
            if (c < 0x3CD) {
                if (c < 0x3CB) return u'\u03B9';
                if (c < 0x3CC) return u'\u03C5';
                return u'\u03BF';
            }
            if (c < 0x3D3) {
                if (c < 0x3CE) return u'\u03C5';
                return c == 0x3CE ? u'\u03C9' : c;
            }
            if (c < 0x400) return c <= 0x3D4 ? u'\u03D2' : c;
            return c <= 0x401 ? u'\u0415' : c;
        }
        if (c < 0x439) {
            if (c < 0x40D) {
                if (c < 0x407) return c == 0x403 ? u'\u0413' : c;
                if (c < 0x40C) return c == 0x407 ? u'\u0406' : c;
                return u'\u041A';
            }
            if (c < 0x40E) return u'\u0418';
            if (c < 0x419) return c == 0x40E ? u'\u0423' : c;
            return c == 0x419 ? u'\u0418' : c;
        }
        if (c < 0x457) {
            if (c < 0x450) return c == 0x439 ? u'\u0438' : c;
            if (c < 0x453) return c <= 0x451 ? u'\u0435' : c;
            return c == 0x453 ? u'\u0433' : c;
        }
        if (c < 0x45D) {
            if (c < 0x45C) return c == 0x457 ? u'\u0456' : c;
            return u'\u043A';
        }
        if (c < 0x45E) return u'\u0438';
        return c == 0x45E ? u'\u0443' : c;
    }
    if (c < 0x1F10) {
        if (c < 0x1E3E) {
            if (c < 0x4F4) {
                if (c < 0x4DE) {
                    if (c < 0x4D6) {
                        if (c < 0x4C1) return c <= 0x477 ? alternating(c, u'\u0474', u'\u0475') : c;
                        if (c < 0x4D0) return c <= 0x4C2 ? alternating(c, u'\u0436', u'\u0416') : c;
                        return c <= 0x4D3 ? alternating(c, u'\u0410', u'\u0430') : c;
                    }
                    if (c < 0x4DA) return c <= 0x4D7 ? alternating(c, u'\u0415', u'\u0435') : c;
                    if (c < 0x4DC) return alternating(c, u'\u04D8', u'\u04D9');
                    return alternating(c, u'\u0416', u'\u0436');
                }
                if (c < 0x4EA) {
                    if (c < 0x4E2) return c <= 0x4DF ? alternating(c, u'\u0417', u'\u0437') : c;
                    if (c < 0x4E6) return alternating(c, u'\u0418', u'\u0438');
                    return c <= 0x4E7 ? alternating(c, u'\u041E', u'\u043E') : c;
                }
                if (c < 0x4EC) return alternating(c, u'\u04E8', u'\u04E9');
                if (c < 0x4EE) return alternating(c, u'\u042D', u'\u044D');
                return alternating(c, u'\u0423', u'\u0443');
            }
            if (c < 0x1E14) {
                if (c < 0x1E02) {
                    if (c < 0x4F8) return c <= 0x4F5 ? alternating(c, u'\u0427', u'\u0447') : c;
                    if (c < 0x1E00) return c <= 0x4F9 ? alternating(c, u'\u042B', u'\u044B') : c;
                    return alternating(c, u'A', u'a');
                }
                if (c < 0x1E08) return alternating(c, u'B', u'b');
                if (c < 0x1E0A) return alternating(c, u'C', u'c');
                return alternating(c, u'D', u'd');
            }
            if (c < 0x1E22) {
                if (c < 0x1E1E) return alternating(c, u'E', u'e');
                if (c < 0x1E20) return alternating(c, u'F', u'f');
                return alternating(c, u'G', u'g');
            }
            if (c < 0x1E30) {
                if (c < 0x1E2C) return alternating(c, u'H', u'h');
                return alternating(c, u'I', u'i');
            }
            if (c < 0x1E36) return alternating(c, u'K', u'k');
            return alternating(c, u'L', u'l');
        }
        if (c < 0x1E96) {
            if (c < 0x1E6A) {
                if (c < 0x1E54) {
                    if (c < 0x1E44) return alternating(c, u'M', u'm');
                    if (c < 0x1E4C) return alternating(c, u'N', u'n');
                    return alternating(c, u'O', u'o');
                }
                if (c < 0x1E58) return alternating(c, u'P', u'p');
                if (c < 0x1E60) return alternating(c, u'R', u'r');
                return alternating(c, u'S', u's');
            }
            if (c < 0x1E80) {
                if (c < 0x1E72) return alternating(c, u'T', u't');
                if (c < 0x1E7C) return alternating(c, u'U', u'u');
                return alternating(c, u'V', u'v');
            }
            if (c < 0x1E8E) {
                if (c < 0x1E8A) return alternating(c, u'W', u'w');
                return alternating(c, u'X', u'x');
            }
            if (c < 0x1E90) return alternating(c, u'Y', u'y');
            return alternating(c, u'Z', u'z');
        }
        if (c < 0x1EB8) {
            if (c < 0x1E99) {
                if (c < 0x1E97) return u'h';
                if (c < 0x1E98) return u't';
                return u'w';
            }
            if (c < 0x1E9B) return c == 0x1E99 ? u'y' : c;
            if (c < 0x1EA0) return c == 0x1E9B ? u'\u017F' : c;
            return alternating(c, u'A', u'a');
        }
        if (c < 0x1EE4) {
            if (c < 0x1EC8) return alternating(c, u'E', u'e');
            if (c < 0x1ECC) return alternating(c, u'I', u'i');
            return alternating(c, u'O', u'o');
        }
        if (c < 0x1F00) {
            if (c < 0x1EF2) return alternating(c, u'U', u'u');
            return c <= 0x1EF9 ? alternating(c, u'Y', u'y') : c;
        }
        if (c < 0x1F08) return u'\u03B1';
        return u'\u0391';
    }
    if (c < 0x1F98) {
        if (c < 0x1F5F) {
            if (c < 0x1F40) {
                if (c < 0x1F28) {
                    if (c < 0x1F18) return c <= 0x1F15 ? u'\u03B5' : c;
                    if (c < 0x1F20) return c <= 0x1F1D ? u'\u0395' : c;
                    return u'\u03B7';
                }
                if (c < 0x1F30) return u'\u0397';
                if (c < 0x1F38) return u'\u03B9';
                return u'\u0399';
            }
            if (c < 0x1F59) {
                if (c < 0x1F48) return c <= 0x1F45 ? u'\u03BF' : c;
                if (c < 0x1F50) return c <= 0x1F4D ? u'\u039F' : c;
                return c <= 0x1F57 ? u'\u03C5' : c;
            }
            if (c < 0x1F5B) return c == 0x1F59 ? u'\u03A5' : c;
            if (c < 0x1F5D) return c == 0x1F5B ? u'\u03A5' : c;
            return c == 0x1F5D ? u'\u03A5' : c;
        }
        if (c < 0x1F76) {
            if (c < 0x1F70) {
                if (c < 0x1F60) return u'\u03A5';
                if (c < 0x1F68) return u'\u03C9';
                return u'\u03A9';
            }
            if (c < 0x1F72) return u'\u03B1';
            if (c < 0x1F74) return u'\u03B5';
            return u'\u03B7';
        }
        if (c < 0x1F7C) {
            if (c < 0x1F78) return u'\u03B9';
            if (c < 0x1F7A) return u'\u03BF';
            return u'\u03C5';
        }
        if (c < 0x1F88) {
            if (c < 0x1F80) return c <= 0x1F7D ? u'\u03C9' : c;
            return u'\u03B1';
        }
        if (c < 0x1F90) return u'\u0391';
        return u'\u03B7';
    }
    if (c < 0x1FD8) {
        if (c < 0x1FBE) {
            if (c < 0x1FB0) {
                if (c < 0x1FA0) return u'\u0397';
                if (c < 0x1FA8) return u'\u03C9';
                return u'\u03A9';
            }
            if (c < 0x1FB6) return c <= 0x1FB4 ? u'\u03B1' : c;
            if (c < 0x1FB8) return u'\u03B1';
            return c <= 0x1FBC ? u'\u0391' : c;
        }
        if (c < 0x1FC8) {
            if (c < 0x1FC2) return c == 0x1FBE ? u'\u03B9' : c;
            if (c < 0x1FC6) return c <= 0x1FC4 ? u'\u03B7' : c;
            return u'\u03B7';
        }
        if (c < 0x1FD0) {
            if (c < 0x1FCA) return u'\u0395';
            return c <= 0x1FCC ? u'\u0397' : c;
        }
        if (c < 0x1FD6) return c <= 0x1FD3 ? u'\u03B9' : c;
        return u'\u03B9';
    }
    if (c < 0x1FF2) {
        if (c < 0x1FE6) {
            if (c < 0x1FE0) return c <= 0x1FDB ? u'\u0399' : c;
            if (c < 0x1FE4) return u'\u03C5';
            return u'\u03C1';
        }
        if (c < 0x1FE8) return u'\u03C5';
        if (c < 0x1FEC) return u'\u03A5';
        return c == 0x1FEC ? u'\u03A1' : c;
    }
    if (c < 0x1FFA) {
        if (c < 0x1FF6) return c <= 0x1FF4 ? u'\u03C9' : c;
        if (c < 0x1FF8) return u'\u03C9';
        return u'\u039F';
    }
    if (c < 0x212A) {
        if (c < 0x2126) return c <= 0x1FFC ? u'\u03A9' : c;
        return c == 0x2126 ? u'\u03A9' : c;
    }
    if (c < 0x212B) return u'K';
    return c == 0x212B ? u'A' : c;
}

} // namespace Ondo
