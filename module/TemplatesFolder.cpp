#include "module/TemplatesFolder.h"

#include "automation/Text.h"
#include "module/RegistryError.h"

#include <algorithm>

namespace k73053 {

namespace {

using automation::lowerCase;
using platform::OpenKey;
using platform::Registry;

constexpr std::u16string_view generalKey = u"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General";
constexpr std::u16string_view shellFoldersKey =
    u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr std::u16string_view subfolder = u"\\ZOR Modèles";

/// A value's data in lower case without its last character, which is taken for the terminating NUL.
std::u16string lowered(const std::u16string& data) {
    return lowerCase(std::u16string_view(data).substr(0, data.empty() ? 0 : data.size() - 1));
}

std::u16string withoutNuls(std::u16string text) {
    std::erase(text, u'\0');
    return text;
}

bool hasUserTemplates(Registry& registry) {
    const OpenKey general(registry, generalKey, Registry::read);
    if (!general.isOpen()) {
        raiseRegistryError(generalKey);
    }
    bool found = false;
    std::u16string name;
    for (std::uint32_t index = 0; general.enumerate(index, name); ++index) {
        found = found || name == u"UserTemplates";
    }
    return found;
}

/// Empty where the value is missing or holds nothing but NULs.
std::u16string userTemplates(Registry& registry) {
    const OpenKey general(registry, generalKey, Registry::queryAndSet);
    if (!general.isOpen()) {
        return {};
    }
    return withoutNuls(lowered(general.query(u"UserTemplates").value_or(u"")));
}

std::u16string requiredValue(Registry& registry, std::u16string_view key, std::u16string_view name) {
    const OpenKey open(registry, key, Registry::queryAndSet);
    const auto data = open.isOpen() ? open.query(name) : std::nullopt;
    if (!data) {
        raiseRegistryError(key);
    }
    return lowered(*data);
}

std::u16string defaultTemplates(Registry& registry) {
    std::u16string folder = withoutNuls(requiredValue(registry, shellFoldersKey, u"AppData"));
    folder += u"\\Microsoft\\";
    return folder += requiredValue(registry, generalKey, u"Templates");
}

} // namespace

std::u16string templatesFolder(Registry& registry) {
    std::u16string folder = hasUserTemplates(registry) ? userTemplates(registry) : std::u16string();
    if (folder.empty()) {
        folder = defaultTemplates(registry);
    }
    if (folder.ends_with(u'\\')) {
        folder.pop_back();
    }
    // One that ends in the sub-folder already stays without a trailing backslash, on purpose.
    if (!folder.ends_with(lowerCase(subfolder))) {
        folder.append(subfolder).push_back(u'\\');
    }
    return folder;
}

} // namespace k73053
