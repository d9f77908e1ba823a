#include "exercises/Make.h"

namespace exercises {

class Question0315 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        const std::int32_t third = cherche(1, u"ZOR3", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        const std::int32_t second = cherche(1, u"ZOR2", false);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        // Cannot be: a search that stays out of groups finds at level 0.
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        if (place(1, third) != Place{110.5F, 139.625F, 504.625F, 79.375F}) {
            return cause(u"C");
        }
        const float left = forme(1, second).Left();
        const float top = forme(1, second).Top();
        if (left != 138.875F || top != 156.625F) {
            return cause(u"D");
        }
        // From back to front; the two are never equal, since each carries a mark of its own.
        if (second < third) {
            return cause(u"E");
        }
    }
};

template QuestionPtr make<Question0315>(std::int32_t number, const Environment& environment);

} // namespace exercises
