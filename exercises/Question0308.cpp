#include "exercises/Make.h"

#include "automation/Integer.h"

#include <algorithm>
#include <array>

namespace exercises {

namespace {

using automation::increase;
using automation::narrow;

std::u16string_view trim(std::u16string_view text) {
    const std::u16string_view kept = text.substr(0, text.find_last_not_of(u' ') + 1);
    return kept.substr(std::min(kept.find_first_not_of(u' '), kept.size()));
}

} // namespace

class Question0308 final : public Question {
public:
    using Question::Question;

private:
    void prepare() override {
        api().MarqueDiapositives(application());
        api().MarqueFormes(5, false, application());
        const std::int32_t words = text(2).Words().Count();
        for (std::int32_t i = 1; i <= words; ++i) {
            if (trim(text(2).Words(i).Text()) == u"parfaitement") {
                // No stop at the first: the last one counts.
                referenceColour_ = automation::Value(text(2).Words(i).Font().Color().object());
            }
        }
        application().ActiveWindow().ViewType(ppt::ppViewNormal);
        application().ActiveWindow().View().GotoSlide(5);
        application().ActiveWindow().Selection().Unselect();
    }

    void check() override {
        if (diapositive(5).Shapes().Count() != 2) {
            return cause(u"G");
        }
        const std::int32_t prepared = diapositive(5).Shapes().Count();
        for (std::int32_t k = 1; k <= prepared; ++k) {
            const bool isMarked = isPrepared(k);
            const bool hasText = forme(5, narrow<std::int16_t>(k)).HasTextFrame() != ppt::msoFalse;
            if (!isMarked || !hasText) {
                return cause(u"G");
            }
        }
        // What follows on the shapes asks again what has just been answered, and cannot fail on a slide that nobody
        // changes meanwhile; its reads belong to the check.
        if (diapositive(5).Shapes().Count() == 0) {
            return cause(u"G");
        }
        const std::int32_t tagged = diapositive(5).Shapes().Count();
        for (std::int32_t k = 1; k <= tagged; ++k) {
            if (!isPrepared(k)) {
                return cause(u"G");
            }
        }
        const std::int32_t titleParagraphs = text(1).Paragraphs().Count();
        const std::int32_t bodyParagraphs = text(2).Paragraphs().Count();
        if (titleParagraphs != 1 || bodyParagraphs != 4) {
            return cause(u"G");
        }
        const bool keepsEnd = contains(u"lisibles");
        const bool keepsBeginning = contains(u"Police et Taille des caractères");
        if (!keepsEnd || !keepsBeginning) {
            return cause(u"E");
        }
        if (contains(u"parfaitement ")) {
            return cause(u"C");
        }
        const std::int32_t coloured = colouredWords();
        const std::int32_t words = paragraph().Words().Count();
        if (coloured == 0 && words == 6) {
            return cause(u"D");
        }
        const std::array parts{u"tout", u"à", u"fait"};
        if (!contains(u"tout à fait")) {
            return cause(u"F");
        }
        if (coloured < static_cast<std::int32_t>(parts.size())) {
            return cause(u"H");
        }
    }

    [[nodiscard]] ppt::TextRange text(std::int16_t shape) const { return forme(5, shape).TextFrame().TextRange(); }
    [[nodiscard]] ppt::TextRange paragraph() const { return text(2).Paragraphs(3); }

    [[nodiscard]] bool contains(std::u16string_view part) const {
        return paragraph().Text().find(part) != std::u16string::npos;
    }

    [[nodiscard]] bool isPrepared(std::int32_t shape) const {
        return identite(5, narrow<std::int16_t>(shape)) == API::identity(shape);
    }

    [[nodiscard]] std::int32_t colouredWords() const {
        std::int32_t coloured = 0;
        const std::int32_t words = paragraph().Words().Count();
        for (std::int32_t i = 1; i <= words; ++i) {
            const std::int32_t colour = paragraph().Words(i).Font().Color().RGB();
            const auto reference = referenceColour_.to<std::int32_t>();
            if (colour == reference) {
                increase(coloured);
            }
        }
        return coloured;
    }

    /// The colour object itself, whose value is read at every comparison; empty, which compares as 0, where the word
    /// was not found.
    automation::Value referenceColour_;
};

template QuestionPtr make<Question0308>(std::int32_t number, const Environment& environment);

} // namespace exercises
