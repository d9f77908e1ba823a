#include "library/registration/Table.h"

#include <cstdio>
#include <string>
#include <string_view>

// library-manifest VERSION ARCHITECTURE: writes the manifest by which a program uses the library without its being
// registered: VERSION in four parts, ARCHITECTURE x86 or amd64. Built for the machine that builds.

namespace {

namespace table = library::table;

std::string attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + std::string(value) + '"';
}

std::string classElement(const table::Class& row) {
    const std::string programmaticId = std::string(table::product) + '.' + std::string(row.name);
    return "    <comClass" + attribute("clsid", row.identity) + attribute("progid", programmaticId) +
           attribute("threadingModel", table::threadingModel) + attribute("tlbid", table::typeLibrary) +
           attribute("description", row.description) + "/>\n";
}

std::string interfaceElement(const table::Interface& row) {
    return "  <comInterfaceExternalProxyStub" + attribute("name", row.name) + attribute("iid", row.identity) +
           attribute("proxyStubClsid32", table::automationProxy) + attribute("tlbid", table::typeLibrary) + "/>\n";
}

std::string manifest(std::string_view version, std::string_view architecture) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
        "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n  <assemblyIdentity" +
        attribute("type", "win32") + attribute("name", table::product) + attribute("version", version) +
        attribute("processorArchitecture", architecture) + "/>\n  <file" +
        attribute("name", std::string(table::product) + ".dll") + ">\n";
    for (const auto& row : table::classes) {
        text += classElement(row);
    }
    text += "    <typelib" + attribute("tlbid", table::typeLibrary) + attribute("version", table::version) +
            attribute("helpdir", "") + "/>\n  </file>\n";
    for (const auto& row : table::interfaces) {
        text += interfaceElement(row);
    }
    return text + "</assembly>\n";
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("library-manifest VERSION ARCHITECTURE\n", stderr);
        return 2;
    }
    const std::string text = manifest(arguments[1], arguments[2]);
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
