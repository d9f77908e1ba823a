#include "exercises/Make.h"

namespace exercises {

class Question0309 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override {
        prepareSlides();
        api().MarqueFormes(1, false, application());
        application().CommandBars().Item(u"Standard").Visible(true);
    }

    void check() override {
        const std::int32_t count = diapositive(1).Shapes().Count();
        if (count == 1 && identite(1, 1) == u"ZOR1") {
            return cause(u"A");
        }
        if (count >= 3) {
            return cause(u"C");
        }
        // Index and flag in one: 0 where no such shape was met, the last one where there are two.
        std::int32_t textBox = 0;
        std::int32_t fixed = 0;
        for (std::int32_t i = 1; i <= count; ++i) {
            if (forme(1, i).Type() == ppt::msoTextBox) {
                textBox = i;
            }
            if (identite(1, i) == u"ZOR1") {
                fixed = i;
            }
            if (forme(1, i).Type() == ppt::msoGroup) {
                return cause(u"Z");
            }
        }
        if (fixed == 0) {
            return cause(u"D");
        }
        if (textBox == 0) {
            return cause(u"B");
        }
        if (forme(1, textBox).TextFrame().TextRange().Text().find_first_not_of(u' ') == std::u16string::npos) {
            return cause(u"G");
        }
        if (place(1, fixed) != Place{481.625F, 368.375F, 194.75F, 125.125F}) {
            return cause(u"E");
        }
        const float top = forme(1, textBox).Top();
        const float left = forme(1, textBox).Left();
        if (top >= 150.0F || left >= 150.0F) {
            return cause(u"F");
        }
    }
};

template QuestionPtr make<Question0309>(std::int32_t number, const Environment& environment);

} // namespace exercises
