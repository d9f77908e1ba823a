#include "automation/Text.h"
#include "tests/trials/learners/judges/Judges.h"
#include "tests/trials/learners/judges/Words.h"

#include <array>

namespace trials::learners {

namespace {

constexpr std::array<std::u16string_view, 4> advice{
    u"5 à 6 mots par ligne",
    u"5 à 6 lignes par diapositive",
    u"Police et Taille des caractères parfaitement lisibles",
    u"Fort contraste entre couleur d'arrière-plan et couleur des caractères",
};
constexpr std::size_t characters = 173;

bool isAdvice(const std::u16string& text, const std::vector<Word>& paragraphs) {
    for (std::size_t i = 0; i < advice.size(); ++i) {
        if (paragraphs[i].text.find(advice.at(i)) == std::u16string_view::npos) {
            return false;
        }
    }
    return text.size() == characters;
}

class AdviceJudge final : public Judge {
public:
    Verdict verdict(const Scene& scene) const override {
        const std::size_t slides = scene.active()->slides().size();
        if (slides != 5) {
            return {u"A", false, {u" " + automation::fromUtf8(std::to_string(slides))}, {}};
        }
        const simulator::Slide& last = *scene.slide(5);
        if (markOf(last).starts_with(u"ZOR")) {
            return Verdict::of(u"B");
        }
        return ofSlide(last);
    }

private:
    static Verdict ofSlide(const simulator::Slide& slide) {
        Verdict wrong = Verdict::of(u"C");
        if (slide.shapes().size() != 2) {
            return wrong;
        }
        const auto& title = slide.shapes().front()->text;
        const auto& body = slide.shapes().back()->text;
        if (!body) {
            return Verdict::refused(); // what holds no text has no text frame to read
        }
        const std::vector<Word> paragraphs = paragraphsOf(body->text());
        if (paragraphs.size() != advice.size()) {
            return wrong;
        }
        if (!title) {
            return Verdict::refused();
        }
        const bool isRight = title->text() == u"Conseils " && isAdvice(body->text(), paragraphs);
        return isRight ? Verdict::raised(0) : wrong; // a right answer ends as an error without a number
    }
};

} // namespace

JudgePtr makeAdviceJudge() {
    return std::make_unique<AdviceJudge>();
}

} // namespace trials::learners
