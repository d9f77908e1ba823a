#include "exercises/Catalogue.h"

#include "automation/Integer.h"
#include "automation/Text.h"
#include "exercises/TextWalk.h"

namespace exercises {

namespace {

using automation::increase;

class Question0306 final : public Question {
public:
    explicit Question0306(const Environment& environment)
        : Question(u"Question0306", {{u"07305306.ppt", u"Méthodologie.ppt", false}}, environment) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {
        std::int32_t total = 0;
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

} // namespace

QuestionPtr makeQuestion0306(const Environment& environment) {
    return std::make_shared<Question0306>(environment);
}

} // namespace exercises
