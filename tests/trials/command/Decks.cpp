#include "host/command/Options.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/bytes/DamagedPresentation.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "tests/trials/command/Commands.h"
#include "tests/trials/histories/PresentationsIn.h"
#include "tests/trials/histories/SecondReader.h"
#include "tests/trials/histories/View.h"

#include <ostream>

namespace trials {

namespace {

using histories::SecondReader;
using simulator::PresentationPtr;

struct DecksRequest {
    std::filesystem::path folder;
    std::filesystem::path reader;
};

void rename(simulator::Shape& shape) {
    shape.name += u"!";
    for (const simulator::ShapePtr& item : shape.items()) {
        rename(*item);
    }
}

void rename(simulator::Slide& sheet) {
    for (const simulator::ShapePtr& shape : sheet.shapes()) {
        rename(*shape);
    }
    simulator::markChanged(sheet);
}

/// What is seen of a presentation whose shapes have been renamed, with their former names.
std::vector<std::string> nameBack(std::vector<std::string> lines) {
    for (std::string& line : lines) {
        if (line.ends_with('!')) {
            line.pop_back();
        } else if (line.starts_with("shape") && !line.ends_with('\t')) { // a name that it can tell
            line += " (not renamed)";
        }
    }
    return lines;
}

/// What is wrong with how a presentation is read and saved; empty where nothing is.
std::string faultOf(const std::filesystem::path& deck, SecondReader& reader, const std::filesystem::path& scratch,
                    bool& isOpened) {
    const std::vector<std::string> theirs = reader.view(deck);
    isOpened = theirs.empty() || !theirs.front().starts_with("refused");
    PresentationPtr read;
    try {
        read = simulator::powerpoint::readPresentation(simulator::files::wholeFile(deck).value());
    } catch (const simulator::DamagedPresentation& damage) {
        return isOpened ? std::string("ours:   refused, ") + damage.what() + '\n' : std::string();
    }
    if (!isOpened) {
        return {};
    }
    if (std::string difference = histories::differenceOf(histories::viewOf(*read), theirs); !difference.empty()) {
        return difference;
    }
    // As it is, and with every shape's record written anew.
    for (const bool isRenamed : {false, true}) {
        std::ofstream(scratch, std::ios::binary) << simulator::powerpoint::writePresentation(*read);
        const std::vector<std::string> seen = reader.view(scratch);
        const std::string difference = histories::differenceOf(isRenamed ? nameBack(seen) : seen, theirs);
        if (!difference.empty()) {
            return std::string(isRenamed ? "renamed and " : "") + "saved, as the second reader sees it\n" + difference;
        }
        for (const simulator::SlidePtr& master : read->masters) {
            rename(*master);
        }
        for (const simulator::SlidePtr& slide : read->slides()) {
            rename(*slide);
            if (slide->notesPage) {
                rename(*slide->notesPage);
            }
        }
    }
    return {};
}

ExitCode compareDecks(const DecksRequest& request, const CommandContext& at) {
    SecondReader reader(request.reader);
    const std::vector<std::filesystem::path> decks = histories::presentationsIn(request.folder);
    std::size_t opened = 0;
    std::size_t failed = 0;
    for (const std::filesystem::path& deck : decks) {
        bool isOpened = false;
        const std::string fault = faultOf(deck, reader, request.reader / "saved.ppt", isOpened);
        opened += isOpened ? 1U : 0U;
        if (!fault.empty()) {
            ++failed;
            at.out << deck.filename().string() << '\n' << fault;
        }
    }
    at.out << decks.size() << " presentations, " << opened << " of them open in the second reader\n"
           << decks.size() - failed << " passed, " << failed << " failed\n";
    return failed == 0 && opened != 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addDecks(CLI::App& command) {
    const auto request = std::make_shared<DecksRequest>();
    command.add_option("folder", request->folder, "Folder of presentations")->required()->check(CLI::ExistingDirectory);
    command.add_option("--reader", request->reader, "Folder of the second reader's pipes")->required();
    return [request](const CommandContext& at) { return compareDecks(*request, at); };
}

} // namespace trials
