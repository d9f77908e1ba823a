#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0302 final : public Question {
public:
    explicit Question0302(const Environment& environment)
        : Question(u"Question0302", {{u"07305302.ppt", u"Méthodologie.ppt", false}}, environment) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {}
};

} // namespace

QuestionPtr makeQuestion0302(const Environment& environment) {
    return std::make_shared<Question0302>(environment);
}

} // namespace exercises
