#include "host/language/Likeness.h"

#include "automation/MemberTable.h"
#include "automation/Text.h"

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

std::u16string likeness(const automation::Object& object, std::u16string_view name) {
    const auto* const published = dynamic_cast<const automation::Published*>(&object);
    if (published == nullptr) {
        return {};
    }
    const std::u16string wanted = automation::lowerCase(name);
    const std::size_t most = wanted.size() < 4 ? 1 : 2;
    std::u16string alike;
    for (const automation::Member& member : published->members().members()) {
        if (const std::size_t changes = distance(wanted, automation::lowerCase(member.name.text()));
            changes > 0 && changes <= most) {
            alike += alike.empty() ? u": " : u" or ";
            alike += member.name.text();
        }
    }
    return alike.empty() ? alike : alike + u"?";
}

} // namespace host::language
