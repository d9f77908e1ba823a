#include "simulator/win32/Options.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace simulator::standin {

namespace {

constexpr const char* purpose =
    "Stands in for PowerPoint 2003: the same object model, main window and dialogs, in a process of its own. Started "
    "without a switch it runs as if its user had started it.";

constexpr const char* hints = R"(Examples:
  powerpnt-standin /RegServer             registers it for programs of its own width
  powerpnt-standin /RegServer /View:64    registers it for 64-bit programs
  powerpnt-standin /Busy:5                the first five calls are refused

Registering never replaces a PowerPoint that is registered already. Exit codes: 0 good, 1 refused or failed, 2 wrong
usage.)";

constexpr int wrongUsage = 2;

} // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
    Options options;
    CLI::App app{purpose, "powerpnt-standin"};
    app.footer(hints);
    app.failure_message([](const CLI::App* /*app*/, const CLI::Error& error) {
        return "powerpnt-standin: " + std::string(error.what()) + "; powerpnt-standin --help lists the switches\n";
    });
    app.allow_windows_style_options();
    app.option_defaults()->ignore_case();
    bool registers = false;
    bool unregisters = false;
    app.add_flag("--RegServer", registers, "Register the server and end");
    app.add_flag("--UnregServer", unregisters, "Unregister the server and end");
    int view = 0;
    app.add_option("--View", view, "Register for programs of 32 or 64 bits")->check(CLI::IsMember({32, 64}));
    app.add_flag("--Embedding", options.isEmbedding, "Started by an automation client: stay invisible");
    std::string standby;
    app.add_option("--Standby", standby, "Wait unseen until a client creates PowerPoint; this event tells when it can");
    app.add_flag("--Hidden", options.isHidden, "Start invisible");
    app.add_flag("--Minimised", options.isMinimised, "Start minimised");
    app.add_option("--Slow", options.slowness, "Milliseconds that every call takes")->check(CLI::NonNegativeNumber);
    app.add_option("--Busy", options.refusals, "Number of calls refused at first")->check(CLI::NonNegativeNumber);
    app.add_option("--Die", options.deadlyCall, "Die at the n-th call")->check(CLI::PositiveNumber);
    try {
        // CLI11 wants the last argument first; COM says -Embedding, with one dash.
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        std::replace(reversed.begin(), reversed.end(), std::string("-Embedding"), std::string("--Embedding"));
        app.parse(reversed);
    } catch (const CLI::ParseError& error) {
        std::ostringstream text;
        const int code = app.exit(error, text, text);
        return {std::nullopt, text.str(), code == 0 ? 0 : wrongUsage};
    }
    options.task = registers ? Options::Task::Register : unregisters ? Options::Task::Unregister : Options::Task::Run;
    options.standbyEvent.assign(standby.begin(), standby.end());
    options.view = view == 32 ? View::Bits32 : view == 64 ? View::Bits64 : View::Own;
    return {options, {}, 0};
}

} // namespace simulator::standin
