#pragma once

#include "tests/trials/learners/Work.h"

#include <functional>
#include <optional>

namespace trials::learners {

/// What a question's own check comes to.
struct Verdict {
    std::u16string letter; ///< empty where nothing is wrong
    bool isRemark = false; ///< a success that carries a remark
    std::vector<std::u16string> complement;
    std::optional<std::int32_t> error; ///< number of the error that the check raises

    [[nodiscard]] static Verdict of(std::u16string_view letter) { return {std::u16string(letter), false, {}, {}}; }
    [[nodiscard]] static Verdict raised(std::int32_t number) { return {{}, false, {}, number}; }
    /// PowerPoint refuses what the check asks for.
    [[nodiscard]] static Verdict refused() { return raised(static_cast<std::int32_t>(0x80048240)); }
};

/// Judges a learner's work on one question by the state in which it is left: by itself, without the module.
using Judge = std::function<Verdict(const Scene&)>;

/// Makes the judge of a question that has been prepared, and whose learner is about to begin.
using JudgeMaker = Judge (*)(const Scene& prepared);

/// The one of a question. Raises std::out_of_range where there is none.
[[nodiscard]] JudgeMaker judgeOf(std::int32_t question);

} // namespace trials::learners
