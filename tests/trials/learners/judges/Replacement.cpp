#include "automation/Text.h"
#include "tests/trials/learners/judges/Judges.h"
#include "tests/trials/learners/judges/Words.h"

namespace trials::learners::judges {

namespace {

/// How often a word stands in the texts of a presentation: alone, or with one space behind it.
std::size_t count(const Scene& scene, std::u16string_view wanted) {
    std::size_t total = 0;
    for (const simulator::SlidePtr& slide : scene.active()->slides()) {
        for (const simulator::ShapePtr& shape : slide->shapes()) {
            for (const Word& word : wordsOf(shape->text ? std::u16string_view(shape->text->text()) : u"")) {
                const bool isWanted = word.text.starts_with(wanted) && word.text.size() <= wanted.size() + 1;
                total += isWanted && (word.text.size() == wanted.size() || word.text.back() == u' ') ? 1U : 0U;
            }
        }
    }
    return total;
}

} // namespace

Verdict replacement(const Scene& scene) {
    if (count(scene, u"faire") != 0) {
        return Verdict::of(u"A");
    }
    const std::size_t replaced = count(scene, u"créer");
    switch (replaced) {
    case 0: return Verdict::of(u"B");
    case 4: return {u"F", true, {}, {}};
    default: return {u"C", false, {u" " + automation::fromUtf8(std::to_string(replaced))}, {}};
    }
}

Verdict spelling(const Scene& scene) {
    if (count(scene, u"Régles") != 0) {
        return Verdict::of(u"A");
    }
    const bool isCorrected = count(scene, u"Règles") != 0;
    return {isCorrected ? u"C" : u"B", isCorrected, {}, {}};
}

} // namespace trials::learners::judges
