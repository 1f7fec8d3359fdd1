// Written by tools/generate_unicode.py; do not edit.
// Unicode 13.0.0: Bidi_Class of @unicode/unicode-13.0.0 1.6.17 (npm).
#include "corvane/scan/Unicode.h"

namespace Ondo {

bool isBidiLeftToRight(char32_t c) {
    if (c < 0x80) {
        if (c < 0x41) return false;
        if (c < 0x61) return c <= 0x5A;
        return c <= 0x7A;
    }
    if (c < 0xAA) return false;
    if (c < 0x3041) {
        if (c < 0xF88) {
            if (c < 0xB5C) {
                if (c < 0x9DF) {
                    if (c < 0x531) {
                        if (c < 0x370) {
                            if (c < 0xF8) {
                                if (c < 0xBA) {
                                    if (c < 0xB5) return c == 0xAA;
                                    return c == 0xB5;
                                }
                                if (c < 0xC0) return c == 0xBA;
                                if (c < 0xD8) return c <= 0xD6;
                                return c <= 0xF6;
                            }
                            if (c < 0x2D0) {
                                if (c < 0x2BB) return c <= 0x2B8;
                                return c <= 0x2C1;
                            }
                            if (c < 0x2E0) return c <= 0x2D1;
                            if (c < 0x2EE) return c <= 0x2E4;
                            return c == 0x2EE;
                        }
                        if (c < 0x388) {
                            if (c < 0x37A) {
                                if (c < 0x376) return c <= 0x373;
                                return c <= 0x377;
                            }
                            if (c < 0x37F) return c <= 0x37D;
                            if (c < 0x386) return c == 0x37F;
                            return c == 0x386;
                        }
                        if (c < 0x3A3) {
                            if (c < 0x38C) return c <= 0x38A;
                            if (c < 0x38E) return c == 0x38C;
                            return c <= 0x3A1;
                        }
                        if (c < 0x3F7) return c <= 0x3F5;
                        if (c < 0x48A) return c <= 0x482;
                        return c <= 0x52F;
                    }
                    if (c < 0x98F) {
                        if (c < 0x949) {
                            if (c < 0x903) {
                                if (c < 0x559) return c <= 0x556;
                                return c <= 0x589;
                            }
                            if (c < 0x93B) return c <= 0x939;
                            if (c < 0x93D) return c == 0x93B;
                            return c <= 0x940;
                        }
                        if (c < 0x964) {
                            if (c < 0x94E) return c <= 0x94C;
                            if (c < 0x958) return c <= 0x950;
                            return c <= 0x961;
                        }
                        if (c < 0x982) return c <= 0x980;
                        if (c < 0x985) return c <= 0x983;
                        return c <= 0x98C;
                    }
                    if (c < 0x9BD) {
                        if (c < 0x9AA) {
                            if (c < 0x993) return c <= 0x990;
                            return c <= 0x9A8;
                        }
                        if (c < 0x9B2) return c <= 0x9B0;
                        if (c < 0x9B6) return c == 0x9B2;
                        return c <= 0x9B9;
                    }
                    if (c < 0x9CE) {
                        if (c < 0x9C7) return c <= 0x9C0;
                        if (c < 0x9CB) return c <= 0x9C8;
                        return c <= 0x9CC;
                    }
                    if (c < 0x9D7) return c == 0x9CE;
                    if (c < 0x9DC) return c == 0x9D7;
                    return c <= 0x9DD;
                }
                if (c < 0xAAA) {
                    if (c < 0xA38) {
                        if (c < 0xA05) {
                            if (c < 0x9F4) {
                                if (c < 0x9E6) return c <= 0x9E1;
                                return c <= 0x9F1;
                            }
                            if (c < 0x9FC) return c <= 0x9FA;
                            if (c < 0xA03) return c <= 0x9FD;
                            return c == 0xA03;
                        }
                        if (c < 0xA2A) {
                            if (c < 0xA0F) return c <= 0xA0A;
                            if (c < 0xA13) return c <= 0xA10;
                            return c <= 0xA28;
                        }
                        if (c < 0xA32) return c <= 0xA30;
                        if (c < 0xA35) return c <= 0xA33;
                        return c <= 0xA36;
                    }
                    if (c < 0xA72) {
                        if (c < 0xA59) {
                            if (c < 0xA3E) return c <= 0xA39;
                            return c <= 0xA40;
                        }
                        if (c < 0xA5E) return c <= 0xA5C;
                        if (c < 0xA66) return c == 0xA5E;
                        return c <= 0xA6F;
                    }
                    if (c < 0xA85) {
                        if (c < 0xA76) return c <= 0xA74;
                        if (c < 0xA83) return c == 0xA76;
                        return c == 0xA83;
                    }
                    if (c < 0xA8F) return c <= 0xA8D;
                    if (c < 0xA93) return c <= 0xA91;
                    return c <= 0xAA8;
                }
                if (c < 0xB05) {
                    if (c < 0xACB) {
                        if (c < 0xAB5) {
                            if (c < 0xAB2) return c <= 0xAB0;
                            return c <= 0xAB3;
                        }
                        if (c < 0xABD) return c <= 0xAB9;
                        if (c < 0xAC9) return c <= 0xAC0;
                        return c == 0xAC9;
                    }
                    if (c < 0xAE6) {
                        if (c < 0xAD0) return c <= 0xACC;
                        if (c < 0xAE0) return c == 0xAD0;
                        return c <= 0xAE1;
                    }
                    if (c < 0xAF9) return c <= 0xAF0;
                    if (c < 0xB02) return c == 0xAF9;
                    return c <= 0xB03;
                }
                if (c < 0xB35) {
                    if (c < 0xB13) {
                        if (c < 0xB0F) return c <= 0xB0C;
                        return c <= 0xB10;
                    }
                    if (c < 0xB2A) return c <= 0xB28;
                    if (c < 0xB32) return c <= 0xB30;
                    return c <= 0xB33;
                }
                if (c < 0xB47) {
                    if (c < 0xB3D) return c <= 0xB39;
                    if (c < 0xB40) return c <= 0xB3E;
                    return c == 0xB40;
                }
                if (c < 0xB4B) return c <= 0xB48;
                if (c < 0xB57) return c <= 0xB4C;
                return c == 0xB57;
            }
            if (c < 0xCF1) {
                if (c < 0xC0E) {
                    if (c < 0xBA8) {
                        if (c < 0xB8E) {
                            if (c < 0xB66) {
                                if (c < 0xB5F) return c <= 0xB5D;
                                return c <= 0xB61;
                            }
                            if (c < 0xB83) return c <= 0xB77;
                            if (c < 0xB85) return c == 0xB83;
                            return c <= 0xB8A;
                        }
                        if (c < 0xB9C) {
                            if (c < 0xB92) return c <= 0xB90;
                            if (c < 0xB99) return c <= 0xB95;
                            return c <= 0xB9A;
                        }
                        if (c < 0xB9E) return c == 0xB9C;
                        if (c < 0xBA3) return c <= 0xB9F;
                        return c <= 0xBA4;
                    }
                    if (c < 0xBCA) {
                        if (c < 0xBBE) {
                            if (c < 0xBAE) return c <= 0xBAA;
                            return c <= 0xBB9;
                        }
                        if (c < 0xBC1) return c <= 0xBBF;
                        if (c < 0xBC6) return c <= 0xBC2;
                        return c <= 0xBC8;
                    }
                    if (c < 0xBE6) {
                        if (c < 0xBD0) return c <= 0xBCC;
                        if (c < 0xBD7) return c == 0xBD0;
                        return c == 0xBD7;
                    }
                    if (c < 0xC01) return c <= 0xBF2;
                    if (c < 0xC05) return c <= 0xC03;
                    return c <= 0xC0C;
                }
                if (c < 0xC8E) {
                    if (c < 0xC58) {
                        if (c < 0xC2A) {
                            if (c < 0xC12) return c <= 0xC10;
                            return c <= 0xC28;
                        }
                        if (c < 0xC3D) return c <= 0xC39;
                        if (c < 0xC41) return c == 0xC3D;
                        return c <= 0xC44;
                    }
                    if (c < 0xC77) {
                        if (c < 0xC60) return c <= 0xC5A;
                        if (c < 0xC66) return c <= 0xC61;
                        return c <= 0xC6F;
                    }
                    if (c < 0xC7F) return c == 0xC77;
                    if (c < 0xC82) return c <= 0xC80;
                    return c <= 0xC8C;
                }
                if (c < 0xCC6) {
                    if (c < 0xCAA) {
                        if (c < 0xC92) return c <= 0xC90;
                        return c <= 0xCA8;
                    }
                    if (c < 0xCB5) return c <= 0xCB3;
                    if (c < 0xCBD) return c <= 0xCB9;
                    return c <= 0xCC4;
                }
                if (c < 0xCDE) {
                    if (c < 0xCCA) return c <= 0xCC8;
                    if (c < 0xCD5) return c <= 0xCCB;
                    return c <= 0xCD6;
                }
                if (c < 0xCE0) return c == 0xCDE;
                if (c < 0xCE6) return c <= 0xCE1;
                return c <= 0xCEF;
            }
            if (c < 0xE40) {
                if (c < 0xD85) {
                    if (c < 0xD46) {
                        if (c < 0xD0E) {
                            if (c < 0xD02) return c <= 0xCF2;
                            return c <= 0xD0C;
                        }
                        if (c < 0xD12) return c <= 0xD10;
                        if (c < 0xD3D) return c <= 0xD3A;
                        return c <= 0xD40;
                    }
                    if (c < 0xD54) {
                        if (c < 0xD4A) return c <= 0xD48;
                        if (c < 0xD4E) return c <= 0xD4C;
                        return c <= 0xD4F;
                    }
                    if (c < 0xD66) return c <= 0xD61;
                    if (c < 0xD82) return c <= 0xD7F;
                    return c <= 0xD83;
                }
                if (c < 0xDCF) {
                    if (c < 0xDB3) {
                        if (c < 0xD9A) return c <= 0xD96;
                        return c <= 0xDB1;
                    }
                    if (c < 0xDBD) return c <= 0xDBB;
                    if (c < 0xDC0) return c == 0xDBD;
                    return c <= 0xDC6;
                }
                if (c < 0xDF2) {
                    if (c < 0xDD8) return c <= 0xDD1;
                    if (c < 0xDE6) return c <= 0xDDF;
                    return c <= 0xDEF;
                }
                if (c < 0xE01) return c <= 0xDF4;
                if (c < 0xE32) return c <= 0xE30;
                return c <= 0xE33;
            }
            if (c < 0xEC6) {
                if (c < 0xE8C) {
                    if (c < 0xE81) {
                        if (c < 0xE4F) return c <= 0xE46;
                        return c <= 0xE5B;
                    }
                    if (c < 0xE84) return c <= 0xE82;
                    if (c < 0xE86) return c == 0xE84;
                    return c <= 0xE8A;
                }
                if (c < 0xEB2) {
                    if (c < 0xEA5) return c <= 0xEA3;
                    if (c < 0xEA7) return c == 0xEA5;
                    return c <= 0xEB0;
                }
                if (c < 0xEBD) return c <= 0xEB3;
                if (c < 0xEC0) return c == 0xEBD;
                return c <= 0xEC4;
            }
            if (c < 0xF36) {
                if (c < 0xEDC) {
                    if (c < 0xED0) return c == 0xEC6;
                    return c <= 0xED9;
                }
                if (c < 0xF00) return c <= 0xEDF;
                if (c < 0xF1A) return c <= 0xF17;
                return c <= 0xF34;
            }
            if (c < 0xF49) {
                if (c < 0xF38) return c == 0xF36;
                if (c < 0xF3E) return c == 0xF38;
                return c <= 0xF47;
            }
            if (c < 0xF7F) return c <= 0xF6C;
            if (c < 0xF85) return c == 0xF7F;
            return c == 0xF85;
        }
        if (c < 0x1B74) {
            if (c < 0x1720) {
                if (c < 0x1258) {
                    if (c < 0x1061) {
                        if (c < 0x1031) {
                            if (c < 0xFC7) {
                                if (c < 0xFBE) return c <= 0xF8C;
                                return c <= 0xFC5;
                            }
                            if (c < 0xFCE) return c <= 0xFCC;
                            if (c < 0x1000) return c <= 0xFDA;
                            return c <= 0x102C;
                        }
                        if (c < 0x103B) {
                            if (c < 0x1038) return c == 0x1031;
                            return c == 0x1038;
                        }
                        if (c < 0x103F) return c <= 0x103C;
                        if (c < 0x105A) return c <= 0x1057;
                        return c <= 0x105D;
                    }
                    if (c < 0x109E) {
                        if (c < 0x1083) {
                            if (c < 0x1075) return c <= 0x1070;
                            return c <= 0x1081;
                        }
                        if (c < 0x1087) return c <= 0x1084;
                        if (c < 0x108E) return c <= 0x108C;
                        return c <= 0x109C;
                    }
                    if (c < 0x10D0) {
                        if (c < 0x10C7) return c <= 0x10C5;
                        if (c < 0x10CD) return c == 0x10C7;
                        return c == 0x10CD;
                    }
                    if (c < 0x124A) return c <= 0x1248;
                    if (c < 0x1250) return c <= 0x124D;
                    return c <= 0x1256;
                }
                if (c < 0x1312) {
                    if (c < 0x12B2) {
                        if (c < 0x1260) {
                            if (c < 0x125A) return c == 0x1258;
                            return c <= 0x125D;
                        }
                        if (c < 0x128A) return c <= 0x1288;
                        if (c < 0x1290) return c <= 0x128D;
                        return c <= 0x12B0;
                    }
                    if (c < 0x12C2) {
                        if (c < 0x12B8) return c <= 0x12B5;
                        if (c < 0x12C0) return c <= 0x12BE;
                        return c == 0x12C0;
                    }
                    if (c < 0x12C8) return c <= 0x12C5;
                    if (c < 0x12D8) return c <= 0x12D6;
                    return c <= 0x1310;
                }
                if (c < 0x13F8) {
                    if (c < 0x1360) {
                        if (c < 0x1318) return c <= 0x1315;
                        return c <= 0x135A;
                    }
                    if (c < 0x1380) return c <= 0x137C;
                    if (c < 0x13A0) return c <= 0x138F;
                    return c <= 0x13F5;
                }
                if (c < 0x16A0) {
                    if (c < 0x1401) return c <= 0x13FD;
                    if (c < 0x1681) return c <= 0x167F;
                    return c <= 0x169A;
                }
                if (c < 0x1700) return c <= 0x16F8;
                if (c < 0x170E) return c <= 0x170C;
                return c <= 0x1711;
            }
            if (c < 0x1933) {
                if (c < 0x17E0) {
                    if (c < 0x1780) {
                        if (c < 0x1740) {
                            if (c < 0x1735) return c <= 0x1731;
                            return c <= 0x1736;
                        }
                        if (c < 0x1760) return c <= 0x1751;
                        if (c < 0x176E) return c <= 0x176C;
                        return c <= 0x1770;
                    }
                    if (c < 0x17C7) {
                        if (c < 0x17B6) return c <= 0x17B3;
                        if (c < 0x17BE) return c == 0x17B6;
                        return c <= 0x17C5;
                    }
                    if (c < 0x17D4) return c <= 0x17C8;
                    if (c < 0x17DC) return c <= 0x17DA;
                    return c == 0x17DC;
                }
                if (c < 0x18AA) {
                    if (c < 0x1820) {
                        if (c < 0x1810) return c <= 0x17E9;
                        return c <= 0x1819;
                    }
                    if (c < 0x1880) return c <= 0x1878;
                    if (c < 0x1887) return c <= 0x1884;
                    return c <= 0x18A8;
                }
                if (c < 0x1923) {
                    if (c < 0x18B0) return c == 0x18AA;
                    if (c < 0x1900) return c <= 0x18F5;
                    return c <= 0x191E;
                }
                if (c < 0x1929) return c <= 0x1926;
                if (c < 0x1930) return c <= 0x192B;
                return c <= 0x1931;
            }
            if (c < 0x1A63) {
                if (c < 0x19D0) {
                    if (c < 0x1970) {
                        if (c < 0x1946) return c <= 0x1938;
                        return c <= 0x196D;
                    }
                    if (c < 0x1980) return c <= 0x1974;
                    if (c < 0x19B0) return c <= 0x19AB;
                    return c <= 0x19C9;
                }
                if (c < 0x1A1E) {
                    if (c < 0x1A00) return c <= 0x19DA;
                    if (c < 0x1A19) return c <= 0x1A16;
                    return c <= 0x1A1A;
                }
                if (c < 0x1A57) return c <= 0x1A55;
                if (c < 0x1A61) return c == 0x1A57;
                return c == 0x1A61;
            }
            if (c < 0x1B04) {
                if (c < 0x1A80) {
                    if (c < 0x1A6D) return c <= 0x1A64;
                    return c <= 0x1A72;
                }
                if (c < 0x1A90) return c <= 0x1A89;
                if (c < 0x1AA0) return c <= 0x1A99;
                return c <= 0x1AAD;
            }
            if (c < 0x1B3D) {
                if (c < 0x1B35) return c <= 0x1B33;
                if (c < 0x1B3B) return c == 0x1B35;
                return c == 0x1B3B;
            }
            if (c < 0x1B43) return c <= 0x1B41;
            if (c < 0x1B50) return c <= 0x1B4B;
            return c <= 0x1B6A;
        }
        if (c < 0x2090) {
            if (c < 0x1E00) {
                if (c < 0x1C3B) {
                    if (c < 0x1BE7) {
                        if (c < 0x1BA6) {
                            if (c < 0x1B82) return c <= 0x1B7C;
                            return c <= 0x1BA1;
                        }
                        if (c < 0x1BAA) return c <= 0x1BA7;
                        if (c < 0x1BAE) return c == 0x1BAA;
                        return c <= 0x1BE5;
                    }
                    if (c < 0x1BF2) {
                        if (c < 0x1BEA) return c == 0x1BE7;
                        if (c < 0x1BEE) return c <= 0x1BEC;
                        return c == 0x1BEE;
                    }
                    if (c < 0x1BFC) return c <= 0x1BF3;
                    if (c < 0x1C34) return c <= 0x1C2B;
                    return c <= 0x1C35;
                }
                if (c < 0x1CE1) {
                    if (c < 0x1C90) {
                        if (c < 0x1C4D) return c <= 0x1C49;
                        return c <= 0x1C88;
                    }
                    if (c < 0x1CBD) return c <= 0x1CBA;
                    if (c < 0x1CD3) return c <= 0x1CC7;
                    return c == 0x1CD3;
                }
                if (c < 0x1CF5) {
                    if (c < 0x1CE9) return c == 0x1CE1;
                    if (c < 0x1CEE) return c <= 0x1CEC;
                    return c <= 0x1CF3;
                }
                if (c < 0x1CFA) return c <= 0x1CF7;
                if (c < 0x1D00) return c == 0x1CFA;
                return c <= 0x1DBF;
            }
            if (c < 0x1FBE) {
                if (c < 0x1F59) {
                    if (c < 0x1F20) {
                        if (c < 0x1F18) return c <= 0x1F15;
                        return c <= 0x1F1D;
                    }
                    if (c < 0x1F48) return c <= 0x1F45;
                    if (c < 0x1F50) return c <= 0x1F4D;
                    return c <= 0x1F57;
                }
                if (c < 0x1F5F) {
                    if (c < 0x1F5B) return c == 0x1F59;
                    if (c < 0x1F5D) return c == 0x1F5B;
                    return c == 0x1F5D;
                }
                if (c < 0x1F80) return c <= 0x1F7D;
                if (c < 0x1FB6) return c <= 0x1FB4;
                return c <= 0x1FBC;
            }
            if (c < 0x1FE0) {
                if (c < 0x1FC6) {
                    if (c < 0x1FC2) return c == 0x1FBE;
                    return c <= 0x1FC4;
                }
                if (c < 0x1FD0) return c <= 0x1FCC;
                if (c < 0x1FD6) return c <= 0x1FD3;
                return c <= 0x1FDB;
            }
            if (c < 0x200E) {
                if (c < 0x1FF2) return c <= 0x1FEC;
                if (c < 0x1FF6) return c <= 0x1FF4;
                return c <= 0x1FFC;
            }
            if (c < 0x2071) return c == 0x200E;
            if (c < 0x207F) return c == 0x2071;
            return c == 0x207F;
        }
        if (c < 0x2C60) {
            if (c < 0x213C) {
                if (c < 0x2119) {
                    if (c < 0x2107) {
                        if (c < 0x2102) return c <= 0x209C;
                        return c == 0x2102;
                    }
                    if (c < 0x210A) return c == 0x2107;
                    if (c < 0x2115) return c <= 0x2113;
                    return c == 0x2115;
                }
                if (c < 0x2128) {
                    if (c < 0x2124) return c <= 0x211D;
                    if (c < 0x2126) return c == 0x2124;
                    return c == 0x2126;
                }
                if (c < 0x212A) return c == 0x2128;
                if (c < 0x212F) return c <= 0x212D;
                return c <= 0x2139;
            }
            if (c < 0x2395) {
                if (c < 0x214E) {
                    if (c < 0x2145) return c <= 0x213F;
                    return c <= 0x2149;
                }
                if (c < 0x2160) return c <= 0x214F;
                if (c < 0x2336) return c <= 0x2188;
                return c <= 0x237A;
            }
            if (c < 0x2800) {
                if (c < 0x249C) return c == 0x2395;
                if (c < 0x26AC) return c <= 0x24E9;
                return c == 0x26AC;
            }
            if (c < 0x2C00) return c <= 0x28FF;
            if (c < 0x2C30) return c <= 0x2C2E;
            return c <= 0x2C5E;
        }
        if (c < 0x2DB0) {
            if (c < 0x2D2D) {
                if (c < 0x2CF2) {
                    if (c < 0x2CEB) return c <= 0x2CE4;
                    return c <= 0x2CEE;
                }
                if (c < 0x2D00) return c <= 0x2CF3;
                if (c < 0x2D27) return c <= 0x2D25;
                return c == 0x2D27;
            }
            if (c < 0x2D80) {
                if (c < 0x2D30) return c == 0x2D2D;
                if (c < 0x2D6F) return c <= 0x2D67;
                return c <= 0x2D70;
            }
            if (c < 0x2DA0) return c <= 0x2D96;
            if (c < 0x2DA8) return c <= 0x2DA6;
            return c <= 0x2DAE;
        }
        if (c < 0x2DD8) {
            if (c < 0x2DC0) {
                if (c < 0x2DB8) return c <= 0x2DB6;
                return c <= 0x2DBE;
            }
            if (c < 0x2DC8) return c <= 0x2DC6;
            if (c < 0x2DD0) return c <= 0x2DCE;
            return c <= 0x2DD6;
        }
        if (c < 0x302E) {
            if (c < 0x3005) return c <= 0x2DDE;
            if (c < 0x3021) return c <= 0x3007;
            return c <= 0x3029;
        }
        if (c < 0x3031) return c <= 0x302F;
        if (c < 0x3038) return c <= 0x3035;
        return c <= 0x303C;
    }
    if (c < 0x114C1) {
        if (c < 0xFFDA) {
            if (c < 0xA9BA) {
                if (c < 0xA680) {
                    if (c < 0x327F) {
                        if (c < 0x3131) {
                            if (c < 0x30A1) {
                                if (c < 0x309D) return c <= 0x3096;
                                return c <= 0x309F;
                            }
                            if (c < 0x30FC) return c <= 0x30FA;
                            if (c < 0x3105) return c <= 0x30FF;
                            return c <= 0x312F;
                        }
                        if (c < 0x31F0) {
                            if (c < 0x3190) return c <= 0x318E;
                            return c <= 0x31BF;
                        }
                        if (c < 0x3220) return c <= 0x321C;
                        if (c < 0x3260) return c <= 0x324F;
                        return c <= 0x327B;
                    }
                    if (c < 0x3400) {
                        if (c < 0x32D0) {
                            if (c < 0x32C0) return c <= 0x32B0;
                            return c <= 0x32CB;
                        }
                        if (c < 0x337B) return c <= 0x3376;
                        if (c < 0x33E0) return c <= 0x33DD;
                        return c <= 0x33FE;
                    }
                    if (c < 0xA4D0) {
                        if (c < 0x4E00) return c <= 0x4DBF;
                        if (c < 0xA000) return c <= 0x9FFC;
                        return c <= 0xA48C;
                    }
                    if (c < 0xA610) return c <= 0xA60C;
                    if (c < 0xA640) return c <= 0xA62B;
                    return c <= 0xA66E;
                }
                if (c < 0xA830) {
                    if (c < 0xA7C2) {
                        if (c < 0xA6F2) {
                            if (c < 0xA6A0) return c <= 0xA69D;
                            return c <= 0xA6EF;
                        }
                        if (c < 0xA722) return c <= 0xA6F7;
                        if (c < 0xA789) return c <= 0xA787;
                        return c <= 0xA7BF;
                    }
                    if (c < 0xA807) {
                        if (c < 0xA7F5) return c <= 0xA7CA;
                        if (c < 0xA803) return c <= 0xA801;
                        return c <= 0xA805;
                    }
                    if (c < 0xA80C) return c <= 0xA80A;
                    if (c < 0xA827) return c <= 0xA824;
                    return c == 0xA827;
                }
                if (c < 0xA900) {
                    if (c < 0xA880) {
                        if (c < 0xA840) return c <= 0xA837;
                        return c <= 0xA873;
                    }
                    if (c < 0xA8CE) return c <= 0xA8C3;
                    if (c < 0xA8F2) return c <= 0xA8D9;
                    return c <= 0xA8FE;
                }
                if (c < 0xA95F) {
                    if (c < 0xA92E) return c <= 0xA925;
                    if (c < 0xA952) return c <= 0xA946;
                    return c <= 0xA953;
                }
                if (c < 0xA983) return c <= 0xA97C;
                if (c < 0xA9B4) return c <= 0xA9B2;
                return c <= 0xA9B5;
            }
            if (c < 0xAB09) {
                if (c < 0xAA50) {
                    if (c < 0xAA00) {
                        if (c < 0xA9CF) {
                            if (c < 0xA9BE) return c <= 0xA9BB;
                            return c <= 0xA9CD;
                        }
                        if (c < 0xA9DE) return c <= 0xA9D9;
                        if (c < 0xA9E6) return c <= 0xA9E4;
                        return c <= 0xA9FE;
                    }
                    if (c < 0xAA40) {
                        if (c < 0xAA2F) return c <= 0xAA28;
                        if (c < 0xAA33) return c <= 0xAA30;
                        return c <= 0xAA34;
                    }
                    if (c < 0xAA44) return c <= 0xAA42;
                    if (c < 0xAA4D) return c <= 0xAA4B;
                    return c == 0xAA4D;
                }
                if (c < 0xAAB9) {
                    if (c < 0xAA7D) {
                        if (c < 0xAA5C) return c <= 0xAA59;
                        return c <= 0xAA7B;
                    }
                    if (c < 0xAAB1) return c <= 0xAAAF;
                    if (c < 0xAAB5) return c == 0xAAB1;
                    return c <= 0xAAB6;
                }
                if (c < 0xAADB) {
                    if (c < 0xAAC0) return c <= 0xAABD;
                    if (c < 0xAAC2) return c == 0xAAC0;
                    return c == 0xAAC2;
                }
                if (c < 0xAAEE) return c <= 0xAAEB;
                if (c < 0xAB01) return c <= 0xAAF5;
                return c <= 0xAB06;
            }
            if (c < 0xD7CB) {
                if (c < 0xAB70) {
                    if (c < 0xAB20) {
                        if (c < 0xAB11) return c <= 0xAB0E;
                        return c <= 0xAB16;
                    }
                    if (c < 0xAB28) return c <= 0xAB26;
                    if (c < 0xAB30) return c <= 0xAB2E;
                    return c <= 0xAB69;
                }
                if (c < 0xABF0) {
                    if (c < 0xABE6) return c <= 0xABE4;
                    if (c < 0xABE9) return c <= 0xABE7;
                    return c <= 0xABEC;
                }
                if (c < 0xAC00) return c <= 0xABF9;
                if (c < 0xD7B0) return c <= 0xD7A3;
                return c <= 0xD7C6;
            }
            if (c < 0xFF21) {
                if (c < 0xFA70) {
                    if (c < 0xE000) return c <= 0xD7FB;
                    return c <= 0xFA6D;
                }
                if (c < 0xFB00) return c <= 0xFAD9;
                if (c < 0xFB13) return c <= 0xFB06;
                return c <= 0xFB17;
            }
            if (c < 0xFFC2) {
                if (c < 0xFF41) return c <= 0xFF3A;
                if (c < 0xFF66) return c <= 0xFF5A;
                return c <= 0xFFBE;
            }
            if (c < 0xFFCA) return c <= 0xFFC7;
            if (c < 0xFFD2) return c <= 0xFFCF;
            return c <= 0xFFD7;
        }
        if (c < 0x11136) {
            if (c < 0x10400) {
                if (c < 0x10137) {
                    if (c < 0x1003F) {
                        if (c < 0x1000D) {
                            if (c < 0x10000) return c <= 0xFFDC;
                            return c <= 0x1000B;
                        }
                        if (c < 0x10028) return c <= 0x10026;
                        if (c < 0x1003C) return c <= 0x1003A;
                        return c <= 0x1003D;
                    }
                    if (c < 0x10100) {
                        if (c < 0x10050) return c <= 0x1004D;
                        if (c < 0x10080) return c <= 0x1005D;
                        return c <= 0x100FA;
                    }
                    if (c < 0x10102) return c == 0x10100;
                    if (c < 0x10107) return c == 0x10102;
                    return c <= 0x10133;
                }
                if (c < 0x10300) {
                    if (c < 0x101D0) {
                        if (c < 0x1018D) return c <= 0x1013F;
                        return c <= 0x1018E;
                    }
                    if (c < 0x10280) return c <= 0x101FC;
                    if (c < 0x102A0) return c <= 0x1029C;
                    return c <= 0x102D0;
                }
                if (c < 0x10380) {
                    if (c < 0x1032D) return c <= 0x10323;
                    if (c < 0x10350) return c <= 0x1034A;
                    return c <= 0x10375;
                }
                if (c < 0x1039F) return c <= 0x1039D;
                if (c < 0x103C8) return c <= 0x103C3;
                return c <= 0x103D5;
            }
            if (c < 0x11002) {
                if (c < 0x10530) {
                    if (c < 0x104B0) {
                        if (c < 0x104A0) return c <= 0x1049D;
                        return c <= 0x104A9;
                    }
                    if (c < 0x104D8) return c <= 0x104D3;
                    if (c < 0x10500) return c <= 0x104FB;
                    return c <= 0x10527;
                }
                if (c < 0x10740) {
                    if (c < 0x1056F) return c <= 0x10563;
                    if (c < 0x10600) return c == 0x1056F;
                    return c <= 0x10736;
                }
                if (c < 0x10760) return c <= 0x10755;
                if (c < 0x11000) return c <= 0x10767;
                return c == 0x11000;
            }
            if (c < 0x110BB) {
                if (c < 0x11066) {
                    if (c < 0x11047) return c <= 0x11037;
                    return c <= 0x1104D;
                }
                if (c < 0x11082) return c <= 0x1106F;
                if (c < 0x110B7) return c <= 0x110B2;
                return c <= 0x110B8;
            }
            if (c < 0x110F0) {
                if (c < 0x110CD) return c <= 0x110C1;
                if (c < 0x110D0) return c == 0x110CD;
                return c <= 0x110E8;
            }
            if (c < 0x11103) return c <= 0x110F9;
            if (c < 0x1112C) return c <= 0x11126;
            return c == 0x1112C;
        }
        if (c < 0x11305) {
            if (c < 0x11235) {
                if (c < 0x111CD) {
                    if (c < 0x11174) {
                        if (c < 0x11150) return c <= 0x11147;
                        return c <= 0x11172;
                    }
                    if (c < 0x11182) return c <= 0x11176;
                    if (c < 0x111BF) return c <= 0x111B5;
                    return c <= 0x111C8;
                }
                if (c < 0x11200) {
                    if (c < 0x111D0) return c <= 0x111CE;
                    if (c < 0x111E1) return c <= 0x111DF;
                    return c <= 0x111F4;
                }
                if (c < 0x11213) return c <= 0x11211;
                if (c < 0x11232) return c <= 0x1122E;
                return c <= 0x11233;
            }
            if (c < 0x1128F) {
                if (c < 0x11280) {
                    if (c < 0x11238) return c == 0x11235;
                    return c <= 0x1123D;
                }
                if (c < 0x11288) return c <= 0x11286;
                if (c < 0x1128A) return c == 0x11288;
                return c <= 0x1128D;
            }
            if (c < 0x112E0) {
                if (c < 0x1129F) return c <= 0x1129D;
                if (c < 0x112B0) return c <= 0x112A9;
                return c <= 0x112DE;
            }
            if (c < 0x112F0) return c <= 0x112E2;
            if (c < 0x11302) return c <= 0x112F9;
            return c <= 0x11303;
        }
        if (c < 0x11357) {
            if (c < 0x11335) {
                if (c < 0x11313) {
                    if (c < 0x1130F) return c <= 0x1130C;
                    return c <= 0x11310;
                }
                if (c < 0x1132A) return c <= 0x11328;
                if (c < 0x11332) return c <= 0x11330;
                return c <= 0x11333;
            }
            if (c < 0x11347) {
                if (c < 0x1133D) return c <= 0x11339;
                if (c < 0x11341) return c <= 0x1133F;
                return c <= 0x11344;
            }
            if (c < 0x1134B) return c <= 0x11348;
            if (c < 0x11350) return c <= 0x1134D;
            return c == 0x11350;
        }
        if (c < 0x11447) {
            if (c < 0x11400) {
                if (c < 0x1135D) return c == 0x11357;
                return c <= 0x11363;
            }
            if (c < 0x11440) return c <= 0x11437;
            if (c < 0x11445) return c <= 0x11441;
            return c == 0x11445;
        }
        if (c < 0x11480) {
            if (c < 0x1145D) return c <= 0x1145B;
            if (c < 0x1145F) return c == 0x1145D;
            return c <= 0x11461;
        }
        if (c < 0x114B9) return c <= 0x114B2;
        if (c < 0x114BB) return c == 0x114B9;
        return c <= 0x114BE;
    }
    if (c < 0x16AF5) {
        if (c < 0x11A39) {
            if (c < 0x11730) {
                if (c < 0x11641) {
                    if (c < 0x115BE) {
                        if (c < 0x114D0) {
                            if (c < 0x114C4) return c == 0x114C1;
                            return c <= 0x114C7;
                        }
                        if (c < 0x11580) return c <= 0x114D9;
                        if (c < 0x115B8) return c <= 0x115B1;
                        return c <= 0x115BB;
                    }
                    if (c < 0x11600) {
                        if (c < 0x115C1) return c == 0x115BE;
                        return c <= 0x115DB;
                    }
                    if (c < 0x1163B) return c <= 0x11632;
                    if (c < 0x1163E) return c <= 0x1163C;
                    return c == 0x1163E;
                }
                if (c < 0x116B6) {
                    if (c < 0x11680) {
                        if (c < 0x11650) return c <= 0x11644;
                        return c <= 0x11659;
                    }
                    if (c < 0x116AC) return c <= 0x116AA;
                    if (c < 0x116AE) return c == 0x116AC;
                    return c <= 0x116AF;
                }
                if (c < 0x11700) {
                    if (c < 0x116B8) return c == 0x116B6;
                    if (c < 0x116C0) return c == 0x116B8;
                    return c <= 0x116C9;
                }
                if (c < 0x11720) return c <= 0x1171A;
                if (c < 0x11726) return c <= 0x11721;
                return c == 0x11726;
            }
            if (c < 0x1193D) {
                if (c < 0x118FF) {
                    if (c < 0x11838) {
                        if (c < 0x11800) return c <= 0x1173F;
                        return c <= 0x1182E;
                    }
                    if (c < 0x1183B) return c == 0x11838;
                    if (c < 0x118A0) return c == 0x1183B;
                    return c <= 0x118F2;
                }
                if (c < 0x11915) {
                    if (c < 0x11909) return c <= 0x11906;
                    if (c < 0x1190C) return c == 0x11909;
                    return c <= 0x11913;
                }
                if (c < 0x11918) return c <= 0x11916;
                if (c < 0x11937) return c <= 0x11935;
                return c <= 0x11938;
            }
            if (c < 0x119AA) {
                if (c < 0x11944) {
                    if (c < 0x1193F) return c == 0x1193D;
                    return c <= 0x11942;
                }
                if (c < 0x11950) return c <= 0x11946;
                if (c < 0x119A0) return c <= 0x11959;
                return c <= 0x119A7;
            }
            if (c < 0x11A00) {
                if (c < 0x119DC) return c <= 0x119D3;
                if (c < 0x119E1) return c <= 0x119DF;
                return c <= 0x119E4;
            }
            if (c < 0x11A07) return c == 0x11A00;
            if (c < 0x11A0B) return c <= 0x11A08;
            return c <= 0x11A32;
        }
        if (c < 0x11D67) {
            if (c < 0x11C50) {
                if (c < 0x11A97) {
                    if (c < 0x11A50) {
                        if (c < 0x11A3F) return c <= 0x11A3A;
                        return c <= 0x11A46;
                    }
                    if (c < 0x11A57) return c == 0x11A50;
                    if (c < 0x11A5C) return c <= 0x11A58;
                    return c <= 0x11A89;
                }
                if (c < 0x11C00) {
                    if (c < 0x11A9A) return c == 0x11A97;
                    if (c < 0x11AC0) return c <= 0x11AA2;
                    return c <= 0x11AF8;
                }
                if (c < 0x11C0A) return c <= 0x11C08;
                if (c < 0x11C3E) return c <= 0x11C2F;
                return c <= 0x11C45;
            }
            if (c < 0x11D00) {
                if (c < 0x11CA9) {
                    if (c < 0x11C70) return c <= 0x11C6C;
                    return c <= 0x11C8F;
                }
                if (c < 0x11CB1) return c == 0x11CA9;
                if (c < 0x11CB4) return c == 0x11CB1;
                return c == 0x11CB4;
            }
            if (c < 0x11D46) {
                if (c < 0x11D08) return c <= 0x11D06;
                if (c < 0x11D0B) return c <= 0x11D09;
                return c <= 0x11D30;
            }
            if (c < 0x11D50) return c == 0x11D46;
            if (c < 0x11D60) return c <= 0x11D59;
            return c <= 0x11D65;
        }
        if (c < 0x12400) {
            if (c < 0x11DA0) {
                if (c < 0x11D93) {
                    if (c < 0x11D6A) return c <= 0x11D68;
                    return c <= 0x11D8E;
                }
                if (c < 0x11D96) return c <= 0x11D94;
                if (c < 0x11D98) return c == 0x11D96;
                return c == 0x11D98;
            }
            if (c < 0x11FB0) {
                if (c < 0x11EE0) return c <= 0x11DA9;
                if (c < 0x11EF5) return c <= 0x11EF2;
                return c <= 0x11EF8;
            }
            if (c < 0x11FC0) return c == 0x11FB0;
            if (c < 0x11FFF) return c <= 0x11FD4;
            return c <= 0x12399;
        }
        if (c < 0x14400) {
            if (c < 0x12480) {
                if (c < 0x12470) return c <= 0x1246E;
                return c <= 0x12474;
            }
            if (c < 0x13000) return c <= 0x12543;
            if (c < 0x13430) return c <= 0x1342E;
            return c <= 0x13438;
        }
        if (c < 0x16A60) {
            if (c < 0x16800) return c <= 0x14646;
            if (c < 0x16A40) return c <= 0x16A38;
            return c <= 0x16A5E;
        }
        if (c < 0x16A6E) return c <= 0x16A69;
        if (c < 0x16AD0) return c <= 0x16A6F;
        return c <= 0x16AED;
    }
    if (c < 0x1D4BD) {
        if (c < 0x1BC70) {
            if (c < 0x16FE0) {
                if (c < 0x16B63) {
                    if (c < 0x16B37) {
                        if (c < 0x16B00) return c == 0x16AF5;
                        return c <= 0x16B2F;
                    }
                    if (c < 0x16B50) return c <= 0x16B45;
                    if (c < 0x16B5B) return c <= 0x16B59;
                    return c <= 0x16B61;
                }
                if (c < 0x16F00) {
                    if (c < 0x16B7D) return c <= 0x16B77;
                    if (c < 0x16E40) return c <= 0x16B8F;
                    return c <= 0x16E9A;
                }
                if (c < 0x16F50) return c <= 0x16F4A;
                if (c < 0x16F93) return c <= 0x16F87;
                return c <= 0x16F9F;
            }
            if (c < 0x18D00) {
                if (c < 0x16FF0) {
                    if (c < 0x16FE3) return c <= 0x16FE1;
                    return c == 0x16FE3;
                }
                if (c < 0x17000) return c <= 0x16FF1;
                if (c < 0x18800) return c <= 0x187F7;
                return c <= 0x18CD5;
            }
            if (c < 0x1B164) {
                if (c < 0x1B000) return c <= 0x18D08;
                if (c < 0x1B150) return c <= 0x1B11E;
                return c <= 0x1B152;
            }
            if (c < 0x1B170) return c <= 0x1B167;
            if (c < 0x1BC00) return c <= 0x1B2FB;
            return c <= 0x1BC6A;
        }
        if (c < 0x1D1AE) {
            if (c < 0x1D000) {
                if (c < 0x1BC90) {
                    if (c < 0x1BC80) return c <= 0x1BC7C;
                    return c <= 0x1BC88;
                }
                if (c < 0x1BC9C) return c <= 0x1BC99;
                if (c < 0x1BC9F) return c == 0x1BC9C;
                return c == 0x1BC9F;
            }
            if (c < 0x1D16A) {
                if (c < 0x1D100) return c <= 0x1D0F5;
                if (c < 0x1D129) return c <= 0x1D126;
                return c <= 0x1D166;
            }
            if (c < 0x1D183) return c <= 0x1D172;
            if (c < 0x1D18C) return c <= 0x1D184;
            return c <= 0x1D1A9;
        }
        if (c < 0x1D49E) {
            if (c < 0x1D360) {
                if (c < 0x1D2E0) return c <= 0x1D1E8;
                return c <= 0x1D2F3;
            }
            if (c < 0x1D400) return c <= 0x1D378;
            if (c < 0x1D456) return c <= 0x1D454;
            return c <= 0x1D49C;
        }
        if (c < 0x1D4A9) {
            if (c < 0x1D4A2) return c <= 0x1D49F;
            if (c < 0x1D4A5) return c == 0x1D4A2;
            return c <= 0x1D4A6;
        }
        if (c < 0x1D4AE) return c <= 0x1D4AC;
        if (c < 0x1D4BB) return c <= 0x1D4B9;
        return c == 0x1D4BB;
    }
    if (c < 0x1E100) {
        if (c < 0x1D6A8) {
            if (c < 0x1D51E) {
                if (c < 0x1D507) {
                    if (c < 0x1D4C5) return c <= 0x1D4C3;
                    return c <= 0x1D505;
                }
                if (c < 0x1D50D) return c <= 0x1D50A;
                if (c < 0x1D516) return c <= 0x1D514;
                return c <= 0x1D51C;
            }
            if (c < 0x1D546) {
                if (c < 0x1D53B) return c <= 0x1D539;
                if (c < 0x1D540) return c <= 0x1D53E;
                return c <= 0x1D544;
            }
            if (c < 0x1D54A) return c == 0x1D546;
            if (c < 0x1D552) return c <= 0x1D550;
            return c <= 0x1D6A5;
        }
        if (c < 0x1D7C4) {
            if (c < 0x1D716) {
                if (c < 0x1D6DC) return c <= 0x1D6DA;
                return c <= 0x1D714;
            }
            if (c < 0x1D750) return c <= 0x1D74E;
            if (c < 0x1D78A) return c <= 0x1D788;
            return c <= 0x1D7C2;
        }
        if (c < 0x1DA6D) {
            if (c < 0x1D800) return c <= 0x1D7CB;
            if (c < 0x1DA37) return c <= 0x1D9FF;
            return c <= 0x1DA3A;
        }
        if (c < 0x1DA76) return c <= 0x1DA74;
        if (c < 0x1DA85) return c <= 0x1DA83;
        return c <= 0x1DA8B;
    }
    if (c < 0x1F240) {
        if (c < 0x1E2F0) {
            if (c < 0x1E140) {
                if (c < 0x1E137) return c <= 0x1E12C;
                return c <= 0x1E13D;
            }
            if (c < 0x1E14E) return c <= 0x1E149;
            if (c < 0x1E2C0) return c <= 0x1E14F;
            return c <= 0x1E2EB;
        }
        if (c < 0x1F170) {
            if (c < 0x1F110) return c <= 0x1E2F9;
            if (c < 0x1F130) return c <= 0x1F12E;
            return c <= 0x1F169;
        }
        if (c < 0x1F1E6) return c <= 0x1F1AC;
        if (c < 0x1F210) return c <= 0x1F202;
        return c <= 0x1F23B;
    }
    if (c < 0x2B820) {
        if (c < 0x20000) {
            if (c < 0x1F250) return c <= 0x1F248;
            return c <= 0x1F251;
        }
        if (c < 0x2A700) return c <= 0x2A6DD;
        if (c < 0x2B740) return c <= 0x2B734;
        return c <= 0x2B81D;
    }
    if (c < 0x30000) {
        if (c < 0x2CEB0) return c <= 0x2CEA1;
        if (c < 0x2F800) return c <= 0x2EBE0;
        return c <= 0x2FA1D;
    }
    if (c < 0xF0000) return c <= 0x3134A;
    if (c < 0x100000) return c <= 0xFFFFD;
    return c <= 0x10FFFD;
}

bool isBidiRightToLeft(char32_t c) {
    if (c < 0x5BE) return false;
    if (c < 0x10A15) {
        if (c < 0x8B6) {
            if (c < 0x70F) {
                if (c < 0x60D) {
                    if (c < 0x5D0) {
                        if (c < 0x5C3) {
                            if (c < 0x5C0) return c == 0x5BE;
                            return c == 0x5C0;
                        }
                        if (c < 0x5C6) return c == 0x5C3;
                        return c == 0x5C6;
                    }
                    if (c < 0x608) {
                        if (c < 0x5EF) return c <= 0x5EA;
                        return c <= 0x5F4;
                    }
                    if (c < 0x60B) return c == 0x608;
                    return c == 0x60B;
                }
                if (c < 0x671) {
                    if (c < 0x61E) {
                        if (c < 0x61B) return c == 0x60D;
                        return c <= 0x61C;
                    }
                    if (c < 0x66D) return c <= 0x64A;
                    return c <= 0x66F;
                }
                if (c < 0x6EE) {
                    if (c < 0x6E5) return c <= 0x6D5;
                    return c <= 0x6E6;
                }
                if (c < 0x6FA) return c <= 0x6EF;
                return c <= 0x70D;
            }
            if (c < 0x81A) {
                if (c < 0x7C0) {
                    if (c < 0x74D) {
                        if (c < 0x712) return c <= 0x710;
                        return c <= 0x72F;
                    }
                    if (c < 0x7B1) return c <= 0x7A5;
                    return c == 0x7B1;
                }
                if (c < 0x7FA) {
                    if (c < 0x7F4) return c <= 0x7EA;
                    return c <= 0x7F5;
                }
                if (c < 0x7FE) return c == 0x7FA;
                return c <= 0x815;
            }
            if (c < 0x840) {
                if (c < 0x828) {
                    if (c < 0x824) return c == 0x81A;
                    return c == 0x824;
                }
                if (c < 0x830) return c == 0x828;
                return c <= 0x83E;
            }
            if (c < 0x860) {
                if (c < 0x85E) return c <= 0x858;
                return c == 0x85E;
            }
            if (c < 0x8A0) return c <= 0x86A;
            return c <= 0x8B4;
        }
        if (c < 0x10800) {
            if (c < 0xFB43) {
                if (c < 0xFB2A) {
                    if (c < 0xFB1D) {
                        if (c < 0x200F) return c <= 0x8C7;
                        return c == 0x200F;
                    }
                    if (c < 0xFB1F) return c == 0xFB1D;
                    return c <= 0xFB28;
                }
                if (c < 0xFB3E) {
                    if (c < 0xFB38) return c <= 0xFB36;
                    return c <= 0xFB3C;
                }
                if (c < 0xFB40) return c == 0xFB3E;
                return c <= 0xFB41;
            }
            if (c < 0xFD92) {
                if (c < 0xFBD3) {
                    if (c < 0xFB46) return c <= 0xFB44;
                    return c <= 0xFBC1;
                }
                if (c < 0xFD50) return c <= 0xFD3D;
                return c <= 0xFD8F;
            }
            if (c < 0xFE70) {
                if (c < 0xFDF0) return c <= 0xFDC7;
                return c <= 0xFDFC;
            }
            if (c < 0xFE76) return c <= 0xFE74;
            return c <= 0xFEFC;
        }
        if (c < 0x108E0) {
            if (c < 0x1083C) {
                if (c < 0x1080A) {
                    if (c < 0x10808) return c <= 0x10805;
                    return c == 0x10808;
                }
                if (c < 0x10837) return c <= 0x10835;
                return c <= 0x10838;
            }
            if (c < 0x10857) {
                if (c < 0x1083F) return c == 0x1083C;
                return c <= 0x10855;
            }
            if (c < 0x108A7) return c <= 0x1089E;
            return c <= 0x108AF;
        }
        if (c < 0x1093F) {
            if (c < 0x108FB) {
                if (c < 0x108F4) return c <= 0x108F2;
                return c <= 0x108F5;
            }
            if (c < 0x10920) return c <= 0x1091B;
            return c <= 0x10939;
        }
        if (c < 0x109BC) {
            if (c < 0x10980) return c == 0x1093F;
            return c <= 0x109B7;
        }
        if (c < 0x109D2) return c <= 0x109CF;
        if (c < 0x10A10) return c <= 0x10A00;
        return c <= 0x10A13;
    }
    if (c < 0x1EE00) {
        if (c < 0x10CFA) {
            if (c < 0x10B40) {
                if (c < 0x10A60) {
                    if (c < 0x10A40) {
                        if (c < 0x10A19) return c <= 0x10A17;
                        return c <= 0x10A35;
                    }
                    if (c < 0x10A50) return c <= 0x10A48;
                    return c <= 0x10A58;
                }
                if (c < 0x10AEB) {
                    if (c < 0x10AC0) return c <= 0x10A9F;
                    return c <= 0x10AE4;
                }
                if (c < 0x10B00) return c <= 0x10AF6;
                return c <= 0x10B35;
            }
            if (c < 0x10BA9) {
                if (c < 0x10B78) {
                    if (c < 0x10B58) return c <= 0x10B55;
                    return c <= 0x10B72;
                }
                if (c < 0x10B99) return c <= 0x10B91;
                return c <= 0x10B9C;
            }
            if (c < 0x10C80) {
                if (c < 0x10C00) return c <= 0x10BAF;
                return c <= 0x10C48;
            }
            if (c < 0x10CC0) return c <= 0x10CB2;
            return c <= 0x10CF2;
        }
        if (c < 0x10FE0) {
            if (c < 0x10F00) {
                if (c < 0x10EAD) {
                    if (c < 0x10E80) return c <= 0x10D23;
                    return c <= 0x10EA9;
                }
                if (c < 0x10EB0) return c == 0x10EAD;
                return c <= 0x10EB1;
            }
            if (c < 0x10F51) {
                if (c < 0x10F30) return c <= 0x10F27;
                return c <= 0x10F45;
            }
            if (c < 0x10FB0) return c <= 0x10F59;
            return c <= 0x10FCB;
        }
        if (c < 0x1E94B) {
            if (c < 0x1E8C7) {
                if (c < 0x1E800) return c <= 0x10FF6;
                return c <= 0x1E8C4;
            }
            if (c < 0x1E900) return c <= 0x1E8CF;
            return c <= 0x1E943;
        }
        if (c < 0x1E95E) {
            if (c < 0x1E950) return c == 0x1E94B;
            return c <= 0x1E959;
        }
        if (c < 0x1EC71) return c <= 0x1E95F;
        if (c < 0x1ED01) return c <= 0x1ECB4;
        return c <= 0x1ED3D;
    }
    if (c < 0x1EE57) {
        if (c < 0x1EE3B) {
            if (c < 0x1EE27) {
                if (c < 0x1EE21) {
                    if (c < 0x1EE05) return c <= 0x1EE03;
                    return c <= 0x1EE1F;
                }
                if (c < 0x1EE24) return c <= 0x1EE22;
                return c == 0x1EE24;
            }
            if (c < 0x1EE34) {
                if (c < 0x1EE29) return c == 0x1EE27;
                return c <= 0x1EE32;
            }
            if (c < 0x1EE39) return c <= 0x1EE37;
            return c == 0x1EE39;
        }
        if (c < 0x1EE4B) {
            if (c < 0x1EE47) {
                if (c < 0x1EE42) return c == 0x1EE3B;
                return c == 0x1EE42;
            }
            if (c < 0x1EE49) return c == 0x1EE47;
            return c == 0x1EE49;
        }
        if (c < 0x1EE51) {
            if (c < 0x1EE4D) return c == 0x1EE4B;
            return c <= 0x1EE4F;
        }
        if (c < 0x1EE54) return c <= 0x1EE52;
        return c == 0x1EE54;
    }
    if (c < 0x1EE6C) {
        if (c < 0x1EE5F) {
            if (c < 0x1EE5B) {
                if (c < 0x1EE59) return c == 0x1EE57;
                return c == 0x1EE59;
            }
            if (c < 0x1EE5D) return c == 0x1EE5B;
            return c == 0x1EE5D;
        }
        if (c < 0x1EE64) {
            if (c < 0x1EE61) return c == 0x1EE5F;
            return c <= 0x1EE62;
        }
        if (c < 0x1EE67) return c == 0x1EE64;
        return c <= 0x1EE6A;
    }
    if (c < 0x1EE80) {
        if (c < 0x1EE79) {
            if (c < 0x1EE74) return c <= 0x1EE72;
            return c <= 0x1EE77;
        }
        if (c < 0x1EE7E) return c <= 0x1EE7C;
        return c == 0x1EE7E;
    }
    if (c < 0x1EEA1) {
        if (c < 0x1EE8B) return c <= 0x1EE89;
        return c <= 0x1EE9B;
    }
    if (c < 0x1EEA5) return c <= 0x1EEA3;
    if (c < 0x1EEAB) return c <= 0x1EEA9;
    return c <= 0x1EEBB;
}

} // namespace Ondo
