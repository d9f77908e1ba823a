#include "tests/trials/trace/Expected.h"

#include "automation/Text.h"
#include "simulator/process/CommandBarSet.h"

#include <algorithm>
#include <utility>

namespace trials::trace {

namespace {

using Arrival = Operation::Arrival;

constexpr const char* recent = R"("SOFTWARE\Microsoft\Office\11.0\Powerpoint\RecentFolderList")";
constexpr const char* folder = R"(C:\Formation\)";
constexpr const char* delivered = "Méthodologie.ppt";
constexpr int bars = 29;
constexpr int formattingBar = 3; ///< its place among the bars
constexpr int drawingBar = 6;
constexpr int taskPane = 17;

/// The files that a question works with, and the name under which each is delivered, if it is.
struct WorkingFile {
    std::string name;
    std::string source;
};

std::vector<WorkingFile> filesOf(std::int32_t question) {
    const WorkingFile first{delivered, "07305" + std::to_string(question) + ".ppt"};
    switch (question) {
    case 304: return {first, {"Plan exo 3.rtf", ""}, {"Plan exo 3.ppt", ""}};
    case 305: return {first, {"Conseils.doc", "17305305.doc"}};
    default: return {first};
    }
}

std::string bar(const std::string& index, const std::string& rest) {
    return "Application.CommandBars.Item(" + index + ")." + rest + '\n';
}

/// Something said of each of the bars that an exercise arranges.
std::string arrangedBars(std::initializer_list<const char*> members) {
    std::string lines;
    for (const char* const name : {R"("standard")", R"("formatting")", R"("Drawing")", R"("Task Pane")"}) {
        for (const char* const member : members) {
            lines += bar(name, member);
        }
    }
    return lines;
}

/// One of the four recent folders after the other is read or written: what is done with its key, and the value.
std::string folders(const std::string& access, const std::vector<std::pair<std::string, std::string>>& values) {
    std::string lines;
    for (const auto& [name, rest] : values) {
        lines += std::string("Registry.open(") + recent + ", 3)\nRegistry." + access + "(\"" + name + '"' + rest +
                 ")\nRegistry.close\n";
    }
    return lines;
}

/// What is read of each of the first presentations open.
std::string openOnes(int last, const std::string& member) {
    return upTo(last,
                [&](int i) { return "Application.Presentations.Item(" + std::to_string(i) + ")." + member + '\n'; });
}

class Trace {
public:
    Trace(std::int32_t question, const Operation& operation) : question_(question), operation_(operation) {}

    void initQuestion() {
        obtain();
        save();
        add(Phase::Dialogs, "Windows.previous((window))\n");
        if (operation_.isHeld) {
            close();
        }
        create();
        clean(0);
        for (const WorkingFile& file : filesOf(question_)) {
            if (!file.source.empty()) {
                add(Phase::Staging, std::string("Files.clearAttributes(\"") + folder + file.source +
                                        "\")\nFiles.rename(\"" + folder + file.source + "\", \"" + folder + file.name +
                                        "\")\n");
            }
        }
        arrange();
        add(Phase::Preparing, prepareOf(question_));
        add(Phase::Pointing, folders("set", {{"Default", R"(, "C:\Formation\", 13)"},
                                             {"MultimediaDir", R"(, "C:\Formation\", 0)"},
                                             {"PictureDir", R"(, "C:\Formation\", 0)"},
                                             {"TemplateDir", ", \"" + templates + "\", 0"}}));
        add(Phase::Startup, "Application.ShowStartupDialog = -1\n");
        bringToFront();
    }

    void testePoint(std::size_t slides, const std::string& check) {
        add(Phase::Looking, "Windows.isVisible((window))\n");
        ask();
        bringToFront();
        add(Phase::Examining, "Application.Presentations.Count\n" + openOnes(presentations(), "Name") +
                                  "Application.Presentations.Item(" + std::to_string(presentations()) +
                                  ").FullName\nApplication.ActivePresentation.FullName\n" + marksRead(slides));
        add(Phase::Checking, check);
    }

