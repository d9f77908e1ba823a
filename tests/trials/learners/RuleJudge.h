#pragma once

#include "tests/trials/learners/Judge.h"

#include <span>

namespace trials::learners {

/// A fault of the work on a slide, and its letter.
struct Rule {
    std::u16string_view letter;
    bool (*holds)(const Work&);
};

/// Rules of a question, about one slide; the first that holds gives the letter. Where the slide is gone, the check is
/// refused.
struct RuleBook {
    std::int32_t question;
    std::size_t slide; ///< from 1; 0 for rules about no slide
    std::span<const Rule> rules;
};

class RuleJudge final : public Judge {
public:
    explicit RuleJudge(const RuleBook& book) noexcept : book_(book) {}

    [[nodiscard]] Verdict verdict(const Scene& scene) const override {
        if (book_.slide != 0 && scene.slide(book_.slide) == nullptr) {
            return Verdict::refused();
        }
        const Work work(scene, book_.slide);
        const auto first = std::find_if(book_.rules.begin(), book_.rules.end(),
                                        [&work](const Rule& rule) { return rule.holds(work); });
        return first == book_.rules.end() ? Verdict() : Verdict::of(first->letter);
    }

private:
    RuleBook book_;
};

} // namespace trials::learners
