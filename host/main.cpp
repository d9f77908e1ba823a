#include "host/command/Main.h"
#include "host/command/ExerciseHost.h"

int main(int argc, char** argv) {
    return host::runMain(host::exerciseHost(), PROGRAM_VERSION, PROGRAM_SCENARIOS, argc, argv);
}
