#include "corvane/analysis/CVNTextStatistics.h"

#include "corvane/analysis/TextStatistics.h"

CVNTextStatistics::CVNTextStatistics(std::u16string_view string) {
    const CVN::TextStatistics statistics(string);
    wordsCount = statistics.wordsCount;
    paragraphCount = statistics.paragraphCount;
    readTime = statistics.readTime;
}
