#include "exercises/Make.h"

namespace exercises {

class Question0318 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override {
        prepareSlideWithShapes(1);
        const automation::Value answer(
            platform::queryLocale(services().locale, 0, platform::Locale::measurementSystem));
        api().SystemeMesure = answer.to<std::int32_t>();
    }

    void check() override {
        const std::int32_t shape = cherche(1, u"ZOR4", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme >= 1) {
            return cause(u"Z");
        }
        // Each bound is held against a reading of its own.
        const float firstWidth = forme(1, shape).Width();
        const float secondWidth = forme(1, shape).Width();
        if (!(firstWidth >= 56.5F && secondWidth <= 56.75F)) {
            return cause(u"B");
        }
        const float firstHeight = forme(1, shape).Height();
        const float secondHeight = forme(1, shape).Height();
        if (!(firstHeight >= 56.5F && secondHeight <= 56.75F)) {
            return cause(u"C");
        }
    }
};

template QuestionPtr make<Question0318>(std::int32_t number, const Environment& environment);

} // namespace exercises
