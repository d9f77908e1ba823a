#include "host/run/RegistryMoves.h"

namespace host {

std::u16string RegistryMoves::text(const std::u16string& key, const std::u16string& name) {
    return registry_.text(key, name);
}

void RegistryMoves::setText(const std::u16string& key, const std::u16string& name, const std::u16string& text) {
    registry_.setText(key, name, text);
}

void RegistryMoves::remove(const std::u16string& key, const std::u16string& name) {
    registry_.remove(key, name);
}

std::u16string RegistryMoves::recentFolder(const std::u16string& name) {
    return registry_.text(folderSettings::key, name);
}

void RegistryMoves::setRecentFolder(const std::u16string& name, const std::u16string& folder) {
    registry_.setText(folderSettings::key, name, folder);
}

const automation::MemberTable& RegistryMoves::members() const {
    using automation::method;
    using automation::property;
    static const automation::MemberTable table{
        method<&RegistryMoves::deny>(u"Deny"),
        method<&RegistryMoves::allow>(u"Allow"),
        property<&RegistryMoves::text, &RegistryMoves::setText>(u"Text"),
        method<&RegistryMoves::remove>(u"Delete"),
        property<&RegistryMoves::recentFolder, &RegistryMoves::setRecentFolder>(u"RecentFolder"),
        method<&RegistryMoves::setMeasurementSystem>(u"SetMeasurementSystem"),
    };
    return table;
}

} // namespace host
