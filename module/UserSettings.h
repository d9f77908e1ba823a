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
    /// saved copy. The registry error for a key that cannot be opened, or a value that cannot be read, goes to the
    /// error report.
    void SauveParamUser(const ppt::Application& application);

    /// Points PowerPoint's recent folders at a folder; only "Default" receives a usable one. Failures go to the error
    /// report.
    void ChangeDir(const std::u16string& folder, const std::u16string& templatesFolder);

    /// Writes the saved recent folders back, as many as can be; the registry error for the first key that cannot be
    /// opened goes to the error report.
    void RestaureParamUser();

    /// The same for the folders that an exercise has changed and no close could restore.
    void restoreLeftovers();

    /// True while a folder or a bar may stand as an exercise has left it.
    [[nodiscard]] bool isChanged() const noexcept;

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
    template <typename Condition> void restoreWhere(const Condition& condition);
    void save(RecentFolder& folder) const;
    /// False where the key cannot be opened.
    [[nodiscard]] bool restore(RecentFolder& folder);

    platform::Registry& registry_;
    std::u16string version_;
    std::array<RecentFolder, 4> folders_{{{u"Default"}, {u"MultimediaDir"}, {u"PictureDir"}, {u"TemplateDir"}}};
};

} // namespace k73053
