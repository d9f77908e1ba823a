#include "host/try/Conversation.h"

#include "automation/MemberTable.h"
#include "automation/Text.h"
#include "host/language/Folding.h"
#include "host/language/Likeness.h"
#include "host/language/Parser.h"
#include "host/language/StatementReader.h"
#include "host/language/Words.h"
#include "host/language/Writer.h"
#include "host/picture/Exposure.h"
#include "host/try/Completion.h"
#include "host/try/Contents.h"
#include "host/try/Destination.h"
#include "host/try/Immediate.h"
#include "host/try/ScenarioAdding.h"
#include "host/try/Trouble.h"
#include "host/try/Verdict.h"
#include "host/world/OutputFile.h"
#include "host/world/RealFile.h"

#include <iomanip>
#include <ostream>

namespace host {

namespace {

namespace fs = std::filesystem;

using automation::fromUtf8;
using automation::toUtf8;
using language::Statement;

/// A file that a verb writes, which replaces one that is there already only where it ends with an exclamation mark.
OutputFile outputOf(const std::string& verb, const std::string& name) {
    return {name, verb.ends_with('!') ? std::optional(std::string()) : std::nullopt, "say " + verb + "! to replace it"};
}

/// Other programs take a file for what its name ends with.
void requireExtension(const std::string& verb, const std::string& file, const std::string& extension) {
    fs::path path = pathOf(file);
    if (!automation::equalIgnoringCase(path.extension().u16string(), fromUtf8("." + extension))) {
        throw std::runtime_error("The file is of the kind " + extension + ": say " + verb + " " +
                                 toUtf8(path.replace_extension(extension).u16string()));
    }
}

} // namespace

const std::vector<Conversation::Verb>& Conversation::verbs() {
    static const std::vector<Verb> all{
        {"Set", "s = ActivePresentation.Slides(1)", "moves are stated as in a macro", nullptr},
        {"s.Shapes(2).Left", "= 20", "", nullptr},
        {"?s.Name", "", "prints a value, or what an object is", nullptr},
        {"members", "s", "lists the members of an object", &Conversation::members, Rest::Something},
        {"show", "", "lists slides and shapes with all that shows", &Conversation::show},
        {"check", "", "asks for the verdict, and explains it", &Conversation::check, Rest::Anything},
        {"check", "success", "the same, and whether it is this one", nullptr},
        {"undo", "", "takes back the last move", &Conversation::undo},
        {"reset", "", "takes back all moves", &Conversation::reset},
        {"again", "", "makes the moves once more, for a check", &Conversation::again},
        {"save", "mine.scn \"a title\"", "writes moves and checks as a scenario", &Conversation::save, Rest::Something},
        {"append", "mine.scn \"a title\"", "adds the scenario to those of a file", &Conversation::append,
         Rest::Something},
        {"export", "mine.ppt", "writes the presentation as it is now", &Conversation::exportTo, Rest::Something},
        {"save!", "mine.scn", "replaces a file; so do export!, picture!", &Conversation::saveOver, Rest::Something},
        {"export!", "mine.ppt", "", &Conversation::exportOver, Rest::Something},
        {"picture", "mine.svg", "writes a picture of the slide shown", &Conversation::picture, Rest::Something},
        {"picture!", "mine.svg", "", &Conversation::pictureOver, Rest::Something},
        {"help", "", "says this", &Conversation::help},
        {"quit", "", "closes the question; so does exit", &Conversation::quit},
        {"exit", "", "", &Conversation::quit},
    };
    return all;
}

Conversation::Conversation(const language::ScenarioFile& file, Course course, WorldMaker makeWorld, LineReader& lines,
                           std::ostream& out, std::vector<fs::path> inputs)
    : file_(file), makeWorld_(std::move(makeWorld)), lines_(lines), out_(out), course_(std::move(course)),
      inputs_(std::move(inputs)) {}

bool Conversation::run() {
    const std::u16string subject = file_.subject();
    out_ << toUtf8(subject.empty() ? u"Question " + automation::decimal(file_.question) : subject) << '\n';
    try {
        begin();
        printContents(open_->world().powerPoint().application(), out_);
    } catch (const automation::Error& error) {
        out_ << "The question cannot be prepared: " << inWords(error) << '\n';
        static_cast<void>(close());
        return false;
    }
    out_ << "State the learner's moves as a macro would, and check; help tells the rest.\n";
    lines_.completeBy([this](const std::string& line) { return completions(line); });
    const std::string prompt = std::to_string(file_.question) + "> ";
    while (!isOver_) {
        const std::optional<std::string> line = lines_.read(prompt);
        if (line) {
            obey(trimmed(*line));
        } else {
            leave();
        }
        out_.flush();
    }
    return close();
}

void Conversation::begin() {
    if (open_) {
        static_cast<void>(open_->close()); // what is amiss is of moves that are taken back
    }
    open_.reset(); // where PowerPoint is the one on the desktop, there cannot be two
    isOver_ = true;
    open_.emplace(file_, course_, makeWorld_);
    isOver_ = false;
}

bool Conversation::close() {
    if (!open_) {
        return false;
    }
    const std::vector<std::string> findings = open_->close();
    open_.reset();
    for (const std::string& finding : findings) {
        out_ << "Not as it was before: " << finding << '\n';
    }
    out_ << (findings.empty() ? "The question is closed, and everything is as it was before.\n" : "");
    return findings.empty();
}

const Conversation::Verb* Conversation::verbOf(const std::string& word) {
    const auto& all = verbs();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Verb& each) {
        return each.act != nullptr && automation::equalIgnoringCase(fromUtf8(each.name), fromUtf8(word));
    });
    return found == all.end() ? nullptr : &*found;
}

