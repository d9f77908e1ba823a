#include "simulator/files/text/StyleRuns.h"

#include <algorithm>

namespace simulator::text {

namespace {

std::vector<StyleRun> readRuns(files::ByteReader& in, std::size_t length, bool ofParagraphs) {
    std::vector<StyleRun> runs;
    std::size_t covered = 0;
    while (covered < length && in.left() != 0) {
        StyleRun run;
        const bool isSound = asFarAsSound([&] {
            run.length = std::min<std::size_t>(in.read<std::uint32_t>(), length - covered);
            run.level = ofParagraphs ? in.read<std::uint16_t>() : std::uint16_t{0};
            run.exception =
                ofParagraphs ? TextException::read(in, paragraph::fields) : TextException::read(in, character::fields);
        });
        if (!isSound) {
            in.skip(in.left());
            break;
        }
        covered += run.length;
        if (run.length != 0) {
            runs.push_back(std::move(run));
        }
    }
    if (covered < length) {
        runs.push_back({length - covered, 0, {}});
    }
    return runs;
}

} // namespace

StyleRuns StyleRuns::plain(std::size_t length) {
    return {{{length, 0, {}}}, {{length, 0, {}}}};
}

StyleRuns StyleRuns::read(std::string_view data, std::size_t length) {
    files::ByteReader in(data, "the style record of a text");
    StyleRuns runs;
    runs.paragraphs = readRuns(in, length, true);
    runs.characters = readRuns(in, length, false);
    return runs;
}

std::string StyleRuns::bytes() const {
    files::ByteWriter out;
    for (const StyleRun& run : paragraphs) {
        out.write<std::uint32_t>(static_cast<std::uint32_t>(run.length)).write<std::uint16_t>(run.level);
        run.exception.write(out, paragraph::fields);
    }
    for (const StyleRun& run : characters) {
        out.write<std::uint32_t>(static_cast<std::uint32_t>(run.length));
        run.exception.write(out, character::fields);
    }
    return out.take();
}

void StyleRuns::append(std::vector<StyleRun>& runs, StyleRun run) {
    if (!runs.empty() && runs.back().level == run.level && runs.back().exception == run.exception) {
        runs.back().length += run.length;
    } else {
        runs.push_back(std::move(run));
    }
}

} // namespace simulator::text
