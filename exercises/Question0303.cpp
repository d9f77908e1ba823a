#include "exercises/Make.h"

namespace exercises {

class Question0303 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlides(); }

    void check() override {}
};

template QuestionPtr make<Question0303>(std::int32_t number, const Environment& environment);

} // namespace exercises
