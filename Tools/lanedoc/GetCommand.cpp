#include <memory>

#include "Commands.h"
#include "Source.h"
#include "TreeNode.h"

namespace Lanedoc {

namespace {

struct GetOptions {
    std::string file;
    std::string path;
    bool defaults = false;
    bool endWithNul = false;
};

/// The values, each as they stand in the tree.
std::vector<zelString> ValuesOf(const TreeNode& node, const GetOptions& options) {
    if (node.kind == TreeNode::Kind::Container) {
        RefuseContainer(node);
    }
    const CatalogField& field = *node.field;
    TypedDataContainer& object = *node.object;
    if (node.kind == TreeNode::Kind::Text) {
        return {field.EntryText(object, node.position)};
    }
    if (node.kind == TreeNode::Kind::Scalar) {
        const zelString text = field.GetText(object);
        if (!options.defaults && !field.StandsInDocument(object)) {
            throw Failure(ExitCode::AnswerIsNo, "lanedoc: " + Printable(node.path) + " is not in " +
                                                    Printable(options.file) + "; its default is " + Quoted(text) +
                                                    ", which --defaults prints");
        }
        return {text};
    }
    const std::size_t length = field.Length(object);
    if (length == 0) {
        throw Failure(ExitCode::AnswerIsNo,
                      "lanedoc: " + Printable(node.path) + " is an empty list in " + Printable(options.file));
    }
    if (HoldsContainers(field)) {
        RefuseContainerList(node);
    }
    std::vector<zelString> texts;
    for (std::size_t i = 0; i < length; ++i) {
        texts.push_back(field.EntryText(object, i));
    }
    return texts;
}

ExitCode Get(const GetOptions& options) {
    Source source(options.file);
    const std::unique_ptr<TypedDataContainer> tree = source.Load();
    std::string output;
    for (const zelString& value : ValuesOf(FindNode(*tree, options.path), options)) {
        output.append(value).append(1, options.endWithNul ? '\0' : '\n');
    }
    WriteOutput(output);
    return ExitCode::Done;
}

} // namespace

void AddGetCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("get", "Print one value of a document, raw");
    const auto options = std::make_shared<GetOptions>();
    command->add_option("FILE", options->file, "The document, \"-\" for standard input")->required();
    command->add_option("PATH", options->path, "The field; of a list of texts every entry is printed")->required();
    command->add_flag("--defaults", options->defaults, "Print the default of a field that the document does not hold");
    command->add_flag("-0,--null", options->endWithNul, "End values with a zero byte instead of a line end");
    command->footer(R"(Examples:
  lanedoc get StateProcessingRoot.xml 'StateTable/State[Name=Scan]/BaseState'
  lanedoc get StateProcessingRoot.xml 'StateTable/State[1]/Doc'

Exit codes: 0 printed, 1 the document does not hold it, 2 wrong use, 3 bad input, 5 output failed)");
    command->callback([options, &request] { request.run = [options] { return Get(*options); }; });
}

} // namespace Lanedoc
