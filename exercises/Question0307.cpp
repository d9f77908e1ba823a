#include "exercises/Make.h"

#include "automation/Integer.h"
#include "exercises/TextWalk.h"

namespace exercises {

namespace {

using automation::increase;

} // namespace

class Question0307 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlides(); }

    void check() override {
        std::int32_t misspelt = 0;
        std::int32_t corrected = 0;
        walkTexts(application(), [&](const ppt::TextRange& text) {
            increase<std::int32_t>(misspelt, API::CompteMot(text, u"Régles"));
            increase<std::int32_t>(corrected, API::CompteMot(text, u"Règles"));
        });
        if (misspelt >= 1) {
            return cause(u"A");
        }
        if (corrected != 0) {
            cause(u"C");
            return bravo();
        }
        cause(u"B");
    }
};

template QuestionPtr make<Question0307>(std::int32_t number, const Environment& environment);

} // namespace exercises
