#include "host/command/Commands.h"
#include "host/command/LiveCheck.h"
#include "host/command/Options.h"
#include "host/language/Folding.h"
#include "host/language/Words.h"
#include "host/reason/Explainer.h"
#include "host/reason/Told.h"
#include "host/run/TrainingHost.h"
#include "host/world/MachineFault.h"
#include "host/world/Members.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <functional>
#include <iomanip>
#include <map>
#include <ostream>

namespace host {

namespace {

namespace fs = std::filesystem;

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

/// Raises std::runtime_error, in words for the teacher.
ObjectPtr opened(const LateBound& application, const std::u16string& path, const fs::path& file) {
    try {
        return memberOf(application, u"Presentations").call(u"Open", path).to<ObjectPtr>();
    } catch (const automation::Error&) {
        throw std::runtime_error(file.string() + " cannot be opened: it is damaged, or no presentation of PowerPoint " +
                                 "97 to 2003; ask the learner to save it again");
    }
}

/// Opens the learner's file as the working presentation. The one that the module has opened moves aside and stays open:
/// what the question has kept of it lives on.
void exchange(World& world, const fs::path& file, std::int32_t question) {
    const Bytes content = contentsOf(file);
    const LateBound application(world.powerPoint().application());
    const LateBound prepared = memberOf(application, u"ActivePresentation");
    const auto path = prepared.get(u"FullName").to<std::u16string>();
    prepared.call(u"SaveAs", world.hostFolder() + u"delivered.ppt");
    world.files().write(path, content);
    const ObjectPtr saved = opened(application, path, file);
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(question) && check.assume != nullptr) {
            check.assume(world, saved);
        }
    }
}

struct RecheckRequest {
    std::vector<std::string> files; ///< working presentations that learners have saved, or folders of them
    std::int32_t question = 0;
    std::string course; ///< folder of the course's own files; empty for those that the scenario file builds
    bool asJson = false;
};

/// What became of one presentation.
struct Judged {
    std::string name;
    std::optional<Reading> reading;
    std::string trouble; ///< why there is no reading

    [[nodiscard]] bool isGood() const {
        return reading && !reading->error && !reading->erreurGenerale &&
               (reading->causeErreur.empty() || reading->bravoNuance);
    }
    /// Trouble mostly names the file itself.
    [[nodiscard]] bool isNamed() const { return !reading && trouble.starts_with(name); }
};

/// The verdict of the module on the file.
Reading judge(World& world, const Course& course, std::int32_t question, const fs::path& file, Witness& witness) {
    TrainingHost host(world, course, question, witness);
    host.initQuestion(question, world.hostFolder());
    try {
        exchange(world, file, question);
    } catch (const std::exception&) {
        host.finish();
        throw;
    }
    Reading reading = host.check();
    host.finish();
    return reading;
}

/// The presentations meant, each once: those named, and those below the folders named, by name.
std::vector<fs::path> presentations(const std::vector<std::string>& named) {
    std::vector<fs::path> all;
    for (const std::string& name : named) {
        const fs::path path = pathOf(name);
        if (!fs::is_directory(path)) {
            addOnce(all, path);
            continue;
        }
        std::vector<fs::path> inside;
        for (const auto& entry : fs::recursive_directory_iterator(path)) {
            const bool isLock =
                entry.path().filename().u16string().starts_with(u"~$"); // of a PowerPoint that has it open
            if (entry.is_regular_file() && !isLock &&
                automation::equalIgnoringCase(entry.path().extension().u16string(), u".ppt")) {
                inside.push_back(entry.path());
            }
        }
        if (inside.empty()) {
            throw UsageError("no presentation (.ppt) below " + name);
        }
        std::sort(inside.begin(), inside.end());
        std::for_each(inside.begin(), inside.end(), [&](const fs::path& each) { addOnce(all, each); });
    }
    return all;
}

Judged judgedOf(const fs::path& path, const Course& course, const language::ScenarioFile& file,
                const CommandContext& at) {
    Judged judged{toUtf8(path.u16string()), {}, {}};
    reason::Explainer explainer(file.contract);
    const WorldPtr world = at.worlds.embedded(explainer.observer());
    try {
        judged.reading = judge(*world, course, file.question, path, explainer);
    } catch (const MachineFault&) {
        throw;
    } catch (const automation::Error& error) {
        judged.trouble = inWords(error);
    } catch (const std::exception& error) {
        judged.trouble = error.what();
    }
    return judged;
}

