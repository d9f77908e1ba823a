#include "simulator/system/FilePattern.h"

#include "automation/Text.h"

namespace simulator {

namespace {

bool isWildcard(std::u16string_view pattern, std::size_t place) noexcept {
    return place < pattern.size() && (pattern[place] == u'*' || pattern[place] == u'?');
}

} // namespace

bool matchesPattern(std::u16string_view name, std::u16string_view pattern) noexcept {
    if (pattern.empty()) {
        return name.empty();
    }
    const std::u16string_view rest = pattern.substr(1);
    switch (pattern.front()) {
    case u'*': return matchesPattern(name, rest) || (!name.empty() && matchesPattern(name.substr(1), pattern));
    case u'?':
        if (name.empty() || name.front() == u'.') {
            return matchesPattern(name, rest);
        }
        return matchesPattern(name.substr(1), rest);
    case u'.':
        if (name.empty() && isWildcard(pattern, 1)) {
            return matchesPattern(name, rest);
        }
        break;
    default: break;
    }
    return !name.empty() && automation::lowerCase(name.front()) == automation::lowerCase(pattern.front()) &&
           matchesPattern(name.substr(1), rest);
}

} // namespace simulator
