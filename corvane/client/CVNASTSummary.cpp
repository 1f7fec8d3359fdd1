#include "corvane/client/CVNASTSummary.h"

#include "corvane/analysis/TreeSummary.h"
#include "corvane/client/CVNAST.h"

CVNTextSummary CVNASTSummary::textSummary() const {
    return CVNTextSummary(CVN::TreeSummary(*static_cast<const CVNAST*>(this)->ast));
}
