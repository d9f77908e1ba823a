#pragma once

#include "host/world/World.h"

#include <array>
#include <optional>

namespace host {

/// A slide with the identities that it and its shapes bear; empty for what is not marked.
struct SlideMarks {
    std::u16string identity;
    std::vector<std::u16string> shapes;

    friend bool operator==(const SlideMarks&, const SlideMarks&) = default;
};

/// An open presentation.
struct OpenPresentation {
    std::u16string name;
    std::u16string fullName;
    bool saved = true;
    std::vector<SlideMarks> slides;

    friend bool operator==(const OpenPresentation&, const OpenPresentation&) = default;
};

/// What can be seen of a world at one moment.
struct Snapshot {
    /// Tells by its full name whether the slides of a presentation are wanted: reading them takes its time.
    using WantsSlides = std::function<bool(const std::u16string&)>;

    /// With the slides of all presentations where nothing is said.
    explicit Snapshot(World& world, const WantsSlides& wantsSlides = nullptr);

    /// The presentation open under a full name; null where there is none.
    [[nodiscard]] const OpenPresentation* find(std::u16string_view fullName) const;

    std::int32_t window;                                        ///< PowerPoint's main window; 0 where it does not run
    std::size_t dialogs;                                        ///< dialogs open above it
    std::vector<std::u16string> files;                          ///< names in the host's folder
    std::array<std::u16string, 4> folders;                      ///< PowerPoint's folder settings
    std::optional<std::vector<OpenPresentation>> presentations; ///< nothing where PowerPoint does not answer
};

/// Texts of the first list that the second, sorted, does not hold.
[[nodiscard]] std::vector<std::u16string> without(const std::vector<std::u16string>& first,
                                                  const std::vector<std::u16string>& second);

} // namespace host
