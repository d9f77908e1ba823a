#include "library/registration/Registration.h"

#include "library/registration/Entries.h"
#include "platform/win32/RegistryKey.h"

#include <algorithm>
#include <optional>
#include <ranges>

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

void remove(HKEY root, const Entry& entry) {
    if (const auto key = RegistryKey::open(root, pathOf(entry.key), KEY_SET_VALUE)) {
        key.deleteValue(entry.name);
    }
    RegistryKey::removeBare(root, pathOf(entry.key), classesKey);
}

bool isOtherRegistered(HKEY root) {
    return std::ranges::any_of(serverKeys(), [&](const std::wstring& key) {
        return static_cast<bool>(RegistryKey::open(root, pathOf(key), KEY_QUERY_VALUE | otherBitness));
    });
}

/// An entry with the text that was there before; nothing where there was none.
struct Written {
    Entry entry;
    std::optional<std::wstring> former;
};

std::optional<std::wstring> textOf(HKEY root, const Entry& entry) {
    const auto key = RegistryKey::open(root, pathOf(entry.key), KEY_QUERY_VALUE);
    return key ? key.find(entry.name) : std::nullopt;
}

/// Where a registration has failed: its error is the one that counts.
void tryToTakeBack(HKEY root, const Written& written) noexcept {
    try {
        const auto& [entry, former] = written;
        former ? write(root, {entry.key, entry.name, *former}) : remove(root, entry);
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
            written.push_back({entry, textOf(root, entry)});
            write(root, entry);
        }
    } catch (...) {
        for (const Written& each : written | std::views::reverse) {
            tryToTakeBack(root, each);
        }
        throw;
    }
}

void unregisterLibrary(Scope scope) {
    const HKEY root = rootOf(scope);
    const auto entries = entriesFor({});
    const auto removeAll = [&](bool shared) {
        for (const Entry& entry : entries | std::views::reverse) {
            if (entry.isShared == shared) {
                remove(root, entry);
            }
        }
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
