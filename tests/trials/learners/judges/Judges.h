#pragma once

#include "tests/trials/learners/Judge.h"

/// What each question comes to.
namespace trials::learners::judges {

/// The letter of the first fault of the work on a slide; empty where nothing is wrong.
///@{
[[nodiscard]] std::u16string_view box(const Work& work);
[[nodiscard]] std::u16string_view selecting(const Work& work);
[[nodiscard]] std::u16string_view moving(const Work& work);
[[nodiscard]] std::u16string_view deleting(const Work& work);
[[nodiscard]] std::u16string_view basicShape(const Work& work);
[[nodiscard]] std::u16string_view stacking(const Work& work);
[[nodiscard]] std::u16string_view filling(const Work& work);
[[nodiscard]] std::u16string_view rectangle(const Work& work);
[[nodiscard]] std::u16string_view sizing(const Work& work);
[[nodiscard]] std::u16string_view sizingAndMoving(const Work& work);
[[nodiscard]] std::u16string_view snapping(const Work& work);
[[nodiscard]] std::u16string_view thirdDimension(const Work& work);
[[nodiscard]] std::u16string_view grouping(const Work& work);
[[nodiscard]] std::u16string_view wordArt(const Work& work);
///@}

/// What is decided by more than the shapes of a slide.
///@{
[[nodiscard]] Verdict outline(const Scene& scene);
[[nodiscard]] Verdict advice(const Scene& scene);
[[nodiscard]] Verdict replacement(const Scene& scene);
[[nodiscard]] Verdict spelling(const Scene& scene);
[[nodiscard]] Verdict curve(const Scene& scene);
///@}

/// Keeps an eye on the word to be replaced, whose colour counts as it is in the end.
[[nodiscard]] Judge synonym(const Scene& prepared);

/// Where the picture of the first slide stands.
inline constexpr simulator::Frame sun{481.625F, 368.375F, 194.75F, 125.125F};

/// True where a shape stands in a frame, to the last bit.
[[nodiscard]] inline bool stands(const Found* found, const simulator::Frame& frame) noexcept {
    return found->shape->frame() == frame;
}

} // namespace trials::learners::judges
