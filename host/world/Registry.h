#pragma once

#include "automation/Unmoved.h"

#include <array>
#include <string>
#include <string_view>

namespace host {

/// The registry of the current user. Keys are named by their path below HKEY_CURRENT_USER.
class Registry : automation::Unmoved {
public:
    virtual ~Registry() = default;

    /// A string value; empty where it is missing.
    [[nodiscard]] virtual std::u16string text(std::u16string_view key, std::u16string_view name) = 0;
    virtual void setText(std::u16string_view key, std::u16string_view name, std::u16string_view text) = 0;
    /// Removes a value.
    virtual void remove(std::u16string_view key, std::u16string_view name) = 0;
    /// Makes a key impossible to open, or possible again.
    virtual void deny(std::u16string_view key, bool denied) = 0;
    /// The measurement system of the user's settings: "0" metric, "1" U.S.; empty where it cannot be read.
    virtual void setMeasurementSystem(std::u16string_view system) = 0;
};

/// PowerPoint's four folder settings, in their registry key.
namespace folderSettings {

inline constexpr std::u16string_view key = u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";
inline constexpr auto names =
    std::to_array<std::u16string_view>({u"Default", u"MultimediaDir", u"PictureDir", u"TemplateDir"});

/// The folders, in the order of the names.
[[nodiscard]] inline std::array<std::u16string, 4> in(Registry& registry) {
    return {registry.text(key, names[0]), registry.text(key, names[1]), registry.text(key, names[2]),
            registry.text(key, names[3])};
}

} // namespace folderSettings

} // namespace host
