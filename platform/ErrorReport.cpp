#include "platform/ErrorReport.h"

#include <string>

namespace platform {

void reportError(const automation::Error& current, std::u16string_view className, std::u16string_view service,
                 std::u16string_view object) {
    std::u16string place = u"DLL K61027 - CLASSE ";
    place.append(className).append(u"\n\r - SERVICE ").append(service).append(u" - OBJET ").append(object);
    throw automation::Error(current.number(), place, current.description(), current.helpFile(), current.helpContext());
}

} // namespace platform
