#include "host/language/Likeness.h"

#include "automation/MemberTable.h"
#include "automation/Text.h"
#include "host/language/Constants.h"
#include "host/language/Keywords.h"
#include "host/language/PowerPointNames.h"

#include <algorithm>
#include <numeric>

namespace host::language {

namespace {

/// How many letters must be put in, left out or changed to make one name of the other.
std::size_t distance(std::u16string_view from, std::u16string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::u16string suggestion(std::u16string_view wanted, const std::vector<std::u16string_view>& names) {
    const std::u16string lower = automation::lowerCase(wanted);
    const std::size_t most = lower.size() < 4 ? 1 : 2;
    std::vector<std::u16string_view> alike;
    for (const std::u16string_view name : names) {
        const std::size_t changes = distance(lower, automation::lowerCase(name));
        if (changes > 0 && changes <= most && std::find(alike.begin(), alike.end(), name) == alike.end()) {
            alike.push_back(name);
        }
    }
    if (alike.size() > 3) { // members of one long family, which tell nothing
        alike.clear();
    }
    std::u16string text;
    for (const std::u16string_view name : alike) {
        text += text.empty() ? u": " : u" or ";
        text += name;
    }
    return text.empty() ? text : text + u'?';
}

std::u16string missingMember(const automation::Object& object, std::u16string_view name, automation::Access access) {
    const std::u16string className = object.className();
    std::vector<std::u16string_view> names = membersInPowerPoint(className);
    bool isPublished = true; // by what does not tell its members: it has been asked
    if (const auto* const published = dynamic_cast<const automation::Published*>(&object)) {
        isPublished = published->members().find(name) != nullptr;
        for (const automation::Member& member : published->members().members()) {
            names.push_back(member.name.text());
        }
    }
    if (!isPublished && isMemberInPowerPoint(className, name)) {
        return notEmbedded(className + u'.' + std::u16string(name));
    }
    const std::u16string_view verb = access == automation::Access::Put ? u" to be set" : u"";
    return className + u" has no member '" + std::u16string(name) + u"'" + std::u16string(verb) +
           suggestion(name, names);
}

std::u16string unknownName(std::u16string_view name, std::vector<std::u16string_view> variables) {
    if (isForeignProcedure(name)) {
        return u"'" + std::u16string(name) + u"' " + automation::fromUtf8(notOwn);
    }
    if (isMemberInPowerPoint(u"Application", name)) {
        return notEmbedded(u"Application." + std::u16string(name));
    }
    for (const auto& names : {membersInPowerPoint(u"Application"), reservedNames(), verbs()}) {
        variables.insert(variables.end(), names.begin(), names.end());
    }
    return u"'" + std::u16string(name) + u"' is neither a variable nor a member of PowerPoint's application" +
           suggestion(name, variables);
}

std::u16string notEmbedded(std::u16string_view what) {
    return std::u16string(what) + u" is not in this embedded PowerPoint; PowerPoint has it";
}

} // namespace host::language
