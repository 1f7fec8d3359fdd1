#include "corvane/client/CVNQuery.h"

#include "capi/Arguments.h"
#include "capi/Handles.h"

using namespace CApi;
namespace Query = CVN::Query;

namespace {

bool isIndex(const corvane_annotation& annotation, std::int64_t index) {
    return isWithin(index, 0, annotation.string.length());
}

void set(corvane_range* place, CVNRange range) {
    if (place) *place = toC(range);
}

} // namespace

corvane_status corvane_query_range_test(const corvane_annotation* annotation, const char* name,
                                        int64_t location, int64_t length, int32_t* holds) {
    if (!annotation || !name || !holds) return CORVANE_ERROR_NULL;
    const Query::RangeTest* const query = Query::rangeTest(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isWithin(location, length, annotation->string.length())) return CORVANE_ERROR_RANGE;
    *holds = (*query)(annotation->string, {location, length});
    return CORVANE_OK;
}

corvane_status corvane_query_contains(const corvane_annotation* annotation, corvane_key key, int64_t location,
                                      int64_t length, int32_t* contains) {
    if (!annotation || !contains) return CORVANE_ERROR_NULL;
    if (!isKey(key)) return CORVANE_ERROR_NUMBER;
    if (!isWithin(location, length, annotation->string.length())) return CORVANE_ERROR_RANGE;
    const CVNAttributeName attribute = CVNAttributeName::withId(key);
    *contains = Query::rangeContainsAttribute(annotation->string, {location, length}, attribute);
    return CORVANE_OK;
}

corvane_status corvane_query_index_test(const corvane_annotation* annotation, const char* name, int64_t index,
                                        int32_t* holds) {
    if (!annotation || !name || !holds) return CORVANE_ERROR_NULL;
    const Query::IndexTest* const query = Query::indexTest(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isIndex(*annotation, index)) return CORVANE_ERROR_RANGE;
    *holds = (*query)(annotation->string, index);
    return CORVANE_OK;
}

corvane_status corvane_query_number(const corvane_annotation* annotation, const char* name, int64_t index,
                                    int64_t* number) {
    if (!annotation || !name || !number) return CORVANE_ERROR_NULL;
    const Query::NumberAtIndexQuery* const query = Query::numberAtIndexQuery(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isIndex(*annotation, index)) return CORVANE_ERROR_RANGE;
    *number = (*query)(annotation->string, index);
    return CORVANE_OK;
}

corvane_status corvane_query_range_at(const corvane_annotation* annotation, const char* name, int64_t index,
                                      corvane_range* range, corvane_range* marker) {
    if (!annotation || !name || !range) return CORVANE_ERROR_NULL;
    const Query::RangeAtIndexQuery* const query = Query::rangeAtIndexQuery(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isIndex(*annotation, index)) return CORVANE_ERROR_RANGE;
    CVNRange markerRange;
    set(range, (*query)(annotation->string, index, &markerRange));
    set(marker, markerRange);
    return CORVANE_OK;
}

corvane_status corvane_query_numbered_range(const corvane_annotation* annotation, const char* name,
                                            int64_t number, int64_t index, corvane_range* range) {
    if (!annotation || !name || !range) return CORVANE_ERROR_NULL;
    const Query::NumberedRangeQuery* const query = Query::numberedRangeQuery(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isIndex(*annotation, index)) return CORVANE_ERROR_RANGE;
    set(range, (*query)(annotation->string, number, index));
    return CORVANE_OK;
}

corvane_status corvane_query_range(const corvane_annotation* annotation, const char* name, int64_t location,
                                   int64_t length, corvane_range* range) {
    if (!annotation || !name || !range) return CORVANE_ERROR_NULL;
    const Query::RangeOfRangeQuery* const query = Query::rangeOfRangeQuery(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isWithin(location, length, annotation->string.length())) return CORVANE_ERROR_RANGE;
    set(range, (*query)(annotation->string, {location, length}));
    return CORVANE_OK;
}

corvane_status corvane_query_item_info(const corvane_annotation* annotation, const char* name, int64_t index,
                                       corvane_list_info* info, corvane_range* item, corvane_range* marker) {
    if (!annotation || !name || !info) return CORVANE_ERROR_NULL;
    const Query::ItemInfoQuery* const query = Query::itemInfoQuery(name);
    if (!query) return CORVANE_ERROR_NAME;
    if (!isIndex(*annotation, index)) return CORVANE_ERROR_RANGE;
    CVNRange itemRange;
    CVNRange markerRange;
    const CVNListInfo* const found = (*query)(annotation->string, index, &itemRange, &markerRange);
    *info = found ? toC(*found) : corvane_list_info{};
    set(item, itemRange);
    set(marker, markerRange);
    return CORVANE_OK;
}

