#include "host/language/Folding.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

namespace folding_tests {

TEST(FoldedStream, FoldsLinesToTheWidthAndBreaksNoWord) {
    const std::vector<std::array<std::string, 2>> lines = {
        {"as wide as twenty is", "as wide as twenty is"},
        {"as wide as twenty are", "as wide as twenty\n  are"},
        {"été créé là, où l'été", "été créé là, où\n  l'été"},
        {"    two   blanks further in", "    two   blanks\n      further in"},
        {"/a/path/that/is/wider/than/all of it", "/a/path/that/is/wider/than/all\n  of it"},
        {"of (\"a title\") and \"an other\".", "of (\"a title\") and\n  \"an other\"."},
        {"of \"a title wider than lines\"", "of \"a title wider\n  than lines\""},
        {"an inch is 1\" and no more", "an inch is 1\" and no\n  more"},
        {"\x1b[32m7 passed\x1b[0m, \x1b[31m1 failed\x1b[0m", "\x1b[32m7 passed\x1b[0m, \x1b[31m1 failed\x1b[0m"},
    };
    for (const auto& [line, shown] : lines) {
        std::ostringstream out;
        host::FoldedStream(out, 20) << line << '\n' << std::flush;
        EXPECT_EQ(out.str(), shown + '\n');
        host::FoldedStream piped(out, 0);
        piped << line << ';';
        host::FoldedStream terminal(out, 20);
        terminal << "x ";
        host::unfolded(terminal) << line;
        EXPECT_EQ(out.str(), shown + '\n' + line + ";x " + line);
    }
}

} // namespace folding_tests
