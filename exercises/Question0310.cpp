#include "exercises/Make.h"

namespace exercises {

class Question0310 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override {
        prepareSlideWithShapes(1);
        application().ActiveWindow().Panes().Item(2).Activate();
    }

    void check() override {
        cherche(1, u"ZOR2", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        if (api().NiveauForme > 0) {
            return cause(u"Z");
        }
        if (application().ActiveWindow().Selection().Type() != ppt::ppSelectionShapes) {
            application().ActiveWindow().Selection().Unselect();
            return cause(u"B");
        }
        if (application().ActiveWindow().Selection().ShapeRange().Count() >= 2) {
            return cause(u"C");
        }
        if (application().ActiveWindow().Selection().ShapeRange().Item(1).Tags().Item(API::Identite) != u"ZOR2") {
            return cause(u"B");
        }
    }
};

template QuestionPtr make<Question0310>(std::int32_t number, const Environment& environment);

} // namespace exercises
