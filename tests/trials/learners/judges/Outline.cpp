#include "automation/Text.h"
#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges {

Verdict outline(const Scene& scene) {
    bool isNamed = false;
    bool isRichText = false;
    for (const std::u16string& each : scene.files()) {
        const std::u16string file = automation::lowerCase(each);
        isNamed = isNamed || file == u"plan exo 3" || file.starts_with(u"plan exo 3.");
        isRichText = isRichText || file == u"plan exo 3.rtf";
    }
    return Verdict::of(isRichText ? u"" : isNamed ? u"B" : u"A");
}

} // namespace trials::learners::judges
