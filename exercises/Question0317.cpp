#include "exercises/Catalogue.h"

namespace exercises {

namespace {

/// The flowchart shapes that a learner picks by mistake for a rectangle.
bool looksLikeRectangle(std::int32_t autoShapeType) {
    return autoShapeType == ppt::msoShapeFlowchartProcess || autoShapeType == ppt::msoShapeFlowchartAlternateProcess ||
           autoShapeType == ppt::msoShapeFlowchartPredefinedProcess ||
           autoShapeType == ppt::msoShapeFlowchartInternalStorage;
}

class Question0317 final : public Question {
public:
    explicit Question0317(const Environment& environment)
        : Question(u"Question0317", {{u"07305317.ppt", u"Méthodologie.ppt", false}}, environment) {}

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

} // namespace

QuestionPtr makeQuestion0317(const Environment& environment) {
    return std::make_shared<Question0317>(environment);
}

} // namespace exercises
