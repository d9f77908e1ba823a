#include "exercises/Make.h"

#include "automation/Text.h"

namespace exercises {

class Question0305 final : public Question {
public:
    Question0305(std::int32_t number, const Environment& environment)
        : Question(number, environment, {{u"17305305.doc", u"Conseils.doc"}}) {}

private:
    void prepare() override { prepareSlides(); }

    void check() override {
        const std::int32_t slides = application().ActivePresentation().Slides().Count();
        if (slides != 5) {
            cause(u"A");
            return complement(u" " + automation::decimal(slides));
        }
        if (diapositive(5).Tags().Item(API::Identite).substr(0, API::Prefixe.size()) == API::Prefixe) {
            return cause(u"B");
        }
        if (diapositive(5).Shapes().Count() != 2) {
            return cause(u"C");
        }
        if (text(2).Paragraphs().Count() != 4) {
            return cause(u"C");
        }
        // The blank belongs to the title asked for. 173 is the length of the four lines with a mark between each two,
        // so that nothing else may stand there.
        const bool title = text(1).Text() == u"Conseils ";
        const bool first = contains(1, u"5 à 6 mots par ligne");
        const bool second = contains(2, u"5 à 6 lignes par diapositive");
        const bool third = contains(3, u"Police et Taille des caractères parfaitement lisibles");
        const bool fourth = contains(4, u"Fort contraste entre couleur d'arrière-plan et couleur des caractères");
        const bool length = text(2).Characters().Count() == 173;
        if (!(title && first && second && third && fourth && length)) {
            return cause(u"C");
        }
        // A passing attempt runs on into the error exit: it reaches the host as an error without a number.
        throw automation::Error(0, u"", u"");
    }

    [[nodiscard]] ppt::TextRange text(std::int32_t shape) const { return forme(5, shape).TextFrame().TextRange(); }

    [[nodiscard]] bool contains(std::int32_t paragraph, std::u16string_view line) const {
        return text(2).Paragraphs(paragraph).Text().find(line) != std::u16string::npos;
    }
};

template QuestionPtr make<Question0305>(std::int32_t number, const Environment& environment);

} // namespace exercises
