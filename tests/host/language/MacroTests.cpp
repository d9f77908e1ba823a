#include "host/command/Library.h"
#include "host/try/Conversation.h"
#include "host/try/PlainLines.h"
#include "host/world/EmbeddedWorld.h"
#include "simulator/files/WholeFile.h"

#include <gtest/gtest.h>

#include <sstream>

namespace macro_tests {

/// The macros of the file, each with what must be found behind it.
std::vector<std::string> macrosIn(const std::string& file) {
    const std::string mark = "\nscenario ";
    std::string rest = simulator::files::wholeFile(file).value_or("");
    std::vector<std::string> macros;
    for (std::size_t at = rest.find(mark); at != std::string::npos; at = rest.find(mark)) {
        rest.erase(0, rest.find('\n', at + 1) + 1);
        macros.push_back(rest.substr(0, rest.find(mark)));
    }
    return macros;
}

TEST(Macros, AsTheRecorderWritesThemArePastedIntoAConversation) {
    const std::string path = SCENARIOS "/recorded.scn";
    const host::language::ScenarioFile file = host::load(path);
    const host::Course course(file, host::makeEmbeddedWorld);
    const std::vector<std::string> macros = macrosIn(path);
    EXPECT_GE(macros.size(), 30U);
    for (const std::string& macro : macros) {
        std::istringstream typed(macro);
        std::ostringstream out;
        host::PlainLines lines(typed);
        host::Conversation conversation(file, course, host::makeEmbeddedWorld, lines, out);
        EXPECT_TRUE(conversation.run()) << macro;
        const std::string said = out.str();
        const std::string invitation = "help tells the rest.\n";
        EXPECT_EQ(said.substr(said.find(invitation) + invitation.size()),
                  "The question is closed, and everything is as it was before.\n")
            << macro;
    }
}

} // namespace macro_tests
