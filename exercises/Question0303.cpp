#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0303 final : public Question {
public:
    explicit Question0303(const Environment& environment)
        : Question(u"Question0303", {{u"07305303.ppt", u"Méthodologie.ppt", false}}, environment) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {}
};

} // namespace

QuestionPtr makeQuestion0303(const Environment& environment) {
    return std::make_shared<Question0303>(environment);
}

} // namespace exercises