/// How many came to each verdict, those of most first.
void printTable(const std::vector<Judged>& all, std::ostream& out) {
    std::map<std::string, std::size_t> counts;
    for (const Judged& judged : all) {
        ++counts[judged.reading ? judged.reading->display() : "not judged"];
    }
    std::vector<std::pair<std::string, std::size_t>> rows(counts.begin(), counts.end());
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    out << '\n' << counted(all.size(), "presentation") << '\n';
    for (const auto& [verdict, count] : rows) {
        out << std::setw(6) << count << "  " << verdict << '\n';
    }
}

nlohmann::ordered_json toJson(const Judged& judged) {
    nlohmann::ordered_json object{{"file", judged.name}, {"passed", judged.isGood()}};
    if (!judged.reading) {
        object["trouble"] = judged.trouble;
    } else {
        object["verdict"] = judged.reading->display();
        object["ErreurGenerale"] = judged.reading->erreurGenerale;
        object["CauseErreur"] = toUtf8(judged.reading->causeErreur);
        object["BravoNuance"] = judged.reading->bravoNuance;
        object["meaning"] = judged.reading->meaning;
        object["reason"] = judged.reading->reason;
        object["Complement"] = nlohmann::ordered_json::array();
        for (const std::u16string& text : judged.reading->complement) {
            object["Complement"].push_back(toUtf8(text));
        }
    }
    return object;
}

void printJson(const std::vector<Judged>& all, std::int32_t question, const std::string& shortfall, std::ostream& out) {
    nlohmann::ordered_json object{{"question", question}};
    if (!shortfall.empty()) {
        object["shortfall"] = shortfall;
    }
    object["presentations"] = nlohmann::ordered_json::array();
    std::transform(all.begin(), all.end(), std::back_inserter(object["presentations"]),
                   [](const Judged& judged) { return toJson(judged); });
    object["notChecked"] = nlohmann::ordered_json::array();
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(question)) {
            object["notChecked"].push_back(check.what);
        }
    }
    unfolded(out) << object.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

void printAll(const std::vector<Judged>& all, std::int32_t question, const CommandContext& at) {
    for (const Judged& judged : all) {
        const std::string head = all.size() == 1 ? "Question " + std::to_string(question) : judged.name;
        const std::string told = judged.reading ? judged.reading->display() : judged.trouble;
        at.out << (judged.isNamed() ? "" : head + ": ") << (judged.isGood() ? at.ink.good(told) : at.ink.bad(told))
               << '\n';
        const Reading reading = judged.reading.value_or(Reading());
        for (const std::string& line : {reason::sentence(reading.meaning), reading.reason}) {
            at.out << (line.empty() || all.size() == 1 ? "" : "    ") << line << (line.empty() ? "" : "\n");
        }
    }
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(question)) {
            at.out << "Not checked, a file does not tell: " << check.what << '\n';
        }
    }
    if (all.size() > 1) {
        printTable(all, at.out);
    }
}

/// Judges saved working presentations and names the checks that a file does not allow.
ExitCode recheck(const RecheckRequest& request, const CommandContext& at) {
    const language::ScenarioFile file = load(at.library.fileOf(request.question));
    const std::vector<fs::path> paths = presentations(request.files);
    const Course course = courseOf(file, request.course, at.worlds.embedded);
    const std::string shortfall = shortfallOf(course, file, at.worlds.embedded);
    if (!request.asJson) {
        at.out << shortfall;
    }
    std::vector<Judged> all;
    for (const fs::path& path : paths) {
        at.progress.at(path.string(), all.size() + 1, paths.size());
        all.push_back(judgedOf(path, course, file, at));
    }
    at.progress.clear();
    if (request.asJson) {
        printJson(all, request.question, shortfall, at.out);
    } else if (all.size() == 1 && !all.front().reading) {
        throw UsageError(all.front().trouble);
    } else {
        printAll(all, request.question, at);
    }
    if (std::any_of(all.begin(), all.end(), [](const Judged& judged) { return !judged.reading; })) {
        return ExitCode::WrongUsage;
    }
    const bool areGood = shortfall.empty() && std::all_of(all.begin(), all.end(), std::mem_fn(&Judged::isGood));
    return areGood ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addRecheck(CLI::App& command) {
    const auto request = std::make_shared<RecheckRequest>();
    command.add_option("files", request->files, "Presentations that learners have saved, folders")->required();
    addQuestion(command, "--question", request->question)->required();
    command.add_flag("--json", request->asJson, "Print one JSON object");
    addCourse(command, request->course);
    return [request](const CommandContext& at) { return recheck(*request, at); };
}

} // namespace host
