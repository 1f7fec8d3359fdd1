#include "corvane/client/CVNASTAnnotation.h"

#include <algorithm>

#include "corvane/client/Annotator.h"
#include "corvane/client/CVNAST.h"

CVNAttributedString CVNASTAnnotation::annotatedStringForRange(CVNRange range) const {
    const auto& note = static_cast<const CVNAST&>(*this);
    const std::int64_t length = note.markdownLength();
    CORVANE_ASSERT(range.location >= 0 && range.length >= 0, "CVNAST");
    if (range.location > length)
        static_cast<void>(note.markdown().substr(static_cast<std::size_t>(range.location)));
    const CVNRange inText{range.location, std::min(range.length, length - range.location)};
    return Annotator(*note.ast, inText, note.parseInlinesOnly).run();
}

CVNAttributedString CVNASTAnnotation::annotatedString() const {
    return annotatedStringForRange({0, static_cast<const CVNAST&>(*this).markdownLength()});
}

CVNAttributedString CVNASTAnnotation::annotatedStringForStringRange(CVNRange range) const {
    CVNAST::logRange(u"Corvane annotate", range);
    return annotatedStringForRange(range);
}
