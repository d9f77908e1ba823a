#include "automation/Text.h"
#include "tests/trials/learners/judges/Judges.h"
#include "tests/trials/learners/judges/Words.h"

#include <array>

namespace trials::learners::judges {

namespace {

constexpr std::array<std::u16string_view, 4> lines{
    u"5 à 6 mots par ligne",
    u"5 à 6 lignes par diapositive",
    u"Police et Taille des caractères parfaitement lisibles",
    u"Fort contraste entre couleur d'arrière-plan et couleur des caractères",
};
constexpr std::size_t characters = 173;

} // namespace

Verdict advice(const Scene& scene) {
    const auto& slides = scene.active()->slides();
    if (slides.size() != 5) {
        return {u"A", false, {u" " + automation::fromUtf8(std::to_string(slides.size()))}, {}};
    }
    const simulator::Slide& last = *slides.back();
    if (markOf(last).starts_with(u"ZOR")) {
        return Verdict::of(u"B");
    }
    if (last.shapes().size() != 2) {
        return Verdict::of(u"C");
    }
    const auto& title = last.shapes().front()->text;
    const auto& body = last.shapes().back()->text;
    if (!body) {
        return Verdict::refused(); // what holds no text has no text frame to read
    }
    const std::vector<Word> paragraphs = paragraphsOf(body->text());
    if (paragraphs.size() != lines.size()) {
        return Verdict::of(u"C");
    }
    if (!title) {
        return Verdict::refused();
    }
    const auto isIn = [](const Word& paragraph, std::u16string_view line) {
        return paragraph.text.find(line) != std::u16string_view::npos;
    };
    const bool isRight = title->text() == u"Conseils " && body->text().size() == characters &&
                         std::equal(paragraphs.begin(), paragraphs.end(), lines.begin(), isIn);
    return isRight ? Verdict::raised(0) : Verdict::of(u"C"); // a right answer ends as an error without a number
}

} // namespace trials::learners::judges
