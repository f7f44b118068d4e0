#include "FormatOption.h"

namespace Lanedoc {

void AddFormatOption(CLI::App& command, std::string& format) {
    command.add_option("--format", format, "text (default) or json")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"text", "json"}).description(""));
}

} // namespace Lanedoc
