#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0310 final : public Question {
public:
    explicit Question0310(const Environment& environment)
        : Question(u"Question0310", {{u"07305310.ppt", u"Méthodologie.ppt", false}}, environment) {}

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

} // namespace

QuestionPtr makeQuestion0310(const Environment& environment) {
    return std::make_shared<Question0310>(environment);
}

} // namespace exercises
