#pragma once

#include "tests/trials/learners/RuleJudge.h"

#include <array>

namespace trials::learners {

/// The rule books of the questions that one slide decides.
namespace judges {
/// Place, size or order of shapes: 311, 315, 318, 319.
namespace placing {
[[nodiscard]] std::span<const RuleBook> books() noexcept;
}
/// New shapes: 309, 314, 317, 323.
namespace drawing {
[[nodiscard]] std::span<const RuleBook> books() noexcept;
}
/// Another look: 316, 320, 321.
namespace looks {
[[nodiscard]] std::span<const RuleBook> books() noexcept;
}
/// A selection, a deletion, a group: 310, 313, 322.
namespace handling {
[[nodiscard]] std::span<const RuleBook> books() noexcept;
}
} // namespace judges

/// 304: a file in the host's folder.
[[nodiscard]] JudgePtr makeFileJudge();
/// 305: the text of a new slide.
[[nodiscard]] JudgePtr makeAdviceJudge();
/// 306 and 307: words of the whole presentation.
[[nodiscard]] JudgePtr makeReplacementJudge();
[[nodiscard]] JudgePtr makeSpellingJudge();
/// 308: words of a paragraph and their colour.
[[nodiscard]] JudgePtr makeSynonymJudge();
/// 312: a freeform, closed or open.
[[nodiscard]] JudgePtr makeCurveJudge();
/// 301 to 303: nothing is asked.
[[nodiscard]] JudgePtr makeContentJudge();

/// True where a shape stands in a frame, to the last bit.
[[nodiscard]] inline bool stands(const Found* found, const simulator::Frame& frame) noexcept {
    return found->shape->frame() == frame;
}

} // namespace trials::learners
