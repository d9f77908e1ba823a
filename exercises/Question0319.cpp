#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0319 final : public Question {
public:
    explicit Question0319(const Environment& environment)
        : Question(u"Question0319", {{u"07305319.ppt", u"Méthodologie.ppt", false}}, environment) {}

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
        if (forme(1, placed).Width() != 56.625F || forme(1, placed).Height() != 56.625F) {
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

} // namespace

QuestionPtr makeQuestion0319(const Environment& environment) {
    return std::make_shared<Question0319>(environment);
}

} // namespace exercises
