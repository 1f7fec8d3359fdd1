#include <algorithm>
#include <iterator>

#include "corvane/scan/Util.h"

namespace Ondo::Util {

namespace {

constexpr std::u16string_view countries[] = {
    // clang-format off
    u"ac", u"ad", u"ae", u"af", u"ag", u"ai", u"al", u"am", u"an", u"ao", u"aq", u"ar",
    u"as", u"at", u"au", u"aw", u"ax", u"az",
    u"ba", u"bb", u"bd", u"be", u"bf", u"bg", u"bh", u"bi", u"bj", u"bl", u"bm", u"bn",
    u"bo", u"bq", u"br", u"bs", u"bt", u"bv", u"bw", u"by", u"bz",
    u"ca", u"cat", u"cc", u"cd", u"cf", u"cg", u"ch", u"ci", u"ck", u"cl", u"cm", u"cn",
    u"co", u"cr", u"cu", u"cv", u"cw", u"cx", u"cy", u"cz",
    u"de", u"dj", u"dk", u"dm", u"do", u"dz",
    u"ec", u"ee", u"eg", u"eh", u"er", u"es", u"et", u"eu", u"eus",
    u"fi", u"fj", u"fk", u"fm", u"fo", u"fr",
    u"ga", u"gal", u"gd", u"ge", u"gf", u"gg", u"gh", u"gi", u"gl", u"gm", u"gn", u"gp",
    u"gq", u"gr", u"gs", u"gt", u"gu", u"gw", u"gy",
    u"hk", u"hm", u"hn", u"hr", u"ht", u"hu",
    u"id", u"ie", u"il", u"im", u"in", u"io", u"iq", u"ir", u"is", u"it",
    u"je", u"jm", u"jo", u"jp",
    u"ke", u"kg", u"kh", u"ki", u"km", u"kn", u"kp", u"kr", u"kw", u"ky", u"kz",
    u"la", u"lb", u"lc", u"li", u"lk", u"lr", u"ls", u"lt", u"lu", u"lv", u"ly",
    u"ma", u"mc", u"md", u"me", u"mf", u"mg", u"mh", u"mk", u"ml", u"mm", u"mn", u"mo",
    u"mp", u"mq", u"mr", u"ms", u"mt", u"mu", u"mv", u"mw", u"mx", u"my", u"mz",
    u"na", u"nc", u"ne", u"nf", u"ng", u"ni", u"nl", u"no", u"np", u"nr", u"nu", u"nz",
    u"om",
    u"pa", u"pe", u"pf", u"pg", u"ph", u"pk", u"pl", u"pm", u"pn", u"pr", u"ps", u"pt",
    u"pw", u"py",
    u"qa",
    u"re", u"ro", u"rs", u"ru", u"rw",
    u"sa", u"sb", u"sc", u"sd", u"se", u"sg", u"sh", u"si", u"sj", u"sk", u"sl", u"sm",
    u"sn", u"so", u"sr", u"ss", u"st", u"sv", u"sx", u"sy", u"sz",
    u"tc", u"td", u"tf", u"tg", u"th", u"tj", u"tk", u"tl", u"tm", u"tn", u"to", u"tp",
    u"tr", u"tt", u"tv", u"tw", u"tz",
    u"ua", u"ug", u"uk", u"us", u"uy", u"uz",
    u"va", u"vc", u"ve", u"vg", u"vi", u"vn", u"vu",
    u"wf", u"ws",
    u"ye", u"yt",
    u"za", u"zm", u"zw",
    // clang-format on
};
static_assert(std::is_sorted(std::begin(countries), std::end(countries)));

constexpr std::u16string_view nonAsciiCountries[] = {
    // clang-format off
    u"укр",
    u"срб",
    u"қаз",
    u"бел",
    u"мкд",
    u"мон",
    u"中国",
    u"香港",
    u"台灣",
    u"新加坡",
    u"한국",
    u"日本",
    u"ไทย",
    u"ලංකා",
    u"இலங்கை",
    u"ভারত",
    u"বাংলা",
    u"ગુજરાત",
    u"ਪੰਜਾਬ",
    u"ଓଡ଼ିଆ",
    u"ଭାରତ",
    u"भारत",
    u"இந்தியா",
    u"తెలుగు",
    u"ಕನ್ನಡ",
    u"മലയാളം",
    u"සිංහල",
    u"مصر",
    u"السعودية",
    u"امارات",
    u"قطر",
    u"البحرين",
    u"الاردن",
    u"فلسطين",
    u"عمان",
    u"تونس",
    u"المغرب",
    u"الجزائر",
    u"سورية",
    u"عراق",
    u"لبنان",
    u"سودان",
    u"موريتانيا",
    u"ایران",
    u"عرب",
    u"ευ",
    u"ю",
    // clang-format on
};

constexpr std::u16string_view shortlist[] = {
    // clang-format off
    u"com", u"net", u"org", u"edu", u"gov", u"mil", u"int", u"info",
    u"biz", u"io", u"co", u"ai", u"app", u"dev", u"tech", u"me",
    // clang-format on
};

template <std::size_t N>
bool isOneOf(const std::u16string_view (&domains)[N], std::u16string_view domain) {
    return std::find(std::begin(domains), std::end(domains), domain) != std::end(domains);
}

} // namespace

constinit const std::span<const std::u16string_view> countryTLD = countries;

bool isCountryTLD(std::u16string_view domain) {
    return std::binary_search(std::begin(countries), std::end(countries), downcaseUnicode(domain));
}

bool isNonAsciiCountryTLD(std::u16string_view domain) {
    return isOneOf(nonAsciiCountries, downcaseUnicode(domain));
}

bool isShortlistTLD(std::u16string_view domain) {
    return isOneOf(shortlist, downcaseUnicode(domain));
}

} // namespace Ondo::Util
