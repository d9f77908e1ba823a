#include "exercises/Make.h"

namespace exercises {

class Question0322 final : public Question {
public:
    using Question::Question;

private:
    // The usual preparation of a slide, but for the view, which stays where it opens.
    void prepare() override {
        api().MarqueDiapositives(application());
        application().ActiveWindow().ViewType(ppt::ppViewNormal);
        api().MarqueFormes(1, true, application());
    }

    void check() override {
        cherche(1, u"ZOR4", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"A");
        }
        cherche(1, u"ZOR2", true);
        if (api().FormeNonTrouvee != 0) {
            return cause(u"B");
        }
        const std::int32_t count = diapositive(1).Shapes().Count();
        const std::int32_t group = nextNewGroup(1, count);
        if (group > count) {
            return cause(u"E");
        }
        if (nextNewGroup(group + 1, count) <= count) {
            return cause(u"F");
        }
        bool holdsZOR4 = false;
        bool holdsZOR2 = false;
        const std::int32_t members = forme(1, group).GroupItems().Count();
        for (std::int32_t m = 1; m <= members; ++m) {
            const std::u16string identity = forme(1, group).GroupItems().Item(m).Tags().Item(API::Identite);
            holdsZOR4 = holdsZOR4 || identity == u"ZOR4";
            holdsZOR2 = holdsZOR2 || identity == u"ZOR2";
        }
        if (!holdsZOR4) {
            return cause(u"C");
        }
        if (!holdsZOR2) {
            return cause(u"D");
        }
        if (members > 2) {
            return cause(u"H");
        }
    }

    /// Index of the first group made by the learner from `first` on; past `count` where there is none.
    [[nodiscard]] std::int32_t nextNewGroup(std::int32_t first, std::int32_t count) const {
        for (std::int32_t k = first; k <= count; ++k) {
            const bool isGroup = forme(1, k).Type() == ppt::msoGroup;
            const bool isNew = identite(1, k).empty();
            if (isGroup && isNew) {
                return k;
            }
        }
        return count + 1;
    }
};

template QuestionPtr make<Question0322>(std::int32_t number, const Environment& environment);

} // namespace exercises
