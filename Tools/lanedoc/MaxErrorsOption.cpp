#include "MaxErrorsOption.h"

#include <string>

#include "Messages.h"

namespace Lanedoc {

void AddMaxErrorsOption(CLI::App& command, std::size_t& most) {
    command
        .add_option("--max-errors", most,
                    "Show the first N errors and the first N warnings and count the others, " +
                        std::to_string(mostMessages) + " when it is left out; 0 shows all")
        ->type_name("N")
        ->check(CLI::NonNegativeNumber.description(""));
}

} // namespace Lanedoc
