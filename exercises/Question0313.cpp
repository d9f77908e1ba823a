#include "exercises/Make.h"

namespace exercises {

class Question0313 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override { prepareSlideWithShapes(1); }

    void check() override {
        cherche(1, u"ZOR3", true);
        if (api().FormeNonTrouvee == 0) {
            return cause(u"A");
        }
        cherche(1, u"ZOR1", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        cherche(1, u"ZOR2", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
    }
};

template QuestionPtr make<Question0313>(std::int32_t number, const Environment& environment);

} // namespace exercises
