#include "tests/trials/learners/judges/Judges.h"

#include <stdexcept>

namespace trials::learners {

JudgePtr makeJudge(std::int32_t question) {
    switch (question) {
    case 301:
    case 302:
    case 303: return makeContentJudge();
    case 304: return makeFileJudge();
    case 305: return makeAdviceJudge();
    case 306: return makeReplacementJudge();
    case 307: return makeSpellingJudge();
    case 308: return makeSynonymJudge();
    case 312: return makeCurveJudge();
    default: break;
    }
    for (const auto books :
         {judges::placing::books(), judges::drawing::books(), judges::looks::books(), judges::handling::books()}) {
        for (const RuleBook& book : books) {
            if (book.question == question) {
                return std::make_unique<RuleJudge>(book);
            }
        }
    }
    throw std::out_of_range("no judge of question " + std::to_string(question));
}

} // namespace trials::learners
