#include "corvane/client/CVNASTOperationResult.h"

#include "corvane/client/ValueText.h"

using CVN::ValueText::rangeString;

std::u16string CVNASTOperationResult::description() const {
    return u"CVNASTOperationResult rep " + rangeString(replacementRange) + u" with " + replacementString +
           u" select " + rangeString(proposedSelection);
}
