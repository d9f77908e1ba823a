#include "host/win32/BorrowedRegistry.h"

#include "host/win32/KeyRights.h"

namespace host {

using platform::checkRegistry;
using platform::RegistryKey;

std::wstring BorrowedRegistry::text(const std::wstring& key, const std::wstring& name) const {
    if (const auto found = denied_.find(key); found != denied_.end()) {
        return found->second.key.text(name);
    }
    const auto opened = RegistryKey::open(HKEY_CURRENT_USER, key, KEY_QUERY_VALUE);
    return opened ? opened.text(name) : std::wstring();
}

void BorrowedRegistry::setText(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    remember(root, key, name);
    RegistryKey::create(root, key).setText(name, text);
}

void BorrowedRegistry::remove(HKEY root, const std::wstring& key, const std::wstring& name) {
    remember(root, key, name);
    if (const auto opened = RegistryKey::open(root, key, KEY_SET_VALUE)) {
        opened.deleteValue(name);
    }
}

void BorrowedRegistry::remember(HKEY root, const std::wstring& key, const std::wstring& name) {
    journal_.note(Loan::ofValue(root, key, name));
}

void BorrowedRegistry::deny(const std::wstring& key, bool denied) {
    const auto found = denied_.find(key);
    if (denied == (found != denied_.end())) {
        return;
    }
    if (!denied) {
        found->second.rights.giveBack();
        denied_.erase(found);
        return;
    }
    auto opened = RegistryKey::open(HKEY_CURRENT_USER, key, KEY_QUERY_VALUE | READ_CONTROL | WRITE_DAC);
    checkRegistry(opened ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND);
    const Loan rights = Loan::ofRights(key, rightsOn(opened.get()));
    journal_.note(rights);
    denyAll(opened.get());
    denied_.emplace(key, Denied{std::move(opened), rights});
}

} // namespace host
