#include "simulator/files/text/StyleRuns.h"

#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::text {

namespace {

/// What a run of paragraphs says of itself.
enum class Said : std::uint8_t { Level, LevelAndLooks, Looks };

std::vector<StyleRun> readRuns(files::ByteReader& in, std::size_t length, Said said) {
    std::vector<StyleRun> runs;
    std::size_t covered = 0;
    while (covered < length && in.left() != 0) {
        StyleRun run;
        const bool isSound = asFarAsSound([&] {
            run.length = std::min<std::size_t>(in.read<std::uint32_t>(), length - covered);
            run.level = said == Said::Looks ? std::uint16_t{0} : in.read<std::uint16_t>();
            if (said == Said::LevelAndLooks) {
                run.exception = TextException::read(in, paragraph::fields);
            } else if (said == Said::Looks) {
                run.exception = TextException::read(in, character::fields);
            }
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
    runs.paragraphs = readRuns(in, length, Said::LevelAndLooks);
    runs.characters = readRuns(in, length, Said::Looks);
    return runs;
}

StyleRuns StyleRuns::of(const std::vector<records::Record>& block, std::size_t length) {
    StyleRuns runs = plain(length);
    for (const records::Record& each : block) {
        if (each.is(records::type::StyleTextPropAtom)) {
            return read(each.data, length);
        }
        if (each.is(records::type::MasterTextPropAtom)) {
            files::ByteReader in(each.data, "the levels of a master's text");
            runs.paragraphs = readRuns(in, length, Said::Level);
        }
    }
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
