#include "MergeOutput.h"

#include <filesystem>
#include <memory>
#include <system_error>

#include "Failure.h"
#include "Output.h"

namespace Lanedoc {

namespace {

/// A device or a pipe, as /dev/null or >(command): it takes the document as standard output would.
bool IsDevice(const std::string& output) {
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::status(output, error).type();
    return type == std::filesystem::file_type::character || type == std::filesystem::file_type::fifo;
}

[[noreturn]] void FailDump(const zelString& why) {
    throw Failure(ExitCode::OutputFailed, "lanedoc: error: the merged document cannot be written: " + Printable(why));
}

std::string TextOf(const MergeRun& run, Provenance provenance) {
    TypedDataContainer& tree = run.Tree();
    const std::unique_ptr<XMLDataWrapper> document(tree.BuildAndReturnDataContent());
    const zelString text = document == nullptr ? zelString() : document->GetXMLText();
    if (text.empty()) {
        FailDump(document == nullptr ? tree.GetLastError() : document->GetLastError());
    }
    return WithProvenance(text, run, provenance);
}

/// What was put in may go beyond the limits of a document: then it is told now, and not by who loads it.
void SaveText(const std::string& text, const std::string& output) {
    XMLDataWrapper document;
    if (!document.LoadXMLText(text, true)) {
        FailDump(document.GetLastError());
    }
    if (!document.SaveXMLFile(output.c_str())) {
        throw Failure(ExitCode::OutputFailed, WithSeverity(document.GetLastError(), "error", output));
    }
}

} // namespace

void WriteMerged(const MergeRun& run, Provenance provenance, const std::string& output) {
    if (output == "-") {
        WriteOutput(TextOf(run, provenance));
    } else if (IsDevice(output)) {
        const std::string text = TextOf(run, provenance); // before anything reaches it
        OutputFile device(output, OutputFile::Kind::Device);
        device.Write(text);
        device.Close();
    } else if (provenance != Provenance::None) {
        SaveText(TextOf(run, provenance), output);
    } else if (!run.Tree().SaveContents(output.c_str())) {
        throw Failure(ExitCode::OutputFailed, WithSeverity(run.Tree().GetLastError(), "error", output));
    }
}

} // namespace Lanedoc