corvane_status corvane_query_code(const corvane_annotation* annotation, int64_t index,
                                  corvane_string** code) {
    if (!annotation || !code) return CORVANE_ERROR_NULL;
    if (!isIndex(*annotation, index)) return CORVANE_ERROR_RANGE;
    std::optional<std::u16string> text = Query::codeStringAtIndex(annotation->string, index);
    if (text) return give(std::move(*text), code);
    *code = nullptr;
    return CORVANE_OK;
}

// Enumerations

namespace {

/// What an enumeration goes through, and whom it tells.
struct Enumeration {
    const CVNAttributedString& text;
    CVNRange range;
    CVNEnumerationOptions options;
    corvane_construct_callback callback;
    void* user;

    /// Sets `stop` when the callback has seen enough.
    void tell(const corvane_construct& construct, bool& stop) const {
        stop = callback(user, &construct) != 0;
    }
};

constexpr corvane_range notFound = toC(CVNRange::notFound());

corvane_construct constructOf(CVNRange range) {
    return {toC(range), notFound, notFound, notFound, notFound, notFound, nullptr};
}

/// What stands behind a closing fence belongs to the construct, but to none of its parts.
void enumerate(const Query::WrappedQuery& query, const Enumeration& to) {
    Query::forEachConstruct(to.text, Query::constructKeys(query.key, query.markerKey), to.range, to.options,
                            [&](CVNRange whole, const CVNValue&, bool& stop) {
                                const Query::Wrapping parts =
                                    Query::wrappingOf(to.text, query.markerKey, whole);
                                corvane_construct construct = constructOf(whole);
                                construct.text = toC(parts.text);
                                construct.opening = toC(parts.opening);
                                construct.closing = toC(parts.closing);
                                to.tell(construct, stop);
                            });
}

void enumerate(const Query::LinkQuery& query, const Enumeration& to) {
    query(to.text, to.range, to.options, [&to](const Query::LinkRanges& link, bool& stop) {
        to.tell({toC(link.link), toC(link.label), toC(link.opening), toC(link.closing), toC(link.url),
                 toC(link.title), nullptr},
                stop);
    });
}

void enumerate(const Query::RunQuery& query, const Enumeration& to) {
    query(to.text, to.range, to.options,
          [&to](CVNRange range, const CVNValue&, bool& stop) { to.tell(constructOf(range), stop); });
}

void enumerate(const Query::ListQuery& query, const Enumeration& to) {
    const auto tellList = [&to](CVNRange list, bool& stop) { to.tell(constructOf(list), stop); };
    const auto tellItem = [&to](CVNRange text, CVNRange marker, const CVNListInfo& info, bool& stop) {
        const corvane_list_info list = toC(info);
        corvane_construct construct = constructOf(text);
        construct.opening = toC(marker);
        construct.list = &list;
        to.tell(construct, stop);
    };
    query(to.text, to.range, to.options, tellList, tellItem);
}

/// False when no query has the name.
bool enumerateNamed(std::string_view name, const Enumeration& to) {
    if (const auto* wrapped = Query::wrappedQuery(name))
        enumerate(*wrapped, to);
    else if (const auto* link = Query::linkQuery(name))
        enumerate(*link, to);
    else if (const auto* run = Query::runQuery(name))
        enumerate(*run, to);
    else if (const auto* list = Query::listQuery(name))
        enumerate(*list, to);
    else
        return false;
    return true;
}

} // namespace

corvane_status corvane_query_enumerate(const corvane_annotation* annotation, const char* name,
                                       int64_t location, int64_t length, int32_t backward,
                                       corvane_construct_callback callback, void* user) {
    if (!annotation || !name || !callback) return CORVANE_ERROR_NULL;
    const bool isInText = isWithin(location, length, annotation->string.length());
    const CVNRange range = isInText ? CVNRange{location, length} : CVNRange{};
    const auto options = backward ? CVNEnumerationOptions::Reverse : CVNEnumerationOptions::None;
    // An empty range has nothing to tell, so that a wrong name is found out before a wrong range.
    if (!enumerateNamed(name, {annotation->string, range, options, callback, user}))
        return CORVANE_ERROR_NAME;
    return isInText ? CORVANE_OK : CORVANE_ERROR_RANGE;
}
