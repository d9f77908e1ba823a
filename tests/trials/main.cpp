#include "host/command/Main.h"
#include "tests/trials/command/Trials.h"

int main(int argc, char** argv) {
    return host::runMain(trials::program(), PROGRAM_VERSION, PROGRAM_SCENARIOS, argc, argv);
}
