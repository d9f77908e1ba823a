#include "host/run/Exercise.h"

namespace host {

Exercise::Exercise(World& world, const Course& course, std::int32_t question, Witness& witness)
    : world_(world), witness_(witness), host_(world, course, question, witness), stage_(world, &host_),
      interpreter_(stage_) {}

void Exercise::begin() {
    host_.initQuestion(host_.question(), world_.hostFolder());
}

void Exercise::execute(const language::Statement& statement) {
    witness_.performing(statement);
    stage_.begin();
    interpreter_.execute(statement);
}

automation::Value Exercise::evaluate(const language::Expression& expression) {
    return interpreter_.evaluate(expression);
}

void Exercise::finish() {
    interpreter_.forget();
    host_.finish();
}

} // namespace host
