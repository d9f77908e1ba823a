#include "module/UserSettings.h"

#include "module/RegistryError.h"
#include "platform/ErrorReport.h"

#include <algorithm>

namespace k73053 {

using platform::OpenKey;
using platform::Registry;

namespace {

/// Saving reports its errors under the same name as giving back.
template <typename Operation> void reportingSettings(const Operation& operation) {
    platform::reporting(u"Module", u"RestaureParamUser", platform::ReportedObject::Description, operation);
}

constexpr std::u16string_view recentFolderListKey = u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";
constexpr std::u16string_view separateKeys = u"SOFTWARE\\Microsoft\\Office\\10.0\\Powerpoint\\Recent Folder List\\";

std::u16string withoutNul(std::u16string text) {
    if (text.ends_with(u'\0')) {
        text.pop_back();
    }
    return text;
}

} // namespace

UserSettings::UserSettings(Registry& registry, std::u16string_view officeVersion)
    : registry_(registry), version_(officeVersion) {}

void UserSettings::createKey() {
    if (version_ == office2003) {
        Registry::Key key = Registry::Key::None;
        if (registry_.create(recentFolderListKey, key) == Registry::success) {
            registry_.close(key);
        }
    }
}

void UserSettings::SauveParamUser(const ppt::Application& application) {
    reportingSettings([&] {
        commandBars.saveVisible(application);
        for (RecentFolder& folder : folders_) {
            save(folder);
        }
    });
}

void UserSettings::save(RecentFolder& folder) const {
    const OpenKey key(registry_, keyOf(folder), Registry::queryAndSet);
    if (!key.isOpen()) {
        raiseFor(folder);
    }
    std::u16string data;
    const Registry::Status status = key.query(valueOf(folder), data);
    if (folder.changed) {
        return;
    }
    // A value that is there and cannot be read would be lost once the exercise's stands in its place.
    if (status != Registry::success && status != Registry::fileNotFound) {
        raiseFor(folder);
    }
    folder.saved = status == Registry::success ? withoutNul(std::move(data)) : std::u16string();
}

void UserSettings::ChangeDir(const std::u16string& folder, const std::u16string& templatesFolder) {
    platform::reporting(u"Module", u"ChangeDir", platform::ReportedObject::Description, [&] {
        const std::size_t length = folder.size();
        for (RecentFolder& recent : folders_) {
            const OpenKey key(registry_, keyOf(recent), Registry::queryAndSet);
            if (!key.isOpen()) {
                raiseFor(recent);
            }
            recent.changed = true;
            // The last three are given a size of 0, so that only "Default" receives a usable folder.
            const bool isDefault = recent.name == u"Default";
            const std::u16string& data = recent.name == u"TemplateDir" ? templatesFolder : folder;
            key.set(valueOf(recent), data, isDefault ? length : 0);
        }
    });
}

void UserSettings::RestaureParamUser() {
    restoreWhere([](const RecentFolder&) { return true; });
}

void UserSettings::restoreLeftovers() {
    restoreWhere([](const RecentFolder& folder) { return folder.changed; });
}

bool UserSettings::isChanged() const noexcept {
    return commandBars.isChanged() ||
           std::any_of(folders_.begin(), folders_.end(), [](const RecentFolder& folder) { return folder.changed; });
}

template <typename Condition> void UserSettings::restoreWhere(const Condition& condition) {
    const RecentFolder* refused = nullptr;
    for (RecentFolder& folder : folders_) {
        if (condition(folder) && !restore(folder) && refused == nullptr) {
            refused = &folder;
        }
    }
    if (refused != nullptr) {
        reportingSettings([&] { raiseFor(*refused); });
    }
}

bool UserSettings::restore(RecentFolder& folder) {
    const OpenKey key(registry_, keyOf(folder), Registry::queryAndSet);
    if (key.isOpen() && key.set(valueOf(folder), folder.saved, folder.saved.size() + 1)) {
        folder.changed = false;
    }
    return key.isOpen();
}

std::u16string UserSettings::keyOf(const RecentFolder& folder) const {
    return version_ == office2003 ? std::u16string(recentFolderListKey)
                                  : std::u16string(separateKeys).append(folder.name);
}

std::u16string_view UserSettings::valueOf(const RecentFolder& folder) const {
    return version_ == office2003 ? folder.name : std::u16string_view();
}

void UserSettings::raiseFor(const RecentFolder& folder) const {
    raiseRegistryError(u"SOFTWARE\\Microsoft\\Office\\" + version_ + u"\\Powerpoint\\Recent Folder List\\" +
                       std::u16string(folder.name));
}

} // namespace k73053
