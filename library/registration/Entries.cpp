#include "library/registration/Entries.h"

#include "library/registration/Table.h"

namespace library {

namespace {

constexpr std::wstring_view platformName = sizeof(void*) == 8 ? L"win64" : L"win32";

std::wstring wide(std::string_view text) {
    return {text.begin(), text.end()};
}

std::wstring classKey(const table::Class& row) {
    return L"CLSID\\" + wide(row.identity);
}

std::wstring serverKey(const table::Class& row) {
    return classKey(row) + L"\\InprocServer32";
}

void appendClass(std::vector<Entry>& entries, const table::Class& row, const std::wstring& libraryPath) {
    const std::wstring key = classKey(row);
    const std::wstring programmaticId = wide(table::product) + L'.' + wide(row.name);
    const std::wstring description = wide(row.description);
    entries.insert(entries.end(), {
                                      {key, L"", description},
                                      {serverKey(row), L"", libraryPath},
                                      {serverKey(row), L"ThreadingModel", wide(table::threadingModel)},
                                      {key + L"\\ProgID", L"", programmaticId},
                                      {key + L"\\Programmable", L"", L""},
                                      {key + L"\\TypeLib", L"", wide(table::typeLibrary)},
                                      {key + L"\\Version", L"", wide(table::version)},
                                      {programmaticId, L"", description, true},
                                      {programmaticId + L"\\CLSID", L"", wide(row.identity), true},
                                  });
}

void appendTypeLibrary(std::vector<Entry>& entries, const std::wstring& libraryPath) {
    const std::wstring key = L"TypeLib\\" + wide(table::typeLibrary) + L'\\' + wide(table::version);
    entries.insert(entries.end(), {
                                      {key, L"", wide(table::typeLibraryName), true},
                                      {key + L"\\FLAGS", L"", L"0", true},
                                      {key + L"\\0\\" + std::wstring(platformName), L"", libraryPath},
                                  });
}

void appendInterface(std::vector<Entry>& entries, const table::Interface& row) {
    const std::wstring key = L"Interface\\" + wide(row.identity);
    entries.insert(entries.end(), {
                                      {key, L"", wide(row.name)},
                                      {key + L"\\ProxyStubClsid32", L"", wide(table::automationProxy)},
                                      {key + L"\\TypeLib", L"", wide(table::typeLibrary)},
                                      {key + L"\\TypeLib", L"Version", wide(table::version)},
                                  });
}

} // namespace

std::vector<Entry> entriesFor(const std::wstring& libraryPath) {
    std::vector<Entry> entries;
    for (const auto& row : table::classes) {
        appendClass(entries, row, libraryPath);
    }
    appendTypeLibrary(entries, libraryPath);
    for (const auto& row : table::interfaces) {
        appendInterface(entries, row);
    }
    return entries;
}

std::vector<std::wstring> serverKeys() {
    std::vector<std::wstring> keys;
    keys.reserve(table::classes.size());
    for (const auto& row : table::classes) {
        keys.push_back(serverKey(row));
    }
    return keys;
}

} // namespace library
