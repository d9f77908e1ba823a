#include "exercises/Make.h"

#include "automation/Integer.h"

namespace exercises {

class Question0312 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        std::int32_t drawn = 0;
        std::int32_t first = 0;
        const std::int32_t count = diapositive(1).Shapes().Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            if (!identite(1, i).empty()) {
                continue;
            }
            if (forme(1, i).Type() == ppt::msoGroup) {
                return cause(u"Z");
            }
            if (forme(1, i).Type() == ppt::msoFreeform) {
                automation::increase(drawn);
                if (drawn == 1) {
                    first = i;
                }
            }
        }
        if (first == 0) {
            return cause(u"A");
        }
        if (drawn >= 2) {
            return cause(u"B");
        }
        forme(1, first).Select(ppt::msoTrue);
        const std::int32_t state = application().CommandBars().Item(u"Curve").Controls().Item(7).accState();
        if ((state & ppt::stateSystemUnavailable) != ppt::stateSystemUnavailable) {
            return cause(u"C");
        }
    }
};

template QuestionPtr make<Question0312>(std::int32_t number, const Environment& environment);

} // namespace exercises
