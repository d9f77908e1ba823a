#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0320 final : public Question {
public:
    explicit Question0320(const Environment& environment)
        : Question(u"Question0320", {{u"07305320.ppt", u"Méthodologie.ppt", false}}, environment) {}

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

} // namespace

QuestionPtr makeQuestion0320(const Environment& environment) {
    return std::make_shared<Question0320>(environment);
}

} // namespace exercises
