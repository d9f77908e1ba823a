#include "exercises/Catalogue.h"

namespace exercises {

namespace {

class Question0313 final : public Question {
public:
    explicit Question0313(const Environment& environment)
        : Question(u"Question0313", {{u"07305313.ppt", u"Méthodologie.ppt", false}}, environment) {}

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

} // namespace

QuestionPtr makeQuestion0313(const Environment& environment) {
    return std::make_shared<Question0313>(environment);
}

} // namespace exercises
