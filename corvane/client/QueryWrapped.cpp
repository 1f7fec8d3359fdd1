#include "corvane/client/QueryWrapped.h"

namespace CVN::Query {

Wrapping wrappingOf(const CVNAttributedString& text, CVNAttributeName markerKey, CVNRange construct) {
    CVNRange opening = firstRunIn(text, markerKey, construct);
    CVNRange closing = lastRunIn(text, markerKey, construct);
    if (opening == closing) {
        const bool closes = opening.isFound() && opening.end() == construct.end() && !(opening == construct);
        (closes ? opening : closing) = CVNRange::notFound();
    }
    const std::int64_t before = opening.isFound() ? opening.location : construct.location;
    const std::int64_t behind = closing.isFound() ? closing.location - before : construct.length;
    return {{construct.location + opening.length, behind - opening.length}, opening, closing};
}

} // namespace CVN::Query
