#include "corvane/client/CVNQuery.h"

namespace CVN::Query {

const WrappedQuery* wrappedQuery(std::string_view name) {
    return queryNamed(name, wrappedQueries);
}

const LinkQuery* linkQuery(std::string_view name) {
    return queryNamed(name, linkQueries);
}

const RunQuery* runQuery(std::string_view name) {
    return queryNamed(name, runQueries);
}

const ListQuery* listQuery(std::string_view name) {
    return queryNamed(name, listQueries);
}

const RangeTest* rangeTest(std::string_view name) {
    return queryNamed(name, insideQueries, valueTests);
}

const IndexTest* indexTest(std::string_view name) {
    return queryNamed(name, hasQueries, codeTests, blockquoteTests);
}

const NumberAtIndexQuery* numberAtIndexQuery(std::string_view name) {
    return queryNamed(name, numberQueries, blockquoteNumberQueries);
}

const RangeAtIndexQuery* rangeAtIndexQuery(std::string_view name) {
    return queryNamed(name, rangeAtIndexQueries, listRangeQueries, blockquoteRangeQueries);
}

const NumberedRangeQuery* numberedRangeQuery(std::string_view name) {
    return queryNamed(name, numberedListRangeQueries, numberedBlockquoteRangeQueries);
}

const RangeOfRangeQuery* rangeOfRangeQuery(std::string_view name) {
    return queryNamed(name, listRangeOfRangeQueries, blockquoteRangeOfRangeQueries);
}

const ItemInfoQuery* itemInfoQuery(std::string_view name) {
    return queryNamed(name, itemInfoQueries);
}

} // namespace CVN::Query