void Conversation::obey(const std::string& line) {
    const std::size_t stop = std::min(line.find_first_of(" \t\""), line.size());
    const std::string rest = trimmed(line.substr(stop));
    // `Exit Sub` is of a macro.
    const Verb* const named = rest.starts_with('=') ? nullptr : verbOf(line.substr(0, stop));
    const Verb* const verb = named != nullptr && named->name == "exit" && !rest.empty() ? nullptr : named;
    try {
        if (line.starts_with('?')) {
            print(" " + line.substr(1)); // columns count in the line
        } else if (verb != nullptr && verb->takes == Rest::Something && rest.empty()) {
            out_ << "For example: " << verb->name << ' ' << verb->rest << '\n';
        } else if (verb != nullptr && verb->takes == Rest::Nothing && !rest.empty()) {
            out_ << "Nothing stands behind " << verb->name << '\n';
        } else if (verb != nullptr) {
            (this->*verb->act)(rest);
        } else if (!line.empty() && line.front() != '#' && line.front() != '\'') {
            perform(line);
        }
        isWarned_ = isWarned_ && verb != nullptr && verb->act == &Conversation::quit;
    } catch (const language::SyntaxError& error) {
        out_ << explained(error) << '\n';
    } catch (const language::Failure& failure) {
        out_ << explained(failure) << '\n';
        suggestVerb(line.substr(0, stop), failure);
    } catch (const std::exception& error) {
        out_ << error.what() << '\n';
    }
}

void Conversation::suggestVerb(const std::string& word, const language::Failure& failure) {
    std::vector<std::u16string> names;
    for (const Verb& verb : verbs()) {
        names.push_back(verb.act == nullptr ? std::u16string() : fromUtf8(verb.name));
    }
    const std::u16string like = language::suggestion(fromUtf8(word), {names.begin(), names.end()});
    if (failure.remark.place.column == 1 && !like.empty()) {
        out_ << "Of what this conversation takes" << toUtf8(like) << " help tells all.\n";
    }
}

void Conversation::perform(const std::string& line) {
    language::MacroReader reader;
    std::vector<Statement> statements = reader.take(fromUtf8(line));
    while (reader.isOpen()) {
        const std::optional<std::string> more = lines_.read("   > ");
        if (!more) {
            return;
        }
        for (Statement& statement : reader.take(fromUtf8(*more))) {
            statements.push_back(std::move(statement));
        }
    }
    for (Statement& statement : statements) {
        if (const auto* const wanted = std::get_if<language::Check>(&statement.node)) {
            const Expectation expected = file_.contract.meantBy(wanted->expected);
            judge(&expected);
        } else {
            open_->perform(std::move(statement));
        }
    }
}

void Conversation::print(const std::string& expression) {
    unfolded(out_) << printed(open_->evaluate(language::parseExpression(fromUtf8(expression)))) << '\n';
}

void Conversation::judge(const Expectation* expected) {
    const bool isFirst = open_->checks() == 0;
    const Reading reading = open_->check();
    explain(reading, file_, out_);
    if (expected != nullptr) {
        out_ << (expected->matches(reading) ? "That is what was expected.\n"
                                            : "Expected was " + expected->display() + ".\n");
    }
    if (!isFirst && reading.erreurGenerale && reading.causeErreur == u"D") {
        out_ << "To have the same moves judged afresh, say again and then check.\n";
    }
}

void Conversation::check(const std::string& expected) {
    if (expected.empty()) {
        judge(nullptr);
    } else {
        perform("check " + expected);
    }
}

void Conversation::remake(std::vector<Statement> steps) {
    std::vector<std::u16string> texts;
    std::transform(steps.begin(), steps.end(), std::back_inserter(texts),
                   [](const Statement& statement) { return statement.text; });
    std::size_t made = 0;
    try {
        begin();
        for (Statement& step : steps) {
            if (std::holds_alternative<language::Check>(step.node)) {
                static_cast<void>(open_->check());
            } else {
                open_->perform(std::move(step));
            }
            ++made;
        }
    } catch (...) {
        out_ << "These could not be made once more:\n";
        for (; made < texts.size(); ++made) {
            unfolded(out_) << "  " << toUtf8(texts[made]) << '\n';
        }
        throw;
    }
}

void Conversation::undo(const std::string& /*rest*/) {
    if (open_->moves() == 0) {
        out_ << "There is no move to take back.\n";
        return;
    }
    const std::string last = toUtf8(open_->lastMove());
    remake(open_->takeAllBeforeLastMove());
    unfolded(out_) << "Taken back: " << last << '\n';
}

