// Written by tools/generate_unicode.py; do not edit.
// Unicode 13.0.0: General_Category of @unicode/unicode-13.0.0 1.6.17 (npm).
#include "corvane/scan/Unicode.h"

namespace Ondo {

bool isUnicodePunctuation(char32_t c) {
    if (c < 0x80) {
        if (c < 0x21) return false;
        if (c < 0x5B) {
            if (c < 0x3A) return c <= 0x2F;
            return c <= 0x40;
        }
        if (c < 0x7B) return c <= 0x60;
        return c <= 0x7E;
    }
    if (c < 0xA1) return false;
    if (c < 0x30FB) {
        if (c < 0x1400) {
            if (c < 0x7F7) {
                if (c < 0x5C0) {
                    if (c < 0xBF) {
                        if (c < 0xAB) {
                            if (c < 0xA7) return c == 0xA1;
                            return c == 0xA7;
                        }
                        if (c < 0xB6) return c == 0xAB;
                        if (c < 0xBB) return c <= 0xB7;
                        return c == 0xBB;
                    }
                    if (c < 0x55A) {
                        if (c < 0x37E) return c == 0xBF;
                        if (c < 0x387) return c == 0x37E;
                        return c == 0x387;
                    }
                    if (c < 0x589) return c <= 0x55F;
                    if (c < 0x5BE) return c <= 0x58A;
                    return c == 0x5BE;
                }
                if (c < 0x60C) {
                    if (c < 0x5C6) {
                        if (c < 0x5C3) return c == 0x5C0;
                        return c == 0x5C3;
                    }
                    if (c < 0x5F3) return c == 0x5C6;
                    if (c < 0x609) return c <= 0x5F4;
                    return c <= 0x60A;
                }
                if (c < 0x66A) {
                    if (c < 0x61B) return c <= 0x60D;
                    if (c < 0x61E) return c == 0x61B;
                    return c <= 0x61F;
                }
                if (c < 0x6D4) return c <= 0x66D;
                if (c < 0x700) return c == 0x6D4;
                return c <= 0x70D;
            }
            if (c < 0xE4F) {
                if (c < 0x9FD) {
                    if (c < 0x85E) {
                        if (c < 0x830) return c <= 0x7F9;
                        return c <= 0x83E;
                    }
                    if (c < 0x964) return c == 0x85E;
                    if (c < 0x970) return c <= 0x965;
                    return c == 0x970;
                }
                if (c < 0xC77) {
                    if (c < 0xA76) return c == 0x9FD;
                    if (c < 0xAF0) return c == 0xA76;
                    return c == 0xAF0;
                }
                if (c < 0xC84) return c == 0xC77;
                if (c < 0xDF4) return c == 0xC84;
                return c == 0xDF4;
            }
            if (c < 0xF85) {
                if (c < 0xF04) {
                    if (c < 0xE5A) return c == 0xE4F;
                    return c <= 0xE5B;
                }
                if (c < 0xF14) return c <= 0xF12;
                if (c < 0xF3A) return c == 0xF14;
                return c <= 0xF3D;
            }
            if (c < 0x104A) {
                if (c < 0xFD0) return c == 0xF85;
                if (c < 0xFD9) return c <= 0xFD4;
                return c <= 0xFDA;
            }
            if (c < 0x10FB) return c <= 0x104F;
            if (c < 0x1360) return c == 0x10FB;
            return c <= 0x1368;
        }
        if (c < 0x207D) {
            if (c < 0x1AA8) {
                if (c < 0x17D4) {
                    if (c < 0x169B) {
                        if (c < 0x166E) return c == 0x1400;
                        return c == 0x166E;
                    }
                    if (c < 0x16EB) return c <= 0x169C;
                    if (c < 0x1735) return c <= 0x16ED;
                    return c <= 0x1736;
                }
                if (c < 0x1944) {
                    if (c < 0x17D8) return c <= 0x17D6;
                    if (c < 0x1800) return c <= 0x17DA;
                    return c <= 0x180A;
                }
                if (c < 0x1A1E) return c <= 0x1945;
                if (c < 0x1AA0) return c <= 0x1A1F;
                return c <= 0x1AA6;
            }
            if (c < 0x1CC0) {
                if (c < 0x1BFC) {
                    if (c < 0x1B5A) return c <= 0x1AAD;
                    return c <= 0x1B60;
                }
                if (c < 0x1C3B) return c <= 0x1BFF;
                if (c < 0x1C7E) return c <= 0x1C3F;
                return c <= 0x1C7F;
            }
            if (c < 0x2030) {
                if (c < 0x1CD3) return c <= 0x1CC7;
                if (c < 0x2010) return c == 0x1CD3;
                return c <= 0x2027;
            }
            if (c < 0x2045) return c <= 0x2043;
            if (c < 0x2053) return c <= 0x2051;
            return c <= 0x205E;
        }
        if (c < 0x2CFE) {
            if (c < 0x27C5) {
                if (c < 0x2308) {
                    if (c < 0x208D) return c <= 0x207E;
                    return c <= 0x208E;
                }
                if (c < 0x2329) return c <= 0x230B;
                if (c < 0x2768) return c <= 0x232A;
                return c <= 0x2775;
            }
            if (c < 0x29D8) {
                if (c < 0x27E6) return c <= 0x27C6;
                if (c < 0x2983) return c <= 0x27EF;
                return c <= 0x2998;
            }
            if (c < 0x29FC) return c <= 0x29DB;
            if (c < 0x2CF9) return c <= 0x29FD;
            return c <= 0x2CFC;
        }
        if (c < 0x3001) {
            if (c < 0x2E00) {
                if (c < 0x2D70) return c <= 0x2CFF;
                return c == 0x2D70;
            }
            if (c < 0x2E30) return c <= 0x2E2E;
            if (c < 0x2E52) return c <= 0x2E4F;
            return c == 0x2E52;
        }
        if (c < 0x3030) {
            if (c < 0x3008) return c <= 0x3003;
            if (c < 0x3014) return c <= 0x3011;
            return c <= 0x301F;
        }
        if (c < 0x303D) return c == 0x3030;
        if (c < 0x30A0) return c == 0x303D;
        return c == 0x30A0;
    }
    if (c < 0x10AF0) {
        if (c < 0xFE63) {
            if (c < 0xA95F) {
                if (c < 0xA6F2) {
                    if (c < 0xA60D) {
                        if (c < 0xA4FE) return c == 0x30FB;
                        return c <= 0xA4FF;
                    }
                    if (c < 0xA673) return c <= 0xA60F;
                    if (c < 0xA67E) return c == 0xA673;
                    return c == 0xA67E;
                }
                if (c < 0xA8F8) {
                    if (c < 0xA874) return c <= 0xA6F7;
                    if (c < 0xA8CE) return c <= 0xA877;
                    return c <= 0xA8CF;
                }
                if (c < 0xA8FC) return c <= 0xA8FA;
                if (c < 0xA92E) return c == 0xA8FC;
                return c <= 0xA92F;
            }
            if (c < 0xAAF0) {
                if (c < 0xA9DE) {
                    if (c < 0xA9C1) return c == 0xA95F;
                    return c <= 0xA9CD;
                }
                if (c < 0xAA5C) return c <= 0xA9DF;
                if (c < 0xAADE) return c <= 0xAA5F;
                return c <= 0xAADF;
            }
            if (c < 0xFE10) {
                if (c < 0xABEB) return c <= 0xAAF1;
                if (c < 0xFD3E) return c == 0xABEB;
                return c <= 0xFD3F;
            }
            if (c < 0xFE30) return c <= 0xFE19;
            if (c < 0xFE54) return c <= 0xFE52;
            return c <= 0xFE61;
        }
        if (c < 0xFF5D) {
            if (c < 0xFF0C) {
                if (c < 0xFE6A) {
                    if (c < 0xFE68) return c == 0xFE63;
                    return c == 0xFE68;
                }
                if (c < 0xFF01) return c <= 0xFE6B;
                if (c < 0xFF05) return c <= 0xFF03;
                return c <= 0xFF0A;
            }
            if (c < 0xFF3B) {
                if (c < 0xFF1A) return c <= 0xFF0F;
                if (c < 0xFF1F) return c <= 0xFF1B;
                return c <= 0xFF20;
            }
            if (c < 0xFF3F) return c <= 0xFF3D;
            if (c < 0xFF5B) return c == 0xFF3F;
            return c == 0xFF5B;
        }
        if (c < 0x1056F) {
            if (c < 0x10100) {
                if (c < 0xFF5F) return c == 0xFF5D;
                return c <= 0xFF65;
            }
            if (c < 0x1039F) return c <= 0x10102;
            if (c < 0x103D0) return c == 0x1039F;
            return c == 0x103D0;
        }
        if (c < 0x1093F) {
            if (c < 0x10857) return c == 0x1056F;
            if (c < 0x1091F) return c == 0x10857;
            return c == 0x1091F;
        }
        if (c < 0x10A50) return c == 0x1093F;
        if (c < 0x10A7F) return c <= 0x10A58;
        return c == 0x10A7F;
    }
    if (c < 0x11660) {
        if (c < 0x111CD) {
            if (c < 0x11047) {
                if (c < 0x10B99) {
                    if (c < 0x10B39) return c <= 0x10AF6;
                    return c <= 0x10B3F;
                }
                if (c < 0x10EAD) return c <= 0x10B9C;
                if (c < 0x10F55) return c == 0x10EAD;
                return c <= 0x10F59;
            }
            if (c < 0x11140) {
                if (c < 0x110BB) return c <= 0x1104D;
                if (c < 0x110BE) return c <= 0x110BC;
                return c <= 0x110C1;
            }
            if (c < 0x11174) return c <= 0x11143;
            if (c < 0x111C5) return c <= 0x11175;
            return c <= 0x111C8;
        }
        if (c < 0x1144B) {
            if (c < 0x111DD) {
                if (c < 0x111DB) return c == 0x111CD;
                return c == 0x111DB;
            }
            if (c < 0x11238) return c <= 0x111DF;
            if (c < 0x112A9) return c <= 0x1123D;
            return c == 0x112A9;
        }
        if (c < 0x114C6) {
            if (c < 0x1145A) return c <= 0x1144F;
            if (c < 0x1145D) return c <= 0x1145B;
            return c == 0x1145D;
        }
        if (c < 0x115C1) return c == 0x114C6;
        if (c < 0x11641) return c <= 0x115D7;
        return c <= 0x11643;
    }
    if (c < 0x11FFF) {
        if (c < 0x11A3F) {
            if (c < 0x1183B) {
                if (c < 0x1173C) return c <= 0x1166C;
                return c <= 0x1173E;
            }
            if (c < 0x11944) return c == 0x1183B;
            if (c < 0x119E2) return c <= 0x11946;
            return c == 0x119E2;
        }
        if (c < 0x11C41) {
            if (c < 0x11A9A) return c <= 0x11A46;
            if (c < 0x11A9E) return c <= 0x11A9C;
            return c <= 0x11AA2;
        }
        if (c < 0x11C70) return c <= 0x11C45;
        if (c < 0x11EF7) return c <= 0x11C71;
        return c <= 0x11EF8;
    }
    if (c < 0x16B44) {
        if (c < 0x16A6E) {
            if (c < 0x12470) return c == 0x11FFF;
            return c <= 0x12474;
        }
        if (c < 0x16AF5) return c <= 0x16A6F;
        if (c < 0x16B37) return c == 0x16AF5;
        return c <= 0x16B3B;
    }
    if (c < 0x1BC9F) {
        if (c < 0x16E97) return c == 0x16B44;
        if (c < 0x16FE2) return c <= 0x16E9A;
        return c == 0x16FE2;
    }
    if (c < 0x1DA87) return c == 0x1BC9F;
    if (c < 0x1E95E) return c <= 0x1DA8B;
    return c <= 0x1E95F;
}

bool isUnicodeOpenPunctuation(char32_t c) {
    if (c < 0x80) {
        if (c < 0x28) return false;
        if (c < 0x5B) return c == 0x28;
        if (c < 0x7B) return c == 0x5B;
        return c == 0x7B;
    }
    if (c < 0xF3A) return false;
    if (c < 0x29DA) {
        if (c < 0x27C5) {
            if (c < 0x230A) {
                if (c < 0x201E) {
                    if (c < 0x169B) {
                        if (c < 0xF3C) return c == 0xF3A;
                        return c == 0xF3C;
                    }
                    if (c < 0x201A) return c == 0x169B;
                    return c == 0x201A;
                }
                if (c < 0x207D) {
                    if (c < 0x2045) return c == 0x201E;
                    return c == 0x2045;
                }
                if (c < 0x208D) return c == 0x207D;
                if (c < 0x2308) return c == 0x208D;
                return c == 0x2308;
            }
            if (c < 0x276C) {
                if (c < 0x2768) {
                    if (c < 0x2329) return c == 0x230A;
                    return c == 0x2329;
                }
                if (c < 0x276A) return c == 0x2768;
                return c == 0x276A;
            }
            if (c < 0x2770) {
                if (c < 0x276E) return c == 0x276C;
                return c == 0x276E;
            }
            if (c < 0x2772) return c == 0x2770;
            if (c < 0x2774) return c == 0x2772;
            return c == 0x2774;
        }
        if (c < 0x2989) {
            if (c < 0x27EC) {
                if (c < 0x27E8) {
                    if (c < 0x27E6) return c == 0x27C5;
                    return c == 0x27E6;
                }
                if (c < 0x27EA) return c == 0x27E8;
                return c == 0x27EA;
            }
            if (c < 0x2983) {
                if (c < 0x27EE) return c == 0x27EC;
                return c == 0x27EE;
            }
            if (c < 0x2985) return c == 0x2983;
            if (c < 0x2987) return c == 0x2985;
            return c == 0x2987;
        }
        if (c < 0x2991) {
            if (c < 0x298D) {
                if (c < 0x298B) return c == 0x2989;
                return c == 0x298B;
            }
            if (c < 0x298F) return c == 0x298D;
            return c == 0x298F;
        }
        if (c < 0x2995) {
            if (c < 0x2993) return c == 0x2991;
            return c == 0x2993;
        }
        if (c < 0x2997) return c == 0x2995;
        if (c < 0x29D8) return c == 0x2997;
        return c == 0x29D8;
    }
    if (c < 0xFE17) {
        if (c < 0x300C) {
            if (c < 0x2E26) {
                if (c < 0x2E22) {
                    if (c < 0x29FC) return c == 0x29DA;
                    return c == 0x29FC;
                }
                if (c < 0x2E24) return c == 0x2E22;
                return c == 0x2E24;
            }
            if (c < 0x2E42) {
                if (c < 0x2E28) return c == 0x2E26;
                return c == 0x2E28;
            }
            if (c < 0x3008) return c == 0x2E42;
            if (c < 0x300A) return c == 0x3008;
            return c == 0x300A;
        }
        if (c < 0x3016) {
            if (c < 0x3010) {
                if (c < 0x300E) return c == 0x300C;
                return c == 0x300E;
            }
            if (c < 0x3014) return c == 0x3010;
            return c == 0x3014;
        }
        if (c < 0x301A) {
            if (c < 0x3018) return c == 0x3016;
            return c == 0x3018;
        }
        if (c < 0x301D) return c == 0x301A;
        if (c < 0xFD3F) return c == 0x301D;
        return c == 0xFD3F;
    }
    if (c < 0xFE47) {
        if (c < 0xFE3B) {
            if (c < 0xFE37) {
                if (c < 0xFE35) return c == 0xFE17;
                return c == 0xFE35;
            }
            if (c < 0xFE39) return c == 0xFE37;
            return c == 0xFE39;
        }
        if (c < 0xFE3F) {
            if (c < 0xFE3D) return c == 0xFE3B;
            return c == 0xFE3D;
        }
        if (c < 0xFE41) return c == 0xFE3F;
        if (c < 0xFE43) return c == 0xFE41;
        return c == 0xFE43;
    }
    if (c < 0xFF08) {
        if (c < 0xFE5B) {
            if (c < 0xFE59) return c == 0xFE47;
            return c == 0xFE59;
        }
        if (c < 0xFE5D) return c == 0xFE5B;
        return c == 0xFE5D;
    }
    if (c < 0xFF5B) {
        if (c < 0xFF3B) return c == 0xFF08;
        return c == 0xFF3B;
    }
    if (c < 0xFF5F) return c == 0xFF5B;
    if (c < 0xFF62) return c == 0xFF5F;
    return c == 0xFF62;
}

bool isUnicodeClosePunctuation(char32_t c) {
    if (c < 0x80) {
        if (c < 0x29) return false;
        if (c < 0x5D) return c == 0x29;
        if (c < 0x7D) return c == 0x5D;
        return c == 0x7D;
    }
    if (c < 0xF3B) return false;
    if (c < 0x29DB) {
        if (c < 0x27E7) {
            if (c < 0x232A) {
                if (c < 0x207E) {
                    if (c < 0x169C) {
                        if (c < 0xF3D) return c == 0xF3B;
                        return c == 0xF3D;
                    }
                    if (c < 0x2046) return c == 0x169C;
                    return c == 0x2046;
                }
                if (c < 0x2309) {
                    if (c < 0x208E) return c == 0x207E;
                    return c == 0x208E;
                }
                if (c < 0x230B) return c == 0x2309;
                return c == 0x230B;
            }
            if (c < 0x276F) {
                if (c < 0x276B) {
                    if (c < 0x2769) return c == 0x232A;
                    return c == 0x2769;
                }
                if (c < 0x276D) return c == 0x276B;
                return c == 0x276D;
            }
            if (c < 0x2773) {
                if (c < 0x2771) return c == 0x276F;
                return c == 0x2771;
            }
            if (c < 0x2775) return c == 0x2773;
            if (c < 0x27C6) return c == 0x2775;
            return c == 0x27C6;
        }
        if (c < 0x298A) {
            if (c < 0x27EF) {
                if (c < 0x27EB) {
                    if (c < 0x27E9) return c == 0x27E7;
                    return c == 0x27E9;
                }
                if (c < 0x27ED) return c == 0x27EB;
                return c == 0x27ED;
            }
            if (c < 0x2986) {
                if (c < 0x2984) return c == 0x27EF;
                return c == 0x2984;
            }
            if (c < 0x2988) return c == 0x2986;
            return c == 0x2988;
        }
        if (c < 0x2992) {
            if (c < 0x298E) {
                if (c < 0x298C) return c == 0x298A;
                return c == 0x298C;
            }
            if (c < 0x2990) return c == 0x298E;
            return c == 0x2990;
        }
        if (c < 0x2996) {
            if (c < 0x2994) return c == 0x2992;
            return c == 0x2994;
        }
        if (c < 0x2998) return c == 0x2996;
        if (c < 0x29D9) return c == 0x2998;
        return c == 0x29D9;
    }
    if (c < 0xFE18) {
        if (c < 0x300D) {
            if (c < 0x2E27) {
                if (c < 0x2E23) {
                    if (c < 0x29FD) return c == 0x29DB;
                    return c == 0x29FD;
                }
                if (c < 0x2E25) return c == 0x2E23;
                return c == 0x2E25;
            }
            if (c < 0x3009) {
                if (c < 0x2E29) return c == 0x2E27;
                return c == 0x2E29;
            }
            if (c < 0x300B) return c == 0x3009;
            return c == 0x300B;
        }
        if (c < 0x3017) {
            if (c < 0x3011) {
                if (c < 0x300F) return c == 0x300D;
                return c == 0x300F;
            }
            if (c < 0x3015) return c == 0x3011;
            return c == 0x3015;
        }
        if (c < 0x301B) {
            if (c < 0x3019) return c == 0x3017;
            return c == 0x3019;
        }
        if (c < 0x301E) return c == 0x301B;
        if (c < 0xFD3E) return c <= 0x301F;
        return c == 0xFD3E;
    }
    if (c < 0xFE48) {
        if (c < 0xFE3C) {
            if (c < 0xFE38) {
                if (c < 0xFE36) return c == 0xFE18;
                return c == 0xFE36;
            }
            if (c < 0xFE3A) return c == 0xFE38;
            return c == 0xFE3A;
        }
        if (c < 0xFE40) {
            if (c < 0xFE3E) return c == 0xFE3C;
            return c == 0xFE3E;
        }
        if (c < 0xFE42) return c == 0xFE40;
        if (c < 0xFE44) return c == 0xFE42;
        return c == 0xFE44;
    }
    if (c < 0xFF09) {
        if (c < 0xFE5C) {
            if (c < 0xFE5A) return c == 0xFE48;
            return c == 0xFE5A;
        }
        if (c < 0xFE5E) return c == 0xFE5C;
        return c == 0xFE5E;
    }
    if (c < 0xFF5D) {
        if (c < 0xFF3D) return c == 0xFF09;
        return c == 0xFF3D;
    }
    if (c < 0xFF60) return c == 0xFF5D;
    if (c < 0xFF63) return c == 0xFF60;
    return c == 0xFF63;
}

bool isUnicodeSymbol(char32_t c) {
    if (c < 0x80) {
        if (c < 0x24) return false;
        if (c < 0x5E) {
            if (c < 0x2B) return c == 0x24;
            if (c < 0x3C) return c == 0x2B;
            return c <= 0x3E;
        }
        if (c < 0x7C) {
            if (c < 0x60) return c == 0x5E;
            return c == 0x60;
        }
        if (c < 0x7E) return c == 0x7C;
        return c == 0x7E;
    }
    if (c < 0xA2) return false;
    if (c < 0x3250) {
        if (c < 0x1FBF) {
            if (c < 0x9FA) {
                if (c < 0x375) {
                    if (c < 0xD7) {
                        if (c < 0xAE) {
                            if (c < 0xA8) return c <= 0xA6;
                            if (c < 0xAC) return c <= 0xA9;
                            return c == 0xAC;
                        }
                        if (c < 0xB4) return c <= 0xB1;
                        if (c < 0xB8) return c == 0xB4;
                        return c == 0xB8;
                    }
                    if (c < 0x2D2) {
                        if (c < 0xF7) return c == 0xD7;
                        if (c < 0x2C2) return c == 0xF7;
                        return c <= 0x2C5;
                    }
                    if (c < 0x2ED) {
                        if (c < 0x2E5) return c <= 0x2DF;
                        return c <= 0x2EB;
                    }
                    if (c < 0x2EF) return c == 0x2ED;
                    return c <= 0x2FF;
                }
                if (c < 0x60E) {
                    if (c < 0x482) {
                        if (c < 0x384) return c == 0x375;
                        if (c < 0x3F6) return c <= 0x385;
                        return c == 0x3F6;
                    }
                    if (c < 0x606) {
                        if (c < 0x58D) return c == 0x482;
                        return c <= 0x58F;
                    }
                    if (c < 0x60B) return c <= 0x608;
                    return c == 0x60B;
                }
                if (c < 0x6FD) {
                    if (c < 0x6DE) return c <= 0x60F;
                    if (c < 0x6E9) return c == 0x6DE;
                    return c == 0x6E9;
                }
                if (c < 0x7FE) {
                    if (c < 0x7F6) return c <= 0x6FE;
                    return c == 0x7F6;
                }
                if (c < 0x9F2) return c <= 0x7FF;
                return c <= 0x9F3;
            }
            if (c < 0xF38) {
                if (c < 0xE3F) {
                    if (c < 0xBF3) {
                        if (c < 0xAF1) return c <= 0x9FB;
                        if (c < 0xB70) return c == 0xAF1;
                        return c == 0xB70;
                    }
                    if (c < 0xD4F) {
                        if (c < 0xC7F) return c <= 0xBFA;
                        return c == 0xC7F;
                    }
                    if (c < 0xD79) return c == 0xD4F;
                    return c == 0xD79;
                }
                if (c < 0xF15) {
                    if (c < 0xF01) return c == 0xE3F;
                    if (c < 0xF13) return c <= 0xF03;
                    return c == 0xF13;
                }
                if (c < 0xF34) {
                    if (c < 0xF1A) return c <= 0xF17;
                    return c <= 0xF1F;
                }
                if (c < 0xF36) return c == 0xF34;
                return c == 0xF36;
            }
            if (c < 0x166D) {
                if (c < 0xFCE) {
                    if (c < 0xFBE) return c == 0xF38;
                    if (c < 0xFC7) return c <= 0xFC5;
                    return c <= 0xFCC;
                }
                if (c < 0x109E) {
                    if (c < 0xFD5) return c <= 0xFCF;
                    return c <= 0xFD8;
                }
                if (c < 0x1390) return c <= 0x109F;
                return c <= 0x1399;
            }
            if (c < 0x19DE) {
                if (c < 0x17DB) return c == 0x166D;
                if (c < 0x1940) return c == 0x17DB;
                return c == 0x1940;
            }
            if (c < 0x1B74) {
                if (c < 0x1B61) return c <= 0x19FF;
                return c <= 0x1B6A;
            }
            if (c < 0x1FBD) return c <= 0x1B7C;
            return c == 0x1FBD;
        }
        if (c < 0x2440) {
            if (c < 0x2116) {
                if (c < 0x207A) {
                    if (c < 0x1FED) {
                        if (c < 0x1FCD) return c <= 0x1FC1;
                        if (c < 0x1FDD) return c <= 0x1FCF;
                        return c <= 0x1FDF;
                    }
                    if (c < 0x2044) {
                        if (c < 0x1FFD) return c <= 0x1FEF;
                        return c <= 0x1FFE;
                    }
                    if (c < 0x2052) return c == 0x2044;
                    return c == 0x2052;
                }
                if (c < 0x2100) {
                    if (c < 0x208A) return c <= 0x207C;
                    if (c < 0x20A0) return c <= 0x208C;
                    return c <= 0x20BF;
                }
                if (c < 0x2108) {
                    if (c < 0x2103) return c <= 0x2101;
                    return c <= 0x2106;
                }
                if (c < 0x2114) return c <= 0x2109;
                return c == 0x2114;
            }
            if (c < 0x2140) {
                if (c < 0x2127) {
                    if (c < 0x211E) return c <= 0x2118;
                    if (c < 0x2125) return c <= 0x2123;
                    return c == 0x2125;
                }
                if (c < 0x212E) {
                    if (c < 0x2129) return c == 0x2127;
                    return c == 0x2129;
                }
                if (c < 0x213A) return c == 0x212E;
                return c <= 0x213B;
            }
            if (c < 0x218A) {
                if (c < 0x214A) return c <= 0x2144;
                if (c < 0x214F) return c <= 0x214D;
                return c == 0x214F;
            }
            if (c < 0x230C) {
                if (c < 0x2190) return c <= 0x218B;
                return c <= 0x2307;
            }
            if (c < 0x232B) return c <= 0x2328;
            return c <= 0x2426;
        }
        if (c < 0x2E9B) {
            if (c < 0x29DC) {
                if (c < 0x2794) {
                    if (c < 0x249C) return c <= 0x244A;
                    if (c < 0x2500) return c <= 0x24E9;
                    return c <= 0x2767;
                }
                if (c < 0x27F0) {
                    if (c < 0x27C7) return c <= 0x27C4;
                    return c <= 0x27E5;
                }
                if (c < 0x2999) return c <= 0x2982;
                return c <= 0x29D7;
            }
            if (c < 0x2B97) {
                if (c < 0x29FE) return c <= 0x29FB;
                if (c < 0x2B76) return c <= 0x2B73;
                return c <= 0x2B95;
            }
            if (c < 0x2E50) {
                if (c < 0x2CE5) return c <= 0x2BFF;
                return c <= 0x2CEA;
            }
            if (c < 0x2E80) return c <= 0x2E51;
            return c <= 0x2E99;
        }
        if (c < 0x303E) {
            if (c < 0x3004) {
                if (c < 0x2F00) return c <= 0x2EF3;
                if (c < 0x2FF0) return c <= 0x2FD5;
                return c <= 0x2FFB;
            }
            if (c < 0x3020) {
                if (c < 0x3012) return c == 0x3004;
                return c <= 0x3013;
            }
            if (c < 0x3036) return c == 0x3020;
            return c <= 0x3037;
        }
        if (c < 0x3196) {
            if (c < 0x309B) return c <= 0x303F;
            if (c < 0x3190) return c <= 0x309C;
            return c <= 0x3191;
        }
        if (c < 0x3200) {
            if (c < 0x31C0) return c <= 0x319F;
            return c <= 0x31E3;
        }
        if (c < 0x322A) return c <= 0x321E;
        return c <= 0x3247;
    }
    if (c < 0x1D6FB) {
        if (c < 0xFFE0) {
            if (c < 0xAB6A) {
                if (c < 0xA700) {
                    if (c < 0x32C0) {
                        if (c < 0x3260) return c == 0x3250;
                        if (c < 0x328A) return c <= 0x327F;
                        return c <= 0x32B0;
                    }
                    if (c < 0x4DC0) return c <= 0x33FF;
                    if (c < 0xA490) return c <= 0x4DFF;
                    return c <= 0xA4C6;
                }
                if (c < 0xA828) {
                    if (c < 0xA720) return c <= 0xA716;
                    if (c < 0xA789) return c <= 0xA721;
                    return c <= 0xA78A;
                }
                if (c < 0xAA77) {
                    if (c < 0xA836) return c <= 0xA82B;
                    return c <= 0xA839;
                }
                if (c < 0xAB5B) return c <= 0xAA79;
                return c == 0xAB5B;
            }
            if (c < 0xFF04) {
                if (c < 0xFDFC) {
                    if (c < 0xFB29) return c <= 0xAB6B;
                    if (c < 0xFBB2) return c == 0xFB29;
                    return c <= 0xFBC1;
                }
                if (c < 0xFE64) {
                    if (c < 0xFE62) return c <= 0xFDFD;
                    return c == 0xFE62;
                }
                if (c < 0xFE69) return c <= 0xFE66;
                return c == 0xFE69;
            }
            if (c < 0xFF3E) {
                if (c < 0xFF0B) return c == 0xFF04;
                if (c < 0xFF1C) return c == 0xFF0B;
                return c <= 0xFF1E;
            }
            if (c < 0xFF5C) {
                if (c < 0xFF40) return c == 0xFF3E;
                return c == 0xFF40;
            }
            if (c < 0xFF5E) return c == 0xFF5C;
            return c == 0xFF5E;
        }
        if (c < 0x16B45) {
            if (c < 0x101A0) {
                if (c < 0x10137) {
                    if (c < 0xFFE8) return c <= 0xFFE6;
                    if (c < 0xFFFC) return c <= 0xFFEE;
                    return c <= 0xFFFD;
                }
                if (c < 0x1018C) {
                    if (c < 0x10179) return c <= 0x1013F;
                    return c <= 0x10189;
                }
                if (c < 0x10190) return c <= 0x1018E;
                return c <= 0x1019C;
            }
            if (c < 0x10AC8) {
                if (c < 0x101D0) return c == 0x101A0;
                if (c < 0x10877) return c <= 0x101FC;
                return c <= 0x10878;
            }
            if (c < 0x11FD5) {
                if (c < 0x1173F) return c == 0x10AC8;
                return c == 0x1173F;
            }
            if (c < 0x16B3C) return c <= 0x11FF1;
            return c <= 0x16B3F;
        }
        if (c < 0x1D18C) {
            if (c < 0x1D100) {
                if (c < 0x1BC9C) return c == 0x16B45;
                if (c < 0x1D000) return c == 0x1BC9C;
                return c <= 0x1D0F5;
            }
            if (c < 0x1D16A) {
                if (c < 0x1D129) return c <= 0x1D126;
                return c <= 0x1D164;
            }
            if (c < 0x1D183) return c <= 0x1D16C;
            return c <= 0x1D184;
        }
        if (c < 0x1D245) {
            if (c < 0x1D1AE) return c <= 0x1D1A9;
            if (c < 0x1D200) return c <= 0x1D1E8;
            return c <= 0x1D241;
        }
        if (c < 0x1D6C1) {
            if (c < 0x1D300) return c == 0x1D245;
            return c <= 0x1D356;
        }
        if (c < 0x1D6DB) return c == 0x1D6C1;
        return c == 0x1D6DB;
    }
    if (c < 0x1F240) {
        if (c < 0x1E2FF) {
            if (c < 0x1D7C3) {
                if (c < 0x1D74F) {
                    if (c < 0x1D715) return c == 0x1D6FB;
                    if (c < 0x1D735) return c == 0x1D715;
                    return c == 0x1D735;
                }
                if (c < 0x1D789) {
                    if (c < 0x1D76F) return c == 0x1D74F;
                    return c == 0x1D76F;
                }
                if (c < 0x1D7A9) return c == 0x1D789;
                return c == 0x1D7A9;
            }
            if (c < 0x1DA6D) {
                if (c < 0x1D800) return c == 0x1D7C3;
                if (c < 0x1DA37) return c <= 0x1D9FF;
                return c <= 0x1DA3A;
            }
            if (c < 0x1DA85) {
                if (c < 0x1DA76) return c <= 0x1DA74;
                return c <= 0x1DA83;
            }
            if (c < 0x1E14F) return c <= 0x1DA86;
            return c == 0x1E14F;
        }
        if (c < 0x1F0A0) {
            if (c < 0x1ED2E) {
                if (c < 0x1ECAC) return c == 0x1E2FF;
                if (c < 0x1ECB0) return c == 0x1ECAC;
                return c == 0x1ECB0;
            }
            if (c < 0x1F000) {
                if (c < 0x1EEF0) return c == 0x1ED2E;
                return c <= 0x1EEF1;
            }
            if (c < 0x1F030) return c <= 0x1F02B;
            return c <= 0x1F093;
        }
        if (c < 0x1F0D1) {
            if (c < 0x1F0B1) return c <= 0x1F0AE;
            if (c < 0x1F0C1) return c <= 0x1F0BF;
            return c <= 0x1F0CF;
        }
        if (c < 0x1F1E6) {
            if (c < 0x1F10D) return c <= 0x1F0F5;
            return c <= 0x1F1AD;
        }
        if (c < 0x1F210) return c <= 0x1F202;
        return c <= 0x1F23B;
    }
    if (c < 0x1F8B0) {
        if (c < 0x1F780) {
            if (c < 0x1F300) {
                if (c < 0x1F250) return c <= 0x1F248;
                if (c < 0x1F260) return c <= 0x1F251;
                return c <= 0x1F265;
            }
            if (c < 0x1F6F0) {
                if (c < 0x1F6E0) return c <= 0x1F6D7;
                return c <= 0x1F6EC;
            }
            if (c < 0x1F700) return c <= 0x1F6FC;
            return c <= 0x1F773;
        }
        if (c < 0x1F810) {
            if (c < 0x1F7E0) return c <= 0x1F7D8;
            if (c < 0x1F800) return c <= 0x1F7EB;
            return c <= 0x1F80B;
        }
        if (c < 0x1F860) {
            if (c < 0x1F850) return c <= 0x1F847;
            return c <= 0x1F859;
        }
        if (c < 0x1F890) return c <= 0x1F887;
        return c <= 0x1F8AD;
    }
    if (c < 0x1FA80) {
        if (c < 0x1F9CD) {
            if (c < 0x1F900) return c <= 0x1F8B1;
            if (c < 0x1F97A) return c <= 0x1F978;
            return c <= 0x1F9CB;
        }
        if (c < 0x1FA70) {
            if (c < 0x1FA60) return c <= 0x1FA53;
            return c <= 0x1FA6D;
        }
        if (c < 0x1FA78) return c <= 0x1FA74;
        return c <= 0x1FA7A;
    }
    if (c < 0x1FAC0) {
        if (c < 0x1FA90) return c <= 0x1FA86;
        if (c < 0x1FAB0) return c <= 0x1FAA8;
        return c <= 0x1FAB6;
    }
    if (c < 0x1FB00) {
        if (c < 0x1FAD0) return c <= 0x1FAC2;
        return c <= 0x1FAD6;
    }
    if (c < 0x1FB94) return c <= 0x1FB92;
    return c <= 0x1FBCA;
}

bool isUnicodeCurrencySymbol(char32_t c) {
    if (c < 0x80) {
        if (c < 0x24) return false;
        return c == 0x24;
    }
    if (c < 0xA2) return false;
    if (c < 0x20A0) {
        if (c < 0x9FB) {
            if (c < 0x60B) {
                if (c < 0x58F) return c <= 0xA5;
                return c == 0x58F;
            }
            if (c < 0x7FE) return c == 0x60B;
            if (c < 0x9F2) return c <= 0x7FF;
            return c <= 0x9F3;
        }
        if (c < 0xBF9) {
            if (c < 0xAF1) return c == 0x9FB;
            return c == 0xAF1;
        }
        if (c < 0xE3F) return c == 0xBF9;
        if (c < 0x17DB) return c == 0xE3F;
        return c == 0x17DB;
    }
    if (c < 0xFFE0) {
        if (c < 0xFDFC) {
            if (c < 0xA838) return c <= 0x20BF;
            return c == 0xA838;
        }
        if (c < 0xFE69) return c == 0xFDFC;
        if (c < 0xFF04) return c == 0xFE69;
        return c == 0xFF04;
    }
    if (c < 0x11FDD) {
        if (c < 0xFFE5) return c <= 0xFFE1;
        return c <= 0xFFE6;
    }
    if (c < 0x1E2FF) return c <= 0x11FE0;
    if (c < 0x1ECB0) return c == 0x1E2FF;
    return c == 0x1ECB0;
}

bool isUnicodeDecimalNumber(char32_t c) {
    if (c < 0x80) {
        if (c < 0x30) return false;
        return c <= 0x39;
    }
    if (c < 0x660) return false;
    if (c < 0xA900) {
        if (c < 0xF20) {
            if (c < 0xB66) {
                if (c < 0x966) {
                    if (c < 0x6F0) return c <= 0x669;
                    if (c < 0x7C0) return c <= 0x6F9;
                    return c <= 0x7C9;
                }
                if (c < 0xA66) {
                    if (c < 0x9E6) return c <= 0x96F;
                    return c <= 0x9EF;
                }
                if (c < 0xAE6) return c <= 0xA6F;
                return c <= 0xAEF;
            }
            if (c < 0xD66) {
                if (c < 0xC66) {
                    if (c < 0xBE6) return c <= 0xB6F;
                    return c <= 0xBEF;
                }
                if (c < 0xCE6) return c <= 0xC6F;
                return c <= 0xCEF;
            }
            if (c < 0xE50) {
                if (c < 0xDE6) return c <= 0xD6F;
                return c <= 0xDEF;
            }
            if (c < 0xED0) return c <= 0xE59;
            return c <= 0xED9;
        }
        if (c < 0x1A80) {
            if (c < 0x17E0) {
                if (c < 0x1040) return c <= 0xF29;
                if (c < 0x1090) return c <= 0x1049;
                return c <= 0x1099;
            }
            if (c < 0x1946) {
                if (c < 0x1810) return c <= 0x17E9;
                return c <= 0x1819;
            }
            if (c < 0x19D0) return c <= 0x194F;
            return c <= 0x19D9;
        }
        if (c < 0x1C40) {
            if (c < 0x1B50) {
                if (c < 0x1A90) return c <= 0x1A89;
                return c <= 0x1A99;
            }
            if (c < 0x1BB0) return c <= 0x1B59;
            return c <= 0x1BB9;
        }
        if (c < 0xA620) {
            if (c < 0x1C50) return c <= 0x1C49;
            return c <= 0x1C59;
        }
        if (c < 0xA8D0) return c <= 0xA629;
        return c <= 0xA8D9;
    }
    if (c < 0x11650) {
        if (c < 0x10D30) {
            if (c < 0xAA50) {
                if (c < 0xA9D0) return c <= 0xA909;
                if (c < 0xA9F0) return c <= 0xA9D9;
                return c <= 0xA9F9;
            }
            if (c < 0xFF10) {
                if (c < 0xABF0) return c <= 0xAA59;
                return c <= 0xABF9;
            }
            if (c < 0x104A0) return c <= 0xFF19;
            return c <= 0x104A9;
        }
        if (c < 0x111D0) {
            if (c < 0x110F0) {
                if (c < 0x11066) return c <= 0x10D39;
                return c <= 0x1106F;
            }
            if (c < 0x11136) return c <= 0x110F9;
            return c <= 0x1113F;
        }
        if (c < 0x11450) {
            if (c < 0x112F0) return c <= 0x111D9;
            return c <= 0x112F9;
        }
        if (c < 0x114D0) return c <= 0x11459;
        return c <= 0x114D9;
    }
    if (c < 0x11DA0) {
        if (c < 0x118E0) {
            if (c < 0x116C0) return c <= 0x11659;
            if (c < 0x11730) return c <= 0x116C9;
            return c <= 0x11739;
        }
        if (c < 0x11C50) {
            if (c < 0x11950) return c <= 0x118E9;
            return c <= 0x11959;
        }
        if (c < 0x11D50) return c <= 0x11C59;
        return c <= 0x11D59;
    }
    if (c < 0x1E140) {
        if (c < 0x16B50) {
            if (c < 0x16A60) return c <= 0x11DA9;
            return c <= 0x16A69;
        }
        if (c < 0x1D7CE) return c <= 0x16B59;
        return c <= 0x1D7FF;
    }
    if (c < 0x1E950) {
        if (c < 0x1E2F0) return c <= 0x1E149;
        return c <= 0x1E2F9;
    }
    if (c < 0x1FBF0) return c <= 0x1E959;
    return c <= 0x1FBF9;
}

} // namespace Ondo
