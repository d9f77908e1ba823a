#include "exercises/Make.h"

#include "automation/Integer.h"

namespace exercises {

namespace {

/// The basic shapes of the catalogue of AutoShapes; block arrows come next.
constexpr std::int32_t firstBasicShape = 1;
constexpr std::int32_t lastBasicShape = 32;

} // namespace

class Question0314 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        std::int32_t drawn = 0;
        bool basicShape = false;
        const std::int32_t count = diapositive(1).Shapes().Count();
        for (std::int32_t k = 1; k <= count; ++k) {
            if (!identite(1, k).empty()) {
                continue;
            }
            automation::increase(drawn);
            if (forme(1, k).Type() == ppt::msoGroup) {
                return cause(u"Z");
            }
            if (forme(1, k).Type() == ppt::msoAutoShape) {
                // Each bound is held against a reading of its own.
                const std::int32_t first = forme(1, k).AutoShapeType();
                const std::int32_t second = forme(1, k).AutoShapeType();
                if (first >= firstBasicShape && second <= lastBasicShape) {
                    basicShape = true;
                }
            }
        }
        cherche(1, u"ZOR2", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        cherche(1, u"ZOR1", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        if (!basicShape) {
            return cause(u"A");
        }
        if (drawn > 1) {
            return cause(u"C");
        }
    }
};

template QuestionPtr make<Question0314>(std::int32_t number, const Environment& environment);

} // namespace exercises
