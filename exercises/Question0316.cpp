#include "exercises/Make.h"

namespace exercises {

namespace {

constexpr std::int32_t midGrey = 0x808080;

} // namespace

class Question0316 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        const std::int32_t shape = cherche(1, u"ZOR1", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        if (forme(1, shape).Fill().Transparency() > 0.0F) {
            return cause(u"B");
        }
        if (forme(1, shape).Fill().Type() != ppt::msoFillSolid) {
            return cause(u"G");
        }
        const std::int32_t visible = forme(1, shape).Fill().Visible();
        const std::int32_t fore = forme(1, shape).Fill().ForeColor().RGB();
        const std::int32_t back = forme(1, shape).Fill().BackColor().RGB();
        if (fore == back || visible == ppt::msoFalse) {
            return cause(u"C");
        }
        if (fore == midGrey) {
            return cause(u"D");
        }
    }
};

template QuestionPtr make<Question0316>(std::int32_t number, const Environment& environment);

} // namespace exercises
