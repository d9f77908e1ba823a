#include "exercises/Catalogue.h"

#include <algorithm>
#include <array>

namespace exercises {

namespace {

struct Class {
    std::u16string_view name;
    QuestionPtr (*make)(const Environment&);
};

constexpr std::array<Class, 23> classes{{
    {u"Question0301", &makeQuestion0301}, {u"Question0302", &makeQuestion0302}, {u"Question0303", &makeQuestion0303},
    {u"Question0304", &makeQuestion0304}, {u"Question0305", &makeQuestion0305}, {u"Question0306", &makeQuestion0306},
    {u"Question0307", &makeQuestion0307}, {u"Question0308", &makeQuestion0308}, {u"Question0309", &makeQuestion0309},
    {u"Question0310", &makeQuestion0310}, {u"Question0311", &makeQuestion0311}, {u"Question0312", &makeQuestion0312},
    {u"Question0313", &makeQuestion0313}, {u"Question0314", &makeQuestion0314}, {u"Question0315", &makeQuestion0315},
    {u"Question0316", &makeQuestion0316}, {u"Question0317", &makeQuestion0317}, {u"Question0318", &makeQuestion0318},
    {u"Question0319", &makeQuestion0319}, {u"Question0320", &makeQuestion0320}, {u"Question0321", &makeQuestion0321},
    {u"Question0322", &makeQuestion0322}, {u"Question0323", &makeQuestion0323},
}};

} // namespace

QuestionPtr createQuestion(std::u16string_view className, const Environment& environment) {
    const auto* const found = std::find_if(classes.begin(), classes.end(),
                                           [&](const Class& candidate) { return candidate.name == className; });
    if (found == classes.end()) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    return found->make(environment);
}

} // namespace exercises
