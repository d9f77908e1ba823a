#pragma once

#include "module/CommandBarLayout.h"
#include "platform/Registry.h"

#include <array>
#include <string>

namespace k73053 {

/// The learner's PowerPoint settings that an exercise changes: the recent folders in the registry and the command bars.
/// Saved before a question, put back when it closes.
class UserSettings {
public:
    /// Office version that keeps all recent folders in one key.
    static constexpr std::u16string_view office2003 = u"11.0";

    /// `registry` must outlive this object.
    explicit UserSettings(platform::Registry& registry, std::u16string_view officeVersion = office2003);

    /// Creates the key of the recent folders where the version keeps them in one.
    void createKey();

    /// Saves which command bars are shown, and the recent folders. What an earlier question still has changed keeps its
    /// saved copy. Raises the registry error for a key that cannot be opened, or a value that cannot be read.
    void SauveParamUser(const ppt::Application& application);

    /// Points PowerPoint's recent folders at a folder; only "Default" receives a usable one. Failures go to the error
    /// report.
    void ChangeDir(const std::u16string& folder, const std::u16string& templatesFolder);

    /// Writes the saved recent folders back, as many as can be; raises the registry error for the first key that cannot
    /// be opened.
    void RestaureParamUser();

    /// Tries once more to write back the folders that an exercise changed and no close could restore. Raises nothing.
    void restoreLeftovers() noexcept;

    /// The learner's command bars, which only a PowerPoint that answers can take back.
    CommandBarLayout commandBars;

private:
    struct RecentFolder {
        std::u16string_view name;
        std::u16string saved = {};
        bool changed = false; ///< the registry holds the exercise's folder
    };

    [[nodiscard]] std::u16string keyOf(const RecentFolder& folder) const;
    [[nodiscard]] std::u16string_view valueOf(const RecentFolder& folder) const;
    [[noreturn]] void raiseFor(const RecentFolder& folder) const;
    /// False where the key cannot be opened.
    [[nodiscard]] bool restore(RecentFolder& folder);

    platform::Registry& registry_;
    std::u16string version_;
    std::array<RecentFolder, 4> folders_{{{u"Default"}, {u"MultimediaDir"}, {u"PictureDir"}, {u"TemplateDir"}}};
};

} // namespace k73053
