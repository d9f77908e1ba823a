#include "exercises/Make.h"

namespace exercises {

class Question0319 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        const std::int32_t placed = cherche(1, u"ZOR4", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        const std::int32_t fixed = cherche(1, u"ZOR2", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        const float top = forme(1, fixed).Top();
        const float left = forme(1, fixed).Left();
        const float height = forme(1, fixed).Height();
        const float width = forme(1, fixed).Width();
        if (top != 368.375F || left != 481.625F || height != 125.125F || width != 194.75F) {
            return cause(u"C");
        }
        const float placedWidth = forme(1, placed).Width();
        const float placedHeight = forme(1, placed).Height();
        if (placedWidth != 56.625F || placedHeight != 56.625F) {
            return cause(u"D");
        }
        if (forme(1, placed).Top() != 311.625F) {
            return cause(u"F");
        }
        if (forme(1, placed).Left() != 311.625F) {
            return cause(u"E");
        }
    }
};

template QuestionPtr make<Question0319>(std::int32_t number, const Environment& environment);

} // namespace exercises
