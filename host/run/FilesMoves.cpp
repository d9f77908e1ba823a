#include "host/run/FilesMoves.h"

namespace host {

std::u16string FilesMoves::path(const std::u16string& name) const {
    return name.find(u'\\') == std::u16string::npos ? world_.hostFolder() + name : name;
}

void FilesMoves::create(const std::u16string& name) {
    world_.files().write(path(name), {});
}

void FilesMoves::copy(const std::u16string& from, const std::u16string& to) {
    world_.files().write(path(to), world_.files().read(path(from)));
}

void FilesMoves::remove(const std::u16string& name) {
    world_.files().remove(path(name));
}

void FilesMoves::makeReadOnly(const std::u16string& name) {
    world_.files().setAttributes(path(name), attributes::readOnly);
}

void FilesMoves::makeHidden(const std::u16string& name) {
    world_.files().setAttributes(path(name), attributes::hidden);
}

bool FilesMoves::exists(const std::u16string& name) {
    return world_.files().exists(path(name));
}

const automation::MemberTable& FilesMoves::members() const {
    using automation::method;
    using automation::property;
    static const automation::MemberTable table{
        method<&FilesMoves::create>(u"Create"),         method<&FilesMoves::copy>(u"Copy"),
        method<&FilesMoves::remove>(u"Delete"),         method<&FilesMoves::makeReadOnly>(u"MakeReadOnly"),
        method<&FilesMoves::makeHidden>(u"MakeHidden"), method<&FilesMoves::exists>(u"Exists"),
        property<&FilesMoves::folder>(u"Folder"),
    };
    return table;
}

} // namespace host
