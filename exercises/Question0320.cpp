#include "exercises/Make.h"

namespace exercises {

class Question0320 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override {
        prepareSlideWithShapes(1);
        application().ActivePresentation().SnapToGrid(ppt::msoTrue);
    }

    void check() override {
        if (application().ActivePresentation().SnapToGrid() != ppt::msoFalse) {
            return cause(u"A");
        }
    }
};

template QuestionPtr make<Question0320>(std::int32_t number, const Environment& environment);

} // namespace exercises
