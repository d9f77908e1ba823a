#include "exercises/Make.h"

namespace exercises {

class Question0311 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override {
        prepareSlideWithShapes(1);
        forme(1, 2).Select(ppt::msoTrue);
    }

    void check() override {
        const std::int16_t moving = cherche(1, u"ZOR2", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme >= 1) {
            return cause(u"Z");
        }
        const std::int16_t fixed = cherche(1, u"ZOR1", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        if (api().NiveauForme >= 1) {
            return cause(u"Z");
        }
        if (place(1, fixed) != Place{481.625F, 368.375F, 194.75F, 125.125F}) {
            return cause(u"C");
        }
        const float width = forme(1, moving).Width();
        const float height = forme(1, moving).Height();
        if (width != 444.5F || height != 40.875F) {
            return cause(u"D");
        }
        const float top = forme(1, moving).Top();
        const float left = forme(1, moving).Left();
        if (top == 35.0F && left == 57.875F) {
            return cause(u"E");
        }
        // Each bound is held against a reading of its own.
        const float firstTop = forme(1, moving).Top();
        const float secondTop = forme(1, moving).Top();
        const float firstLeft = forme(1, moving).Left();
        const float secondLeft = forme(1, moving).Left();
        if (firstTop < 128.0F || secondTop > 260.0F || firstLeft < 105.0F || secondLeft > 195.0F) {
            return cause(u"F");
        }
    }
};

template QuestionPtr make<Question0311>(std::int32_t number, const Environment& environment);

} // namespace exercises
