// Written by tools/generate_unicode.py; do not edit.
// Unicode 13.0.0: Case_Folding of @unicode/unicode-13.0.0 1.6.17 (npm).
#include "corvane/scan/Unicode.h"

namespace Ondo {

using namespace std::string_view_literals;

char32_t commonCaseFolding(char32_t c) {
    if (c < 0x80) {
        if (c < 0x41) return c;
        return c <= 0x5A ? c + 0x20 : c;
    }
    if (c < 0xB5) return c;
    if (c < 0x10A0) {
        if (c < 0x1F2) {
            if (c < 0x198) {
                if (c < 0x186) {
                    if (c < 0x14A) {
                        if (c < 0x100) {
                            if (c < 0xC0) return c == 0xB5 ? c + 0x307 : c;
                            if (c < 0xD8) return c <= 0xD6 ? c + 0x20 : c;
                            return c <= 0xDE ? c + 0x20 : c;
                        }
                        if (c < 0x132) return c <= 0x12E ? c | 1 : c;
                        if (c < 0x139) return c <= 0x136 ? c | 1 : c;
                        return c <= 0x147 ? c + (c & 1) : c;
                    }
                    if (c < 0x17F) {
                        if (c < 0x178) return c <= 0x176 ? c | 1 : c;
                        if (c < 0x179) return c - 0x79;
                        return c <= 0x17D ? c + (c & 1) : c;
                    }
                    if (c < 0x181) return c == 0x17F ? c - 0x10C : c;
                    if (c < 0x182) return c + 0xD2;
                    return c <= 0x184 ? c | 1 : c;
                }
                if (c < 0x190) {
                    if (c < 0x18B) {
                        if (c < 0x187) return c + 0xCE;
                        if (c < 0x189) return c == 0x187 ? c + 0x1 : c;
                        return c + 0xCD;
                    }
                    if (c < 0x18E) return c == 0x18B ? c + 0x1 : c;
                    if (c < 0x18F) return c + 0x4F;
                    return c + 0xCA;
                }
                if (c < 0x194) {
                    if (c < 0x191) return c + 0xCB;
                    if (c < 0x193) return c == 0x191 ? c + 0x1 : c;
                    return c + 0xCD;
                }
                if (c < 0x196) return c == 0x194 ? c + 0xCF : c;
                if (c < 0x197) return c + 0xD3;
                return c + 0xD1;
            }
            if (c < 0x1B3) {
                if (c < 0x1A7) {
                    if (c < 0x19F) {
                        if (c < 0x19C) return c == 0x198 ? c + 0x1 : c;
                        if (c < 0x19D) return c + 0xD3;
                        return c == 0x19D ? c + 0xD5 : c;
                    }
                    if (c < 0x1A0) return c + 0xD6;
                    if (c < 0x1A6) return c <= 0x1A4 ? c | 1 : c;
                    return c + 0xDA;
                }
                if (c < 0x1AE) {
                    if (c < 0x1A9) return c == 0x1A7 ? c + 0x1 : c;
                    if (c < 0x1AC) return c == 0x1A9 ? c + 0xDA : c;
                    return c == 0x1AC ? c + 0x1 : c;
                }
                if (c < 0x1AF) return c + 0xDA;
                if (c < 0x1B1) return c == 0x1AF ? c + 0x1 : c;
                return c + 0xD9;
            }
            if (c < 0x1C7) {
                if (c < 0x1BC) {
                    if (c < 0x1B7) return c <= 0x1B5 ? c + (c & 1) : c;
                    if (c < 0x1B8) return c + 0xDB;
                    return c == 0x1B8 ? c + 0x1 : c;
                }
                if (c < 0x1C4) return c == 0x1BC ? c + 0x1 : c;
                if (c < 0x1C5) return c + 0x2;
                return c == 0x1C5 ? c + 0x1 : c;
            }
            if (c < 0x1CB) {
                if (c < 0x1C8) return c + 0x2;
                if (c < 0x1CA) return c == 0x1C8 ? c + 0x1 : c;
                return c + 0x2;
            }
            if (c < 0x1DE) return c <= 0x1DB ? c + (c & 1) : c;
            if (c < 0x1F1) return c <= 0x1EE ? c | 1 : c;
            return c + 0x2;
        }
        if (c < 0x3A3) {
            if (c < 0x244) {
                if (c < 0x23A) {
                    if (c < 0x1F8) {
                        if (c < 0x1F6) return c <= 0x1F4 ? c | 1 : c;
                        if (c < 0x1F7) return c - 0x61;
                        return c - 0x38;
                    }
                    if (c < 0x220) return c <= 0x21E ? c | 1 : c;
                    if (c < 0x222) return c == 0x220 ? c - 0x82 : c;
                    return c <= 0x232 ? c | 1 : c;
                }
                if (c < 0x23E) {
                    if (c < 0x23B) return c + 0x2A2B;
                    if (c < 0x23D) return c == 0x23B ? c + 0x1 : c;
                    return c - 0xA3;
                }
                if (c < 0x241) return c == 0x23E ? c + 0x2A28 : c;
                if (c < 0x243) return c == 0x241 ? c + 0x1 : c;
                return c - 0xC3;
            }
            if (c < 0x37F) {
                if (c < 0x345) {
                    if (c < 0x245) return c + 0x45;
                    if (c < 0x246) return c + 0x47;
                    return c <= 0x24E ? c | 1 : c;
                }
                if (c < 0x370) return c == 0x345 ? c + 0x74 : c;
                if (c < 0x376) return c <= 0x372 ? c | 1 : c;
                return c == 0x376 ? c + 0x1 : c;
            }
            if (c < 0x38C) {
                if (c < 0x386) return c == 0x37F ? c + 0x74 : c;
                if (c < 0x388) return c == 0x386 ? c + 0x26 : c;
                return c <= 0x38A ? c + 0x25 : c;
            }
            if (c < 0x38E) return c == 0x38C ? c + 0x40 : c;
            if (c < 0x391) return c <= 0x38F ? c + 0x3F : c;
            return c <= 0x3A1 ? c + 0x20 : c;
        }
        if (c < 0x3F7) {
            if (c < 0x3D6) {
                if (c < 0x3D0) {
                    if (c < 0x3C2) return c <= 0x3AB ? c + 0x20 : c;
                    if (c < 0x3CF) return c == 0x3C2 ? c + 0x1 : c;
                    return c + 0x8;
                }
                if (c < 0x3D1) return c - 0x1E;
                if (c < 0x3D5) return c == 0x3D1 ? c - 0x19 : c;
                return c - 0xF;
            }
            if (c < 0x3F1) {
                if (c < 0x3D8) return c == 0x3D6 ? c - 0x16 : c;
                if (c < 0x3F0) return c <= 0x3EE ? c | 1 : c;
                return c - 0x36;
            }
            if (c < 0x3F4) return c == 0x3F1 ? c - 0x30 : c;
            if (c < 0x3F5) return c - 0x3C;
            return c == 0x3F5 ? c - 0x40 : c;
        }
        if (c < 0x460) {
            if (c < 0x3FD) {
                if (c < 0x3F9) return c == 0x3F7 ? c + 0x1 : c;
                if (c < 0x3FA) return c - 0x7;
                return c == 0x3FA ? c + 0x1 : c;
            }
            if (c < 0x400) return c - 0x82;
            if (c < 0x410) return c + 0x50;
            return c <= 0x42F ? c + 0x20 : c;
        }
        if (c < 0x4C1) {
            if (c < 0x48A) return c <= 0x480 ? c | 1 : c;
            if (c < 0x4C0) return c <= 0x4BE ? c | 1 : c;
            return c + 0xF;
        }
        if (c < 0x4D0) return c <= 0x4CD ? c + (c & 1) : c;
        if (c < 0x531) return c <= 0x52E ? c | 1 : c;
        return c <= 0x556 ? c + 0x30 : c;
    }
    if (c < 0x2C63) {
        if (c < 0x1F5D) {
            if (c < 0x1C90) {
                if (c < 0x1C82) {
                    if (c < 0x13F8) {
                        if (c < 0x10C7) return c <= 0x10C5 ? c + 0x1C60 : c;
                        if (c < 0x10CD) return c == 0x10C7 ? c + 0x1C60 : c;
                        return c == 0x10CD ? c + 0x1C60 : c;
                    }
                    if (c < 0x1C80) return c <= 0x13FD ? c - 0x8 : c;
                    if (c < 0x1C81) return c - 0x184E;
                    return c - 0x184D;
                }
                if (c < 0x1C86) {
                    if (c < 0x1C83) return c - 0x1844;
                    if (c < 0x1C85) return c - 0x1842;
                    return c - 0x1843;
                }
                if (c < 0x1C87) return c - 0x183C;
                if (c < 0x1C88) return c - 0x1824;
                return c == 0x1C88 ? c + 0x89C3 : c;
            }
            if (c < 0x1F18) {
                if (c < 0x1E9B) {
                    if (c < 0x1CBD) return c <= 0x1CBA ? c - 0xBC0 : c;
                    if (c < 0x1E00) return c <= 0x1CBF ? c - 0xBC0 : c;
                    return c <= 0x1E94 ? c | 1 : c;
                }
                if (c < 0x1EA0) return c == 0x1E9B ? c - 0x3A : c;
                if (c < 0x1F08) return c <= 0x1EFE ? c | 1 : c;
                return c <= 0x1F0F ? c - 0x8 : c;
            }
            if (c < 0x1F48) {
                if (c < 0x1F28) return c <= 0x1F1D ? c - 0x8 : c;
                if (c < 0x1F38) return c <= 0x1F2F ? c - 0x8 : c;
                return c <= 0x1F3F ? c - 0x8 : c;
            }
            if (c < 0x1F59) return c <= 0x1F4D ? c - 0x8 : c;
            if (c < 0x1F5B) return c == 0x1F59 ? c - 0x8 : c;
            return c == 0x1F5B ? c - 0x8 : c;
        }
        if (c < 0x1FF8) {
            if (c < 0x1FC8) {
                if (c < 0x1FB8) {
                    if (c < 0x1F5F) return c == 0x1F5D ? c - 0x8 : c;
                    if (c < 0x1F68) return c == 0x1F5F ? c - 0x8 : c;
                    return c <= 0x1F6F ? c - 0x8 : c;
                }
                if (c < 0x1FBA) return c - 0x8;
                if (c < 0x1FBE) return c <= 0x1FBB ? c - 0x4A : c;
                return c == 0x1FBE ? c - 0x1C05 : c;
            }
            if (c < 0x1FE8) {
                if (c < 0x1FD8) return c <= 0x1FCB ? c - 0x56 : c;
                if (c < 0x1FDA) return c - 0x8;
                return c <= 0x1FDB ? c - 0x64 : c;
            }
            if (c < 0x1FEA) return c - 0x8;
            if (c < 0x1FEC) return c - 0x70;
            return c == 0x1FEC ? c - 0x7 : c;
        }
        if (c < 0x2160) {
            if (c < 0x212A) {
                if (c < 0x1FFA) return c - 0x80;
                if (c < 0x2126) return c <= 0x1FFB ? c - 0x7E : c;
                return c == 0x2126 ? c - 0x1D5D : c;
            }
            if (c < 0x212B) return c - 0x20BF;
            if (c < 0x2132) return c == 0x212B ? c - 0x2046 : c;
            return c == 0x2132 ? c + 0x1C : c;
        }
        if (c < 0x2C00) {
            if (c < 0x2183) return c <= 0x216F ? c + 0x10 : c;
            if (c < 0x24B6) return c == 0x2183 ? c + 0x1 : c;
            return c <= 0x24CF ? c + 0x1A : c;
        }
        if (c < 0x2C60) return c <= 0x2C2E ? c + 0x30 : c;
        if (c < 0x2C62) return c == 0x2C60 ? c + 0x1 : c;
        return c - 0x29F7;
    }
    if (c < 0xA7AA) {
        if (c < 0x2CF2) {
            if (c < 0x2C70) {
                if (c < 0x2C6D) {
                    if (c < 0x2C64) return c - 0xEE6;
                    if (c < 0x2C67) return c == 0x2C64 ? c - 0x29E7 : c;
                    return c <= 0x2C6B ? c + (c & 1) : c;
                }
                if (c < 0x2C6E) return c - 0x2A1C;
                if (c < 0x2C6F) return c - 0x29FD;
                return c - 0x2A1F;
            }
            if (c < 0x2C7E) {
                if (c < 0x2C72) return c == 0x2C70 ? c - 0x2A1E : c;
                if (c < 0x2C75) return c == 0x2C72 ? c + 0x1 : c;
                return c == 0x2C75 ? c + 0x1 : c;
            }
            if (c < 0x2C80) return c - 0x2A3F;
            if (c < 0x2CEB) return c <= 0x2CE2 ? c | 1 : c;
            return c <= 0x2CED ? c + (c & 1) : c;
        }
        if (c < 0xA77D) {
            if (c < 0xA722) {
                if (c < 0xA640) return c == 0x2CF2 ? c + 0x1 : c;
                if (c < 0xA680) return c <= 0xA66C ? c | 1 : c;
                return c <= 0xA69A ? c | 1 : c;
            }
            if (c < 0xA732) return c <= 0xA72E ? c | 1 : c;
            if (c < 0xA779) return c <= 0xA76E ? c | 1 : c;
            return c <= 0xA77B ? c + (c & 1) : c;
        }
        if (c < 0xA78D) {
            if (c < 0xA77E) return c - 0x8A04;
            if (c < 0xA78B) return c <= 0xA786 ? c | 1 : c;
            return c == 0xA78B ? c + 0x1 : c;
        }
        if (c < 0xA790) return c == 0xA78D ? c - 0xA528 : c;
        if (c < 0xA796) return c <= 0xA792 ? c | 1 : c;
        return c <= 0xA7A8 ? c | 1 : c;
    }
    if (c < 0xA7C5) {
        if (c < 0xA7B1) {
            if (c < 0xA7AD) {
                if (c < 0xA7AB) return c - 0xA544;
                if (c < 0xA7AC) return c - 0xA54F;
                return c - 0xA54B;
            }
            if (c < 0xA7AE) return c - 0xA541;
            if (c < 0xA7B0) return c == 0xA7AE ? c - 0xA544 : c;
            return c - 0xA512;
        }
        if (c < 0xA7B4) {
            if (c < 0xA7B2) return c - 0xA52A;
            if (c < 0xA7B3) return c - 0xA515;
            return c + 0x3A0;
        }
        if (c < 0xA7C2) return c <= 0xA7BE ? c | 1 : c;
        if (c < 0xA7C4) return c == 0xA7C2 ? c + 0x1 : c;
        return c - 0x30;
    }
    if (c < 0x10400) {
        if (c < 0xA7F5) {
            if (c < 0xA7C6) return c - 0xA543;
            if (c < 0xA7C7) return c - 0x8A38;
            return c <= 0xA7C9 ? c + (c & 1) : c;
        }
        if (c < 0xAB70) return c == 0xA7F5 ? c + 0x1 : c;
        if (c < 0xFF21) return c <= 0xABBF ? c - 0x97D0 : c;
        return c <= 0xFF3A ? c + 0x20 : c;
    }
    if (c < 0x118A0) {
        if (c < 0x104B0) return c <= 0x10427 ? c + 0x28 : c;
        if (c < 0x10C80) return c <= 0x104D3 ? c + 0x28 : c;
        return c <= 0x10CB2 ? c + 0x40 : c;
    }
    if (c < 0x16E40) return c <= 0x118BF ? c + 0x20 : c;
    if (c < 0x1E900) return c <= 0x16E5F ? c + 0x20 : c;
    return c <= 0x1E921 ? c + 0x22 : c;
}

std::u16string_view fullCaseFolding(char32_t c) {
    if (c < 0xDF) return u""sv;
    if (c < 0x1FA3) {
        if (c < 0x1F89) {
            if (c < 0x1F50) {
                if (c < 0x587) {
                    if (c < 0x1F0) {
                        if (c < 0x130) return c == 0xDF ? u"ss"sv : u""sv;
                        if (c < 0x149) return c == 0x130 ? u"i\u0307"sv : u""sv;
                        return c == 0x149 ? u"\u02BCn"sv : u""sv;
                    }
                    if (c < 0x390) return c == 0x1F0 ? u"j\u030C"sv : u""sv;
                    if (c < 0x3B0) return c == 0x390 ? u"\u03B9\u0308\u0301"sv : u""sv;
                    return c == 0x3B0 ? u"\u03C5\u0308\u0301"sv : u""sv;
                }
                if (c < 0x1E98) {
                    if (c < 0x1E96) return c == 0x587 ? u"\u0565\u0582"sv : u""sv;
                    if (c < 0x1E97) return u"h\u0331"sv;
                    return u"t\u0308"sv;
                }
                if (c < 0x1E9A) {
                    if (c < 0x1E99) return u"w\u030A"sv;
                    return u"y\u030A"sv;
                }
                if (c < 0x1E9E) return c == 0x1E9A ? u"a\u02BE"sv : u""sv;
                return c == 0x1E9E ? u"ss"sv : u""sv;
            }
            if (c < 0x1F82) {
                if (c < 0x1F56) {
                    if (c < 0x1F52) return c == 0x1F50 ? u"\u03C5\u0313"sv : u""sv;
                    if (c < 0x1F54) return c == 0x1F52 ? u"\u03C5\u0313\u0300"sv : u""sv;
                    return c == 0x1F54 ? u"\u03C5\u0313\u0301"sv : u""sv;
                }
                if (c < 0x1F80) return c == 0x1F56 ? u"\u03C5\u0313\u0342"sv : u""sv;
                if (c < 0x1F81) return u"\u1F00\u03B9"sv;
                return u"\u1F01\u03B9"sv;
            }
            if (c < 0x1F85) {
                if (c < 0x1F83) return u"\u1F02\u03B9"sv;
                if (c < 0x1F84) return u"\u1F03\u03B9"sv;
                return u"\u1F04\u03B9"sv;
            }
            if (c < 0x1F87) {
                if (c < 0x1F86) return u"\u1F05\u03B9"sv;
                return u"\u1F06\u03B9"sv;
            }
            if (c < 0x1F88) return u"\u1F07\u03B9"sv;
            return u"\u1F00\u03B9"sv;
        }
        if (c < 0x1F96) {
            if (c < 0x1F8F) {
                if (c < 0x1F8C) {
                    if (c < 0x1F8A) return u"\u1F01\u03B9"sv;
                    if (c < 0x1F8B) return u"\u1F02\u03B9"sv;
                    return u"\u1F03\u03B9"sv;
                }
                if (c < 0x1F8D) return u"\u1F04\u03B9"sv;
                if (c < 0x1F8E) return u"\u1F05\u03B9"sv;
                return u"\u1F06\u03B9"sv;
            }
            if (c < 0x1F92) {
                if (c < 0x1F90) return u"\u1F07\u03B9"sv;
                if (c < 0x1F91) return u"\u1F20\u03B9"sv;
                return u"\u1F21\u03B9"sv;
            }
            if (c < 0x1F94) {
                if (c < 0x1F93) return u"\u1F22\u03B9"sv;
                return u"\u1F23\u03B9"sv;
            }
            if (c < 0x1F95) return u"\u1F24\u03B9"sv;
            return u"\u1F25\u03B9"sv;
        }
        if (c < 0x1F9C) {
            if (c < 0x1F99) {
                if (c < 0x1F97) return u"\u1F26\u03B9"sv;
                if (c < 0x1F98) return u"\u1F27\u03B9"sv;
                return u"\u1F20\u03B9"sv;
            }
            if (c < 0x1F9A) return u"\u1F21\u03B9"sv;
            if (c < 0x1F9B) return u"\u1F22\u03B9"sv;
            return u"\u1F23\u03B9"sv;
        }
        if (c < 0x1F9F) {
            if (c < 0x1F9D) return u"\u1F24\u03B9"sv;
            if (c < 0x1F9E) return u"\u1F25\u03B9"sv;
            return u"\u1F26\u03B9"sv;
        }
        if (c < 0x1FA1) {
            if (c < 0x1FA0) return u"\u1F27\u03B9"sv;
            return u"\u1F60\u03B9"sv;
        }
        if (c < 0x1FA2) return u"\u1F61\u03B9"sv;
        return u"\u1F62\u03B9"sv;
    }
    if (c < 0x1FD3) {
        if (c < 0x1FB2) {
            if (c < 0x1FA9) {
                if (c < 0x1FA6) {
                    if (c < 0x1FA4) return u"\u1F63\u03B9"sv;
                    if (c < 0x1FA5) return u"\u1F64\u03B9"sv;
                    return u"\u1F65\u03B9"sv;
                }
                if (c < 0x1FA7) return u"\u1F66\u03B9"sv;
                if (c < 0x1FA8) return u"\u1F67\u03B9"sv;
                return u"\u1F60\u03B9"sv;
            }
            if (c < 0x1FAC) {
                if (c < 0x1FAA) return u"\u1F61\u03B9"sv;
                if (c < 0x1FAB) return u"\u1F62\u03B9"sv;
                return u"\u1F63\u03B9"sv;
            }
            if (c < 0x1FAE) {
                if (c < 0x1FAD) return u"\u1F64\u03B9"sv;
                return u"\u1F65\u03B9"sv;
            }
            if (c < 0x1FAF) return u"\u1F66\u03B9"sv;
            return c == 0x1FAF ? u"\u1F67\u03B9"sv : u""sv;
        }
        if (c < 0x1FC2) {
            if (c < 0x1FB6) {
                if (c < 0x1FB3) return u"\u1F70\u03B9"sv;
                if (c < 0x1FB4) return u"\u03B1\u03B9"sv;
                return c == 0x1FB4 ? u"\u03AC\u03B9"sv : u""sv;
            }
            if (c < 0x1FB7) return u"\u03B1\u0342"sv;
            if (c < 0x1FBC) return c == 0x1FB7 ? u"\u03B1\u0342\u03B9"sv : u""sv;
            return c == 0x1FBC ? u"\u03B1\u03B9"sv : u""sv;
        }
        if (c < 0x1FC6) {
            if (c < 0x1FC3) return u"\u1F74\u03B9"sv;
            if (c < 0x1FC4) return u"\u03B7\u03B9"sv;
            return c == 0x1FC4 ? u"\u03AE\u03B9"sv : u""sv;
        }
        if (c < 0x1FCC) {
            if (c < 0x1FC7) return u"\u03B7\u0342"sv;
            return c == 0x1FC7 ? u"\u03B7\u0342\u03B9"sv : u""sv;
        }
        if (c < 0x1FD2) return c == 0x1FCC ? u"\u03B7\u03B9"sv : u""sv;
        return u"\u03B9\u0308\u0300"sv;
    }
    if (c < 0x1FFC) {
        if (c < 0x1FE6) {
            if (c < 0x1FE2) {
                if (c < 0x1FD6) return c == 0x1FD3 ? u"\u03B9\u0308\u0301"sv : u""sv;
                if (c < 0x1FD7) return u"\u03B9\u0342"sv;
                return c == 0x1FD7 ? u"\u03B9\u0308\u0342"sv : u""sv;
            }
            if (c < 0x1FE3) return u"\u03C5\u0308\u0300"sv;
            if (c < 0x1FE4) return u"\u03C5\u0308\u0301"sv;
            return c == 0x1FE4 ? u"\u03C1\u0313"sv : u""sv;
        }
        if (c < 0x1FF3) {
            if (c < 0x1FE7) return u"\u03C5\u0342"sv;
            if (c < 0x1FF2) return c == 0x1FE7 ? u"\u03C5\u0308\u0342"sv : u""sv;
            return u"\u1F7C\u03B9"sv;
        }
        if (c < 0x1FF6) {
            if (c < 0x1FF4) return u"\u03C9\u03B9"sv;
            return c == 0x1FF4 ? u"\u03CE\u03B9"sv : u""sv;
        }
        if (c < 0x1FF7) return u"\u03C9\u0342"sv;
        return c == 0x1FF7 ? u"\u03C9\u0342\u03B9"sv : u""sv;
    }
    if (c < 0xFB05) {
        if (c < 0xFB02) {
            if (c < 0xFB00) return c == 0x1FFC ? u"\u03C9\u03B9"sv : u""sv;
            if (c < 0xFB01) return u"ff"sv;
            return u"fi"sv;
        }
        if (c < 0xFB03) return u"fl"sv;
        if (c < 0xFB04) return u"ffi"sv;
        return u"ffl"sv;
    }
    if (c < 0xFB14) {
        if (c < 0xFB06) return u"st"sv;
        if (c < 0xFB13) return c == 0xFB06 ? u"st"sv : u""sv;
        return u"\u0574\u0576"sv;
    }
    if (c < 0xFB16) {
        if (c < 0xFB15) return u"\u0574\u0565"sv;
        return u"\u0574\u056B"sv;
    }
    if (c < 0xFB17) return u"\u057E\u0576"sv;
    return c == 0xFB17 ? u"\u0574\u056D"sv : u""sv;
}

} // namespace Ondo
