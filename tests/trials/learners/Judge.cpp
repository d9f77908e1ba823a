#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners {

JudgePtr makeJudge(std::int32_t question) {
    switch (question) {
    case 304: return makeFileJudge();
    case 305: return makeAdviceJudge();
    case 306: return makeReplacementJudge();
    case 307: return makeSpellingJudge();
    case 308: return makeSynonymJudge();
    case 312: return makeCurveJudge();
    default: break;
    }
    for (const auto books :
         {judging::placing::books(), judging::drawing::books(), judging::looks::books(), judging::handling::books()}) {
        for (const RuleBook& book : books) {
            if (book.question == question) {
                return std::make_unique<RuleJudge>(book);
            }
        }
    }
    return makeContentJudge();
}

} // namespace trials::learners
