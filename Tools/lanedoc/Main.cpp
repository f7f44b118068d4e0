#include <csignal>
#include <exception>
#include <map>
#include <sstream>

#include "Commands.h"
#include "LimitOption.h"

namespace Lanedoc {

namespace {

constexpr const char* footer = R"(Examples:
  lanedoc merge StateProcessingRoot.xml Coupons=coupons.xml -o merged.xml --summary
  lanedoc explain StateProcessingRoot.xml coupons.xml night.xml --path 'StateTable/State[Name=Scan]/BaseState'
  lanedoc show StateProcessingRoot.xml 'StateTable/State[Name=Scan]'
  lanedoc get StateProcessingRoot.xml StateTable/InitialState
  lanedoc set StateProcessingRoot.xml StateTable/InitialState=Attract --in-place --diff
  lanedoc model CommConfig
  lanedoc check *.xml

Paths name fields below the root, joined by "/". An entry of a list is State[Name=Idle], by its key, or State[3],
counted from 1. A key with "]", "/" or a double quote stands in double quotes, doubled inside. FILE may be "-" for
standard input.

Exit codes:
  0  done                       3  bad input: unreadable, not well-formed, unknown root
  1  the answer is no           4  merge refused
  2  wrong use                  5  output failed                70  a bug in lanedoc)";

void Describe(CLI::App& tool, Request& request) {
    tool.name("lanedoc");
    tool.description("Reads, queries, changes and merges the XML documents of a self-checkout lane.");
    tool.footer(footer);
    tool.set_version_flag("--version", "lanedoc " FRAMEWORK_VERSION, "Print the version and exit");
    tool.set_help_flag("-h,--help", "Print this help and exit");
    const std::map<std::string, ColorMode> modes = {
        {"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}};
    tool.add_option("--color", request.color, "auto (default: on a terminal, unless NO_COLOR is set), always or never")
        ->type_name("WHEN")
        ->transform(CLI::CheckedTransformer(modes).description(""));
    AddLimitOption(tool);
    tool.require_subcommand(1);
    tool.fallthrough();
    AddMergeCommand(tool, request);
    AddPlanCommand(tool, request);
    AddExplainCommand(tool, request);
    AddBlameCommand(tool, request);
    AddShowCommand(tool, request);
    AddGetCommand(tool, request);
    AddSetCommand(tool, request);
    AddModelCommand(tool, request);
    AddCheckCommand(tool, request);
    AddHelpCommand(tool, request);
}

ExitCode Run(int argc, char** argv) {
    CLI::App tool;
    Request request;
    Describe(tool, request);
    try {
        tool.parse(argc, argv);
    } catch (const CLI::ParseError& end) { // also help and version, which end the parsing
        std::ostringstream out;
        std::ostringstream errors;
        if (tool.exit(end, out, errors) == 0) {
            WriteOutput(out.str());
            return ExitCode::Done;
        }
        throw Failure(ExitCode::WrongUse, std::string("lanedoc: error: ") + Printable(end.what()) +
                                              "\nRun lanedoc --help, or lanedoc COMMAND --help, for what it takes.");
    }
    return request.run();
}

ExitCode RunGuarded(int argc, char** argv) {
    try {
        const ExitCode code = Run(argc, argv);
        CloseOutput();
        return code;
    } catch (const Failure& failure) {
        if (*failure.what() != '\0') {
            Say(failure.what());
        }
        return failure.Code();
    } catch (const std::exception& error) {
        Say(std::string("lanedoc: bug: ") + Printable(error.what()) + "; please report it with the command line");
    } catch (...) {
        Say("lanedoc: bug: unknown exception; please report it with the command line");
    }
    return ExitCode::Bug;
}

} // namespace

} // namespace Lanedoc

int main(int argc, char** argv) {
    // A reader that goes away is an error of writing like any other.
    std::signal(SIGPIPE, SIG_IGN);
    return static_cast<int>(Lanedoc::RunGuarded(argc, argv));
}
