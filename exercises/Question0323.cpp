#include "exercises/Make.h"

namespace exercises {

class Question0323 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(5); }

    void check() override {
        const std::int32_t count = diapositive(5).Shapes().Count();
        if (count == 0) {
            return cause(u"C");
        }
        bool hasZOR1 = false;
        bool hasZOR2 = false;
        for (std::int32_t k = 1; k <= count; ++k) {
            const std::u16string identity = identite(5, k);
            hasZOR1 = hasZOR1 || identity == u"ZOR1";
            hasZOR2 = hasZOR2 || identity == u"ZOR2";
        }
        if (hasZOR1) {
            return cause(u"B");
        }
        if (!hasZOR2) {
            return cause(u"C");
        }
        if (diapositive(5).Shapes().Count() == 1) {
            return cause(u"D");
        }
        const std::int32_t shapes = diapositive(5).Shapes().Count();
        if (shapes > 2) {
            return checkThreeShapes(shapes);
        }
        for (std::int32_t k = 1; k <= shapes; ++k) {
            const bool isWordArt = forme(5, k).Type() == ppt::msoTextEffect;
            const bool isNew = identite(5, k).empty();
            if (!isWordArt && isNew) {
                return cause(u"E");
            }
        }
    }

    /// One shape too many: a title placeholder put back has a letter of its own.
    void checkThreeShapes(std::int32_t shapes) {
        if (shapes != 3) {
            return cause(u"F");
        }
        for (std::int32_t k = 1; k <= shapes; ++k) {
            if (forme(5, k).Type() == ppt::msoPlaceholder &&
                forme(5, k).PlaceholderFormat().Type() == ppt::ppPlaceholderTitle) {
                return cause(u"B");
            }
        }
        cause(u"F");
    }
};

template QuestionPtr make<Question0323>(std::int32_t number, const Environment& environment);

} // namespace exercises
