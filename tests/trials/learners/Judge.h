#pragma once

#include "automation/Unmoved.h"
#include "tests/trials/learners/Work.h"

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
class Judge : automation::Unmoved {
public:
    virtual ~Judge() = default;

    /// The question has been prepared, and the learner is about to begin.
    virtual void prepared(const Scene& /*scene*/) {}
    [[nodiscard]] virtual Verdict verdict(const Scene& scene) const = 0;
};

using JudgePtr = std::unique_ptr<Judge>;

/// The judge of a question. Raises std::out_of_range where there is none.
[[nodiscard]] JudgePtr makeJudge(std::int32_t question);

} // namespace trials::learners
