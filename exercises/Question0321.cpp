#include "exercises/Make.h"

namespace exercises {

class Question0321 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        const std::int32_t shape = cherche(1, u"ZOR4", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        if (forme(1, shape).Shadow().Visible() != ppt::msoFalse) {
            return cause(u"B");
        }
        if (forme(1, shape).ThreeD().Visible() != ppt::msoTrue) {
            return cause(u"D");
        }
        if (forme(1, shape).ThreeD().PresetThreeDFormat() == ppt::msoPresetThreeDFormatMixed) {
            return cause(u"E");
        }
        if (forme(1, shape).ThreeD().PresetThreeDFormat() != ppt::msoThreeD1) {
            return cause(u"C");
        }
    }
};

template QuestionPtr make<Question0321>(std::int32_t number, const Environment& environment);

} // namespace exercises