    void close() {
        add(Phase::Looking, "Windows.isVisible((window))\n");
        add(Phase::Dialogs, "Windows.previous((window))\n");
        hang();
        add(Phase::Closing, bar(R"("Task Pane")", "Visible") + "Application.ShowStartupDialog\n");
        ask();
        clean(1);
        putBarsBack();
        add(Phase::Restoring,
            folders("set", {{"Default", R"(, "C:\Documents and Settings\Eleve\Mes documents\", 47)"},
                            {"MultimediaDir", R"(, "C:\Documents and Settings\Eleve\Mes documents\Ma musique\", 58)"},
                            {"PictureDir", R"(, "C:\Documents and Settings\Eleve\Mes documents\Mes images\", 58)"},
                            {"TemplateDir",
                             R"(, "C:\Documents and Settings\Eleve\Application Data\Microsoft\Modèles\", 68)"}}));
    }

    void quit() {
        close();
        add(Phase::LookingEnd, "Windows.isVisible((window))\n");
        if (operation_.arrival == Arrival::Started) {
            hang();
            add(Phase::Ending, "Application.Quit\n");
        }
    }

    [[nodiscard]] std::vector<Line> lines() && { return std::move(lines_); }

private:
    void add(Phase phase, std::string_view text) {
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find('\n', start);
            lines_.push_back({phase, std::string(text.substr(start, end - start))});
            start = end + 1;
        }
    }

    /// Presentations open while the question is worked on.
    [[nodiscard]] int presentations() const { return operation_.arrival == Arrival::Brought ? 2 : 1; }

    void obtain() {
        add(Phase::Obtaining, std::string("Registry.create(") + recent + ")\nRegistry.close\n");
        if (operation_.arrival == Arrival::Started) {
            return add(Phase::Obtaining, R"(Servers.attach("PowerPoint.application.11")
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass")
Application.ShowStartupDialog
)");
        }
        add(Phase::Obtaining, std::string("Windows.className((window))\n") +
                                  (operation_.isHeld ? "Windows.isVisible((window))\n" : "Windows.isVisible(0)\n") +
                                  "Windows.isVisible((window))\n" +
                                  (operation_.isHeld ? "" : "Application.ShowStartupDialog\n"));
    }

    void save() {
        add(Phase::Saving, "Application.CommandBars.Count\n" +
                               upTo(bars, [](int i) { return bar(std::to_string(i), "Visible\nCommandBar.Name"); }) +
                               folders("query", {{"Default", ", 255"},
                                                 {"MultimediaDir", ", 255"},
                                                 {"PictureDir", ", 255"},
                                                 {"TemplateDir", ", 255"}}));
    }

    void create() {
        add(Phase::Creating, R"(Registry.open("SOFTWARE\Microsoft\Office\11.0\Common\General", 131097)
Registry.enumerate(0)
Registry.enumerate(1)
Registry.close
Registry.open("SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders", 3)
Registry.query("AppData", 255)
Registry.close
Registry.open("SOFTWARE\Microsoft\Office\11.0\Common\General", 3)
Registry.query("Templates", 255)
Registry.close
)"
                             "Files.makeDirectories(\"" +
                                 templates + "\")\n");
    }

    /// The working files are closed and deleted; `open` of them are open.
    void clean(int open) {
        for (const WorkingFile& file : filesOf(question_)) {
            const std::string path = "(\"" + std::string(folder) + file.name + "\")\n";
            if (file.name.ends_with(".ppt")) {
                const int others = presentations() - 1;
                std::string lines = "Application.Presentations.Count\n" + openOnes(others + open, "FullName");
                if (open != 0) {
                    const std::string own = "Application.Presentations.Item(" + std::to_string(others + open) + ").";
                    lines += own + "Saved = -1\n" + own + "Close\n";
                }
                add(Phase::Cleaning, lines);
                open = 0;
            }
            add(Phase::Cleaning, "Files.clearAttributes" + path + "Files.remove" + path);
        }
    }

