#include "library/registration/Registration.h"

#include "library/registration/Entries.h"
#include "platform/win32/RegistryKey.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace library {

namespace {

using platform::RegistryKey;

const std::wstring classesKey = L"Software\\Classes";
constexpr REGSAM otherBitness = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

HKEY rootOf(Scope scope) noexcept {
    return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring pathOf(const std::wstring& key) {
    return classesKey + L'\\' + key;
}

void write(HKEY root, const Entry& entry) {
    RegistryKey::create(root, pathOf(entry.key)).setText(entry.name, entry.text);
}

/// Removes an entry, and what this leaves bare of its key and those above it, up to one that stays.
void remove(HKEY root, const Entry& entry, const std::wstring& staying = classesKey) {
    if (const auto key = RegistryKey::open(root, pathOf(entry.key), KEY_SET_VALUE)) {
        key.deleteValue(entry.name);
    }
    RegistryKey::removeBare(root, pathOf(entry.key), staying);
}

bool isOtherRegistered(HKEY root) {
    return std::ranges::any_of(serverKeys(), [&](const std::wstring& key) {
        return static_cast<bool>(RegistryKey::open(root, pathOf(key), KEY_QUERY_VALUE | otherBitness));
    });
}

/// An entry with what was there before it.
struct Written {
    Written(HKEY root, Entry written) : entry(std::move(written)), standing(pathOf(entry.key)) {
        if (const auto key = RegistryKey::open(root, standing, KEY_QUERY_VALUE)) {
            former = key.value(entry.name);
        }
        while (standing.size() > classesKey.size() && !RegistryKey::open(root, standing, KEY_QUERY_VALUE)) {
            standing.resize(standing.rfind(L'\\'));
        }
    }

    Entry entry;
    std::optional<platform::RegistryValue> former;
    std::wstring standing; ///< of its key and those above, the first that was there
};

/// Where a registration has failed: its error is the one that counts.
void tryToTakeBack(HKEY root, const Written& written) noexcept {
    try {
        const auto& [entry, former, standing] = written;
        if (former) {
            RegistryKey::create(root, pathOf(entry.key)).setValue(entry.name, *former);
        } else {
            remove(root, entry, standing);
        }
    } catch (...) {
        return;
    }
}

} // namespace

void registerLibrary(Scope scope, const std::wstring& libraryPath) {
    const HKEY root = rootOf(scope);
    std::vector<Written> written;
    try {
        for (const Entry& entry : entriesFor(libraryPath)) {
            written.emplace_back(root, entry);
            write(root, entry);
        }
    } catch (...) {
        std::for_each(written.rbegin(), written.rend(), [&](const Written& each) { tryToTakeBack(root, each); });
        throw;
    }
}

void unregisterLibrary(Scope scope) {
    const HKEY root = rootOf(scope);
    const auto entries = entriesFor({});
    const auto removeAll = [&](bool shared) {
        std::for_each(entries.rbegin(), entries.rend(), [&](const Entry& entry) {
            if (entry.isShared == shared) {
                remove(root, entry);
            }
        });
    };
    // On a system of one bitness only, the keys of the other one are its own: they are gone when they are asked for.
    removeAll(false);
    if (!isOtherRegistered(root)) {
        removeAll(true);
    }
    // What 32-bit programs see stands below this one, which they cannot see themselves.
    RegistryKey::removeBare(root, pathOf(L"Wow6432Node"), classesKey, KEY_WOW64_64KEY);
}

} // namespace library
