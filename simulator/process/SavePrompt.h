#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// How its user answers where PowerPoint asks what becomes of a presentation that has changed since it was saved.
struct SavePrompt {
    enum class Answer : std::uint8_t { Save, Discard, Cancel };

    /// "save", "discard", "cancel"; nothing for anything else.
    [[nodiscard]] static std::optional<Answer> answerOf(std::u16string_view word) noexcept {
        return word == u"save"      ? std::optional(Answer::Save)
               : word == u"discard" ? std::optional(Answer::Discard)
               : word == u"cancel"  ? std::optional(Answer::Cancel)
                                    : std::nullopt;
    }

    std::optional<Answer> answer;           ///< nothing where nobody has said it: changes are dropped then
    std::vector<std::u16string> unanswered; ///< the presentations whose changes were dropped so
};

} // namespace simulator
