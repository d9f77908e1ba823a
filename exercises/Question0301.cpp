#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0301 final : public Question {
public:
    explicit Question0301(const Environment& environment)
        : Question(u"Question0301", {{u"07305301.ppt", u"Méthodologie.ppt", false}}, environment) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {}
};

} // namespace

QuestionPtr makeQuestion0301(const Environment& environment) {
    return std::make_shared<Question0301>(environment);
}

} // namespace exercises
