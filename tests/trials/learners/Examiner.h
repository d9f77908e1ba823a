#pragma once

#include "host/language/Expectation.h"
#include "tests/trials/Host.h"
#include "tests/trials/learners/Judge.h"

namespace trials::learners {

/// Foretells what the host reads after each TestePoint of one world: what is asked of the presentation before a
/// question's own check, and what a question keeps from one check to the next.
class Examiner {
public:
    explicit Examiner(std::int32_t question) : question_(question) {}

    /// InitQuestion has been called.
    void begun(const Scene& scene);
    /// What the host must read after a TestePoint on things as they stand; errors have their number only.
    [[nodiscard]] Reading examine(const Scene& scene);

private:
    /// What is wrong with the slides as a whole.
    struct Slides {
        bool isOneMissing = false;
        bool isOneTooMany = false;
        bool isOneElsewhere = false;
    };

    /// The letter that comes before the question's own check; empty where there is none.
    [[nodiscard]] std::u16string_view general(const Scene& scene);
    void compareSlides(const simulator::Presentation& presentation);

    std::int32_t question_;
    Judge judge_;
    std::ptrdiff_t expectedMarks_ = 0; ///< marked slides, less those that the checks since have counted
    Slides slides_;                    ///< as they were compared last, if only for a question before
    Reading kept_;                     ///< the question's own letter, remark and complement
};

} // namespace trials::learners
