#include "exercises/Make.h"

#include "automation/Integer.h"
#include "automation/Text.h"
#include "exercises/TextWalk.h"

namespace exercises {

namespace {

using automation::increase;

} // namespace

class Question0306 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlides(); }

    void check() override {
        std::int32_t total = 0; // of both words: the second count begins where the first has found none
        walkTexts(application(),
                  [&](const ppt::TextRange& text) { increase<std::int32_t>(total, API::CompteMot(text, u"faire")); });
        if (total > 0) {
            return cause(u"A");
        }
        walkTexts(application(),
                  [&](const ppt::TextRange& text) { increase<std::int32_t>(total, API::CompteMot(text, u"créer")); });
        if (total == 0) {
            return cause(u"B");
        }
        if (total != 4) {
            cause(u"C");
            return complement(u" " + automation::decimal(total));
        }
        cause(u"F");
        bravo();
    }
};

template QuestionPtr make<Question0306>(std::int32_t number, const Environment& environment);

} // namespace exercises
