#include "exercises/Catalogue.h"

#include "automation/Integer.h"
#include "exercises/TextWalk.h"

namespace exercises {

namespace {

using automation::increase;

class Question0307 final : public Question {
public:
    explicit Question0307(const Environment& environment)
        : Question(u"Question0307", {{u"07305307.ppt", u"Méthodologie.ppt", false}}, environment) {}

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

} // namespace

QuestionPtr makeQuestion0307(const Environment& environment) {
    return std::make_shared<Question0307>(environment);
}

} // namespace exercises
