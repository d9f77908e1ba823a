#include "tests/trials/learners/Examiner.h"

#include "automation/Text.h"

namespace trials::learners {

namespace {

constexpr std::u16string_view workingName = u"méthodologie.ppt";

std::u16string fullName(const simulator::Presentation& presentation) {
    return automation::lowerCase(presentation.path);
}

} // namespace

void Examiner::begun(const Scene& scene) {
    judge_ = judgeOf(question_)(scene);
    expectedMarks_ = static_cast<std::ptrdiff_t>(scene.active()->slides().size());
    kept_ = Reading();
}

Reading Examiner::examine(const Scene& scene) {
    if (const std::u16string_view letter = general(scene); !letter.empty()) {
        Reading reading = kept_;
        reading.erreurGenerale = true;
        reading.causeErreur = letter;
        return reading;
    }
    const Verdict verdict = judge_(scene);
    kept_.complement = verdict.complement;
    kept_.bravoNuance = kept_.bravoNuance || verdict.isRemark;
    if (!verdict.letter.empty()) {
        kept_.causeErreur = verdict.letter;
    }
    Reading reading = kept_;
    if (verdict.error) {
        reading.error.emplace(*verdict.error, u"", u"");
    }
    return reading;
}

std::u16string_view Examiner::general(const Scene& scene) {
    if (!scene.isPowerPointThere()) {
        return u"AK";
    }
    if (scene.hasDialog()) {
        return u"%AL";
    }
    if (scene.presentations().empty()) {
        return u"A";
    }
    const std::u16string wanted = automation::lowerCase(scene.folder()) + std::u16string(workingName);
    const auto working = std::find_if(scene.presentations().begin(), scene.presentations().end(),
                                      [&](const auto& presentation) { return fullName(*presentation) == wanted; });
    const bool isOpen = working != scene.presentations().end();
    const bool isInFront = isOpen && working->get() == scene.active();
    if (isInFront) {
        compareSlides(*scene.active());
    }
    if (question_ != 304 && !isInFront) {
        return isOpen ? u"G" : u"F";
    }
    if (question_ == 301) {
        return u"";
    }
    if (slides_.isOneMissing) {
        return u"C";
    }
    if (question_ == 305) {
        return u"";
    }
    return slides_.isOneTooMany ? u"D" : slides_.isOneElsewhere ? u"E" : u"";
}

void Examiner::compareSlides(const simulator::Presentation& presentation) {
    const auto& slides = presentation.slides();
    const bool areFewer = static_cast<std::ptrdiff_t>(slides.size()) < expectedMarks_;
    expectedMarks_ -= std::count_if(slides.begin(), slides.end(),
                                    [](const auto& slide) { return markOf(*slide).starts_with(u"ZOR"); });
    slides_ = {expectedMarks_ > 0, areFewer || expectedMarks_ < 0, false};
    for (std::size_t place = 1; place <= slides.size(); ++place) {
        slides_.isOneElsewhere = slides_.isOneElsewhere || markOf(*slides[place - 1]) != mark(place);
    }
}

} // namespace trials::learners