void Conversation::reset(const std::string& /*rest*/) {
    const std::size_t made = open_->moves();
    begin();
    out_ << "The question is prepared anew, without the " << counted(made, "move") << " made.\n";
}

void Conversation::again(const std::string& /*rest*/) {
    const std::size_t made = open_->moves();
    remake(open_->takeMoves());
    out_ << "The question is prepared anew, and " << counted(made, "move") << " made once more.\n";
}

void Conversation::show(const std::string& /*rest*/) {
    printDetails(open_->world().powerPoint().application(), out_);
}

void Conversation::members(const std::string& expression) {
    const auto object = open_->evaluate(language::parseExpression(fromUtf8(expression))).to<automation::ObjectPtr>();
    const auto* const published = dynamic_cast<const automation::Published*>(object.get());
    if (published == nullptr) {
        throw std::runtime_error("Only objects of the embedded PowerPoint list their members; this is " +
                                 printed(object));
    }
    out_ << printed(object) << '\n';
    std::string row;
    for (const automation::Member& member : published->members().members()) {
        const std::string name = toUtf8(member.name.text()) + (member.isMethod ? "()" : "");
        if (row.size() + name.size() > 76) {
            out_ << "  " << std::exchange(row, {}) << '\n';
        }
        row += (row.empty() ? "" : " ") + name;
    }
    out_ << "  " << row << '\n';
}

void Conversation::requireExpectation() const {
    if (!open_->expectsSomething()) {
        throw std::runtime_error("The scenario expects nothing yet: check, and it expects what the host reads");
    }
}

void Conversation::saveBy(const std::string& verb, const std::string& rest) {
    const Destination to(verb, rest);
    requireExpectation();
    const OutputFile output = outputOf(verb, to.file);
    output.requireNoneOf(inputs_);
    output.write(language::scenarioText(file_, to.title, open_->statements()));
    saved(to.title, to.file);
}

void Conversation::append(const std::string& rest) {
    const Destination to("append", rest);
    if (!fs::exists(pathOf(to.file))) {
        return saveBy("save", rest);
    }
    requireExpectation();
    addScenario(to.file, file_, to.title, open_->statements());
    saved(to.title, to.file);
}

void Conversation::saved(const std::u16string& title, const std::string& file) {
    saved_ = open_->statements();
    out_ << "Scenario \"" << toUtf8(title) << "\" is in " << file << ", with " << counted(open_->moves(), "move")
         << " and " << counted(open_->checks(), "check") << ".\n";
    if (!course_.isBuilt()) {
        out_ << "The moves were made on the course's own files: verify judges it there with --course, else on the "
                "presentation that the scenario file builds.\n";
    }
}

void Conversation::leave() {
    const bool isLost = open_->moves() != 0 && open_->statements() != saved_;
    isOver_ = !isLost || isWarned_ || !lines_.isTyped();
    isWarned_ = true;
    if (!isOver_) {
        out_ << counted(open_->moves(), "move") << " not saved: " << (open_->expectsSomething() ? "" : "check and ")
             << "save mine.scn keep" << (open_->expectsSomething() ? "s" : "")
             << " them; quit once more, and they go.\n";
    }
}

void Conversation::exportBy(const std::string& verb, const std::string& file) {
    requireExtension(verb, file, "ppt");
    const Bytes content = open_->presentation();
    const OutputFile output = outputOf(verb, file);
    output.requireNoneOf(inputs_);
    output.write(std::string(content.begin(), content.end()));
    out_ << "The presentation is in " << file << ".\n";
}

void Conversation::pictureBy(const std::string& verb, const std::string& file) {
    const Exposure exposure = expose(open_->world());
    const Picture* const picture = exposure.find(exposure.shown);
    if (picture == nullptr || picture->bytes.empty()) {
        throw std::runtime_error("No slide is to be seen");
    }
    requireExtension(verb, file, picture->extension);
    outputOf(verb, file).write(picture->bytes);
    out_ << "The picture of slide " << exposure.numberOf(exposure.shown) << " is in "
         << toUtf8(fs::absolute(pathOf(file)).u16string()) << ".\n";
}

void Conversation::help(const std::string& /*rest*/) {
    for (const Verb& verb : verbs()) {
        if (verb.what.empty() && verb.act != nullptr) {
            continue;
        }
        const std::string example = std::string(verb.name) + (verb.rest.empty() ? "" : " ") + std::string(verb.rest);
        out_ << "  " << std::left << std::setw(36) << example << (verb.what.empty() ? "" : "  ") << verb.what << '\n';
    }
}

std::vector<std::string> Conversation::completions(const std::string& line) {
    std::vector<std::string> words;
    for (const Verb& verb : verbs()) {
        if (verb.act != nullptr && !line.empty() &&
            automation::equalIgnoringCase(fromUtf8(verb.name.substr(0, line.size())), fromUtf8(line))) {
            words.emplace_back(verb.name);
        }
    }
    for (std::string& member : completionsOf(line, *open_)) {
        words.push_back(std::move(member));
    }
    return words;
}

} // namespace host
