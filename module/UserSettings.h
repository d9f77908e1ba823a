#pragma once

#include "platform/Registry.h"
#include "ppt/Application.h"

#include <array>
#include <string>
#include <vector>

namespace k73053 {

/// The learner's PowerPoint settings that an exercise changes: the recent folders in the registry and which command
/// bars are shown. Saved before a question, put back when it closes.
class UserSettings {
public:
    /// Office version that keeps all recent folders in one key.
    static constexpr std::u16string_view office2003 = u"11.0";

    /// `registry` must outlive this object.
    explicit UserSettings(platform::Registry& registry, std::u16string_view officeVersion = office2003);

    /// Creates the key of the recent folders where the version keeps them in one.
    void createKey();

    /// Saves which command bars are shown, and the recent folders. What an earlier question still has changed keeps its
    /// saved copy. Raises the registry error for a key that cannot be opened.
    void SauveParamUser(const ppt::Application& application);

    /// Points PowerPoint's recent folders at a folder; only "Default" receives a usable one. Failures go to the error
    /// report.
    void ChangeDir(const std::u16string& folder, const std::u16string& templatesFolder);

    /// Writes the saved recent folders back, as many as can be, and lets go of the saved command bars; raises the
    /// registry error for the first key that cannot be opened.
    void RestaureParamUser();

    /// Tries once more to write back the folders that an exercise changed and no close could restore. Raises nothing.
    void restoreLeftovers() noexcept;

    /// To be told before an exercise changes the command bars: from here on the saved copy is the learner's.
    void commandBarsWillChange() noexcept { barsChanged_ = true; }

    /// Shows and hides the command bars as they were saved; bars that refuse stay as they are.
    void restoreCommandBars(const ppt::Application& application) noexcept;

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
    std::vector<bool> barsVisible_; ///< bar i + 1
    bool barsChanged_ = false;
};

} // namespace k73053
