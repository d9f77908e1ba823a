#include "exercises/Catalogue.h"

namespace exercises {

QuestionPtr createQuestion(std::int32_t number, const Environment& environment) {
    if (number < firstQuestion || number > lastQuestion) {
        return nullptr;
    }
    return questionClasses.at(static_cast<std::size_t>(number - firstQuestion))(number, environment);
}

} // namespace exercises
