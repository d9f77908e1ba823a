#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0311 final : public Question {
public:
    explicit Question0311(const Environment& environment)
        : Question(u"Question0311", {{u"07305311.ppt", u"Méthodologie.ppt", false}}, environment) {}

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
        if (forme(1, moving).Width() != 444.5F || forme(1, moving).Height() != 40.875F) {
            return cause(u"D");
        }
        if (forme(1, moving).Top() == 35.0F && forme(1, moving).Left() == 57.875F) {
            return cause(u"E");
        }
        if (forme(1, moving).Top() < 128.0F || forme(1, moving).Top() > 260.0F || forme(1, moving).Left() < 105.0F ||
            forme(1, moving).Left() > 195.0F) {
            return cause(u"F");
        }
    }
};

} // namespace

QuestionPtr makeQuestion0311(const Environment& environment) {
    return std::make_shared<Question0311>(environment);
}

} // namespace exercises
