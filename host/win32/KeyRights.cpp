#include "host/win32/KeyRights.h"

#include "platform/win32/RegistryKey.h"

namespace host {

using platform::checkRegistry;

std::vector<BYTE> rightsOn(HKEY key) {
    DWORD size = 0;
    RegGetKeySecurity(key, DACL_SECURITY_INFORMATION, nullptr, &size);
    std::vector<BYTE> rights(size);
    checkRegistry(RegGetKeySecurity(key, DACL_SECURITY_INFORMATION, rights.data(), &size));
    return rights;
}

void setRights(HKEY key, std::vector<BYTE> rights) {
    checkRegistry(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, rights.data()));
}

void denyAll(HKEY key) {
    // An access control list without entries grants nothing to anyone.
    ACL nobody{};
    SECURITY_DESCRIPTOR closed{};
    InitializeAcl(&nobody, sizeof(nobody), ACL_REVISION);
    InitializeSecurityDescriptor(&closed, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&closed, TRUE, &nobody, FALSE);
    checkRegistry(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, &closed));
}

} // namespace host
