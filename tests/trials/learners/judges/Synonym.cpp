#include "tests/trials/learners/judges/Judges.h"
#include "tests/trials/learners/judges/Words.h"

namespace trials::learners::judges {

namespace {

using simulator::Shape;
using simulator::TextStory;

constexpr auto objectGone = static_cast<std::int32_t>(0x80048010);

class SynonymJudge {
public:
    explicit SynonymJudge(const Scene& scene) {
        const simulator::ShapePtr& body = scene.slide(5)->shapes().at(1);
        shape_ = body;
        for (const Word& word : wordsOf(body->text->text())) {
            if (word.trimmed() == u"parfaitement") {
                word_ = body->text->anchor({word.start, word.text.size()});
            }
        }
    }

    Verdict operator()(const Scene& scene) const {
        if (scene.slide(5) == nullptr) {
            return Verdict::refused();
        }
        const Work work(scene, 5);
        if (!isWhole(work)) {
            return Verdict::of(u"G");
        }
        const TextStory& story = *work.standing()[1].shape->text;
        const Word paragraph = paragraphsOf(story.text())[2];
        const auto holds = [&](std::u16string_view part) {
            return paragraph.text.find(part) != std::u16string_view::npos;
        };
        if (!holds(u"lisibles") || !holds(u"Police et Taille des caractères")) {
            return Verdict::of(u"E");
        }
        if (holds(u"parfaitement ")) {
            return Verdict::of(u"C");
        }
        const simulator::ShapePtr origin = shape_.lock();
        if (!origin) {
            return Verdict::raised(objectGone);
        }
        const std::vector<Word> words = wordsOf(paragraph.text);
        const auto coloured = std::count_if(words.begin(), words.end(), [&](const Word& word) {
            return rgbOf(scene, story.formatAt(paragraph.start + word.start)) == rgbOf(scene, formatOfWord(*origin));
        });
        const auto* const letter = coloured == 0 && words.size() == 6 ? u"D"
                                   : !holds(u"tout à fait")           ? u"F"
                                   : coloured < 3                     ? u"H"
                                                                      : u"";
        return Verdict::of(letter);
    }

private:
    /// The two shapes of the slide stand there in their order, with their paragraphs.
    static bool isWhole(const Work& work) {
        constexpr std::array<std::size_t, 2> paragraphs{1, 4};
        const std::vector<Found>& standing = work.standing();
        return standing.size() == paragraphs.size() &&
               std::all_of(standing.begin(), standing.end(), [&](const Found& found) {
                   return found.mark == mark(found.place) && found.shape->text &&
                          paragraphsOf(found.shape->text->text()).size() == paragraphs.at(found.place - 1);
               });
    }

    /// How the word looks, or looked last where nothing is left of it.
    [[nodiscard]] const simulator::CharacterFormat& formatOfWord(const Shape& origin) const {
        return word_->span.length == 0 ? word_->format : origin.text->formatAt(word_->span.start);
    }

    static std::int32_t rgbOf(const Scene& scene, const simulator::CharacterFormat& format) {
        return format.color.in(scene.active()->colors);
    }

    std::weak_ptr<Shape> shape_;
    std::shared_ptr<simulator::TextAnchor> word_;
};

} // namespace

Judge synonym(const Scene& prepared) {
    return SynonymJudge(prepared);
}

} // namespace trials::learners::judges
