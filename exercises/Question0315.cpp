#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0315 final : public Question {
public:
    explicit Question0315(const Environment& environment)
        : Question(u"Question0315", {{u"07305315.ppt", u"Méthodologie.ppt", false}}, environment) {}

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        const std::int32_t behind = cherche(1, u"ZOR3", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        const std::int32_t inFront = cherche(1, u"ZOR2", false);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        if (place(1, behind) != Place{110.5F, 139.625F, 504.625F, 79.375F}) {
            return cause(u"C");
        }
        if (forme(1, inFront).Left() != 138.875F || forme(1, inFront).Top() != 156.625F) {
            return cause(u"D");
        }
        if (inFront < behind) {
            return cause(u"E");
        }
    }
};

} // namespace

QuestionPtr makeQuestion0315(const Environment& environment) {
    return std::make_shared<Question0315>(environment);
}

} // namespace exercises
