#include "exercises/Make.h"

namespace exercises {

namespace {

/// The flowchart shapes that a learner picks by mistake for a rectangle.
bool looksLikeRectangle(std::int32_t autoShapeType) {
    return autoShapeType == ppt::msoShapeFlowchartProcess || autoShapeType == ppt::msoShapeFlowchartAlternateProcess ||
           autoShapeType == ppt::msoShapeFlowchartPredefinedProcess ||
           autoShapeType == ppt::msoShapeFlowchartInternalStorage;
}

} // namespace

class Question0317 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        std::int32_t drawn = 0;
        bool grouped = false;
        bool rounded = false;
        bool flowchart = false;
        std::int32_t lastType = 0;
        const std::int32_t count = diapositive(1).Shapes().Count();
        for (std::int32_t k = 1; k <= count; ++k) {
            if (!identite(1, k).empty()) {
                continue;
            }
            if (forme(1, k).Type() == ppt::msoGroup) {
                grouped = true;
                continue;
            }
            if (drawn == 1) {
                return cause(u"A");
            }
            drawn = 1;
            if (forme(1, k).Type() == ppt::msoAutoShape) {
                lastType = forme(1, k).AutoShapeType();
                rounded = rounded || lastType == ppt::msoShapeRoundedRectangle;
                flowchart = flowchart || looksLikeRectangle(lastType);
            }
        }
        if (grouped) {
            return cause(u"E");
        }
        if (drawn == 0) {
            return cause(u"B");
        }
        if (rounded) {
            return cause(u"C");
        }
        if (flowchart) {
            return cause(u"F");
        }
        if (lastType != ppt::msoShapeRectangle) {
            return cause(u"D");
        }
    }
};

template QuestionPtr make<Question0317>(std::int32_t number, const Environment& environment);

} // namespace exercises
