#include <algorithm>
#include <memory>

#include <unistd.h>

#include "Commands.h"
#include "NearestName.h"
#include "Source.h"
#include "TreeNode.h"
#include "UnifiedDiff.h"

namespace Lanedoc {

namespace {

struct SetOptions {
    std::string file;
    std::vector<std::string> assignments;
    bool inPlace = false;
    bool diff = false;
    std::size_t context = 3;
};

Failure Wrong(const std::string& text) {
    return {ExitCode::WrongUse, "lanedoc: error: " + text};
}

struct Assignment {
    std::string path;
    std::string value;
};

/// Parts a path from its value at the first "=" outside brackets, where a key has another one.
Assignment ReadAssignment(const std::string& text) {
    bool inBrackets = false;
    bool inQuotes = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            inQuotes = inBrackets && !inQuotes; // a doubled one ends the quotes and begins them again
        } else if (!inQuotes && text[i] == '=' && !inBrackets) {
            return {text.substr(0, i), text.substr(i + 1)};
        } else if (!inQuotes && (text[i] == '[' || text[i] == ']')) {
            inBrackets = text[i] == '[';
        }
    }
    throw Wrong("in " + Quoted(text) + ": expected PATH=VALUE, found " +
                (inBrackets ? "no end of the brackets or quotes" : "no \"=\" behind the path"));
}

/// A list of texts as a whole, or a list of containers.
[[noreturn]] void RefuseList(const TreeNode& node) {
    if (node.field->Length(*node.object) == 0) {
        throw Wrong(Printable(node.path) + " is a list without entries; set changes those that are there");
    }
    if (HoldsContainers(*node.field)) {
        RefuseContainerList(node);
    }
    throw Wrong(Printable(node.path) + " is a list; name an entry, as in " + Printable(FirstEntryPath(node)));
}

std::string ExpectedWord(const CatalogField& field, const std::string& value) {
    const std::vector<zelString> known = field.Words();
    const std::vector<std::string> words(known.begin(), known.end());
    const std::vector<std::string> nearest = NearestNames(value, words);
    return "expected a word of " + std::string(field.ClassName()) + "; " +
           (nearest.empty() ? "they are " + JoinNames(words) : DidYouMean(nearest));
}

[[noreturn]] void RefuseValue(const TreeNode& node, const std::string& value) {
    std::string expected;
    switch (node.field->GetValue()) {
    case CatalogField::Bool:
        expected = "expected true or false";
        break;
    case CatalogField::Int:
        expected = "expected a whole number in plain digits, from -2147483648 to 2147483647";
        break;
    case CatalogField::Double:
        expected = "expected a number";
        break;
    case CatalogField::Enumeration:
        expected = ExpectedWord(*node.field, value);
        break;
    case CatalogField::String:
    case CatalogField::Container:
        expected = "expected a text in UTF-8 without the characters that XML forbids";
        break;
    }
    constexpr std::size_t shownOfValue = 80;
    throw Wrong(Printable(node.path) + " cannot be " + Quoted(value, shownOfValue) + ": " + expected);
}

/// An entry that takes the key of another one would be dropped by the next load.
void CheckKey(TypedDataContainer& tree, const TreeNode& node) {
    const std::size_t end = node.path.size() - node.field->Name().size();
    if (end == 0) {
        return; // a field of the root, which is no entry
    }
    std::vector<PathStep> steps = ParsePath(std::string_view(node.path).substr(0, end - 1));
    if (steps.back().keyAttribute != node.field->Name()) {
        return;
    }
    steps.back().selector = PathStep::Selector::None;
    std::string path;
    for (const PathStep& step : steps) {
        path = FieldPath::Join(path, FormatStep(step));
    }
    const TreeNode list = FindNode(tree, path);
    const zelString key = node.field->GetText(*node.object);
    const std::size_t length = list.field->Length(*list.object);
    for (std::size_t i = 0; i < length; ++i) {
        if (list.field->Entry(*list.object, i) != node.object && list.field->EntryKey(*list.object, i) == key) {
            throw Wrong(Printable(node.path) + " cannot be " + Quoted(key) +
                        ": another entry of the list has that key, and only one of the two would be loaded");
        }
    }
}

