#include "host/win32/BorrowedRegistry.h"

#include "automation/com/WideText.h"
#include "host/win32/KeyRights.h"
#include "host/world/Refusal.h"

namespace host {

using automation::com::fromWide;
using platform::checkRegistry;
using platform::RegistryKey;

namespace {

const std::wstring international = L"Control Panel\\International";
const std::wstring measure = L"iMeasure";

std::wstring wide(std::u16string_view text) {
    return {text.begin(), text.end()};
}

} // namespace

std::u16string BorrowedRegistry::text(std::u16string_view key, std::u16string_view name) {
    if (const auto found = denied_.find(wide(key)); found != denied_.end()) {
        return fromWide(found->second.key.text(wide(name)));
    }
    const auto opened = RegistryKey::open(HKEY_CURRENT_USER, wide(key), KEY_QUERY_VALUE);
    return opened ? fromWide(opened.text(wide(name))) : std::u16string();
}

void BorrowedRegistry::setText(std::u16string_view key, std::u16string_view name, std::u16string_view text) {
    change(HKEY_CURRENT_USER, wide(key), wide(name), wide(text));
}

void BorrowedRegistry::change(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    journal_.note(Loan::ofValue(root, key, name));
    RegistryKey::create(root, key).setText(name, text);
}

void BorrowedRegistry::remove(std::u16string_view key, std::u16string_view name) {
    journal_.note(Loan::ofValue(HKEY_CURRENT_USER, wide(key), wide(name)));
    if (const auto opened = RegistryKey::open(HKEY_CURRENT_USER, wide(key), KEY_SET_VALUE)) {
        opened.deleteValue(wide(name));
    }
}

void BorrowedRegistry::setMeasurementSystem(std::u16string_view system) {
    journal_.note(Loan::ofValue(HKEY_CURRENT_USER, international, measure));
    // The system always answers; what is no measurement system is as good as none.
    const std::wstring value = system.empty() ? L"?" : wide(system);
    if (SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, value.c_str()) == FALSE) {
        refuse(u"the measurement system cannot be set");
    }
}

void BorrowedRegistry::deny(std::u16string_view path, bool denied) {
    const std::wstring key = wide(path);
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
