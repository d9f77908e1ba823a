#include "simulator/objects/PowerPointObject.h"

#include <typeinfo>

namespace simulator {

std::u16string PowerPointObject::className() const {
    // However a compiler decorates the name, the class is the run of letters before the last "Object".
    const std::string decorated = typeid(*this).name();
    const std::size_t end = decorated.rfind("Object");
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    std::size_t start = end;
    while (start > 0 && isLetter(decorated[start - 1])) {
        --start;
    }
    return {decorated.begin() + static_cast<std::ptrdiff_t>(start),
            decorated.begin() + static_cast<std::ptrdiff_t>(end)};
}

} // namespace simulator