void Apply(TypedDataContainer& tree, const Assignment& assignment, Source& source) {
    const TreeNode node = FindNode(tree, assignment.path);
    if (node.kind == TreeNode::Kind::Container) {
        RefuseContainer(node);
    }
    if (node.kind == TreeNode::Kind::List) {
        RefuseList(node);
    }
    const CatalogField& field = *node.field;
    TypedDataContainer& object = *node.object;
    const bool isEntry = node.kind == TreeNode::Kind::Text;
    if (!(isEntry ? field.SetEntryText(object, node.position, assignment.value)
                  : field.SetText(object, assignment.value))) {
        RefuseValue(node, assignment.value);
    }
    if (!isEntry) {
        CheckKey(tree, node);
    }
    if (!(isEntry ? field.WriteBack(object, node.position) : field.WriteBack(object))) {
        const XMLDataWrapper* const document = object.GetContainedDataPtr();
        const zelString why = document == nullptr ? zelString("its object stands on no XML") : document->GetLastError();
        throw Failure(ExitCode::BadInput,
                      WithSeverity(node.path + " cannot be set: " + std::string(why), "error", source.Name()));
    }
}

ExitCode Set(const SetOptions& options, ColorMode color) {
    if (options.inPlace && options.file == "-") {
        throw Wrong("standard input cannot be changed in place");
    }
    std::vector<Assignment> assignments;
    for (const std::string& text : options.assignments) {
        assignments.push_back(ReadAssignment(text));
    }
    Source source(options.file, Source::Use::Edit);
    XMLDataWrapper& document = source.Document();
    const zelString before = document.GetXMLText();
    const std::unique_ptr<TypedDataContainer> tree = source.Load();
    for (const Assignment& assignment : assignments) {
        Apply(*tree, assignment, source);
    }
    const zelString after = document.GetXMLText();
    if (after.empty()) {
        throw Failure(ExitCode::BadInput, WithSeverity(document.GetLastError(), "error", source.Name()));
    }
    if (options.inPlace && after != before && !document.SaveXMLFile(options.file.c_str(), true)) {
        throw Failure(ExitCode::OutputFailed, WithSeverity(document.GetLastError(), "error", source.Name()));
    }
    if (options.diff) {
        // Colours are for eyes, wherever they are sent.
        const bool forTerminal = color == ColorMode::Always || ::isatty(STDOUT_FILENO) == 1;
        WriteOutput(UnifiedDiff(source.Name(), before, after, {options.context, forTerminal, StyleOfOutput(color)}));
    } else if (!options.inPlace) {
        WriteOutput(after);
    }
    return ExitCode::Done;
}

} // namespace

void AddSetCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("set", "Change single values of a document, and nothing else in it");
    const auto options = std::make_shared<SetOptions>();
    command->add_option("FILE", options->file, "The document, \"-\" for standard input")->required();
    command->add_option("ASSIGNMENT", options->assignments, "The field or entry and its new value, in this order")
        ->required()
        ->type_name("PATH=VALUE");
    command->add_flag("-i,--in-place", options->inPlace, "Change the file itself, as a whole or not at all");
    CLI::Option* const diff =
        command->add_flag("--diff", options->diff, "Print what changes, as a unified diff, instead of the document");
    command->add_option("--context", options->context, "Unchanged lines around each change of the diff (default: 3)")
        ->type_name("N")
        ->check(CLI::NonNegativeNumber.description(""))
        ->needs(diff);
    command->footer(R"(Examples:
  lanedoc set StateProcessingRoot.xml 'StateTable/State[Name=Scan]/Transient=true' > changed.xml
  lanedoc set StateProcessingRoot.xml StateTable/InitialState=Attract Version=4.3 --diff
  lanedoc set StateProcessingRoot.xml 'StateTable/State[1]/Doc[Index=1]=For all states.' --in-place

A value that the document does not hold yet is added to its element; an entry of a list must be there. Comments, layout
and all else stay byte for byte. Several assignments are made in order, all or none of them. A file that somebody changes
meanwhile is not overwritten. The diff, sent to a file, is one that patch applies.

Exit codes: 0 done, 1 no such entry, 2 wrong use or an illegal value, 3 bad input, 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Set(*options, request.color); }; });
}

} // namespace Lanedoc