    void arrange() {
        const auto show = [](const std::string& name, int position) {
            return bar(name, "Visible = False") + bar(name, "Position = " + std::to_string(position)) +
                   bar(name, "Visible = True");
        };
        const std::string drawing = R"("Drawing")";
        const std::string pane = R"("Task Pane")";
        add(Phase::Layout, arrangedBars({"Enabled", "Position"}) + "Application.CommandBars.DisplayTooltips\n");
        for (const std::string name : {R"("standard")", R"("formatting")"}) {
            add(Phase::Arranging, bar(name, "Enabled = True") + show(name, 1));
        }
        add(Phase::Arranging, bar(drawing, "Enabled = True") + bar(drawing, "Visible") + bar(drawing, "Position") +
                                  show(drawing, 3) + bar(pane, "Enabled") + bar(pane, "Position = 2") +
                                  bar(pane, "Visible = False"));
        add(Phase::Tooltips, "Application.CommandBars.DisplayTooltips = True\n");
    }

    void hang() { add(Phase::Hanging, "Windows.isHung((window))\n"); }

    void ask() {
        hang();
        add(Phase::Asking, "Application.WindowState\nApplication.WindowState = 3\nApplication.WindowState = 3\n");
    }

    void bringToFront() {
        add(Phase::Fronting, "Windows.findWindow(\"PP11FrameClass\")\nApplication.WindowState = 3\n"
                             "Windows.isIconic((window))\nWindows.setForeground((window))\n");
    }

    /// By hand the learner has hidden the formatting bar, put the drawing bar at the top and switched the tooltips off.
    void putBarsBack() {
        const bool isArranged = operation_.arrival != Arrival::Fresh;
        const simulator::CommandBarSet installed;
        std::string lines = arrangedBars({"Position"});
        if (isArranged) {
            const std::string drawing = bar(R"("Drawing")", "Position");
            lines.insert(lines.find(drawing) + drawing.size(),
                         bar(R"("Drawing")", "Visible = False") + bar(R"("Drawing")", "Position = 1"));
        }
        for (int i = 1; i <= bars; ++i) {
            const bool isHidden = i == taskPane || (isArranged && i == drawingBar);
            const std::string name =
                '"' + automation::toUtf8(installed.bars[static_cast<std::size_t>(i - 1)].name) + '"';
            lines += bar(name, "Visible");
            lines += isHidden ? bar(name, "Visible = True") : "";
            lines += isArranged && i == formattingBar ? bar(name, "Visible = False") : "";
        }
        lines += arrangedBars({"Enabled"}) + "Application.CommandBars.DisplayTooltips\n";
        add(Phase::Returning, lines + (isArranged ? "Application.CommandBars.DisplayTooltips = False\n" : ""));
    }

    const std::string templates = R"(c:\documents and settings\eleve\application data\Microsoft\modèles\ZOR Modèles\)";
    std::int32_t question_;
    Operation operation_;
    std::vector<Line> lines_;
};

} // namespace

std::string Operation::display() const {
    return automation::toUtf8(nameOf(call)) + (arrival == Arrival::Started ? " (PowerPoint started)" : "") +
           (isHeld ? " (a question held)" : "");
}

std::vector<Line> expectedTrace(std::int32_t question, const Operation& operation) {
    Trace trace(question, operation);
    switch (operation.call) {
    case HostCall::InitQuestion: trace.initQuestion(); break;
    case HostCall::TestePoint: trace.testePoint(slidesOf(question), checkOf(question)); break;
    case HostCall::Fermer: trace.close(); break;
    case HostCall::Quitter: trace.quit(); break;
    }
    return std::move(trace).lines();
}

std::vector<Line> expectedTrace(const Texts& texts) {
    Trace trace(306, {HostCall::TestePoint, Arrival::Fresh});
    trace.testePoint(texts.size(), checkOf(texts));
    return std::move(trace).lines();
}

std::string differenceOf(const std::vector<std::string>& lines, const std::vector<Line>& expected) {
    for (std::size_t i = 0; i < std::max(lines.size(), expected.size()); ++i) {
        const std::string line = i < lines.size() ? lines[i] : "nothing";
        const std::string wanted = i < expected.size() ? expected[i].text : "nothing";
        if (line != wanted) {
            return "line " + std::to_string(i + 1) + " of the trace is " + line + ", and not " + wanted;
        }
    }
    return {};
}

} // namespace trials::trace
