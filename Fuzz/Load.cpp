#include <memory>

#include "Framework/XMLDataWrapper.h"
#include "Target.h"
#include "Trees.h"

namespace Fuzz {

namespace {

/// An object and a wrapper that hold something else stay as they were.
void ExpectRefused(const zelString& bytes) {
    const zelString held = "<LoadConfig><ThreadChildList UniqueName='u'><Unknown/></ThreadChildList></LoadConfig>";
    XMLDataWrapper wrapper;
    Expect(wrapper.LoadXMLText(held, false), "a document does not load", wrapper.GetLastError());
    const std::unique_ptr<TypedDataContainer> object = ObjectFor("LoadConfig");
    Expect(object->LoadFromDataPacket(nullptr, &wrapper, false), "an object does not load", object->GetLastError());
    const Reading before = StateOf(*object);

    Expect(!wrapper.LoadXMLText(bytes, false), "a text is refused once and loads then");
    Expect(wrapper.GetLastErrorNum() == -1, "a refusal has no number");
    ExpectNamesPlace(wrapper.GetLastError(), "<text>");
    Expect(wrapper.GetLastError().size() < 1000, "an error is long", wrapper.GetLastError().substr(0, 300));

    const MemoryFile file(bytes);
    Expect(!object->LoadFromFile(nullptr, file.Path(), false), "a text that is refused loads as a file");
    ExpectNamesPlace(object->GetLastError(), file.Path());
    ExpectEqual(StateOf(*object), before, "a refused load changes an object");
}

/// The document as a DOM holds the same, and what is written from it too.
void ExpectDomIsEqual(TypedDataContainer& object, const Reading& reading, const zelString& bytes) {
    XMLDataWrapper dom;
    Expect(dom.LoadXMLText(bytes, false), "a text loads once and is refused then", dom.GetLastError());
    if (dom.GetDOMNode(true, false) == nullptr) { // a DOM looks through all its names for each of them
        Expect(dom.GetLastError().find("different names") != zelString::npos, "a document cannot be turned into a DOM",
               dom.GetLastError());
        return;
    }
    XMLDataWrapper written;
    Expect(written.LoadXMLText(dom.GetXMLText(), false), "what a DOM writes does not load",
           written.GetLastError() + dom.GetLastError());
    for (XMLDataWrapper* const wrapper : {&dom, &written}) {
        const std::unique_ptr<TypedDataContainer> other = Another(object);
        Expect(other->LoadFromDataPacket(nullptr, wrapper, false), "a DOM does not load", other->GetLastError());
        ExpectEqual(ReadAll(*other), reading, "a DOM loads differently");
        Expect(other->UpdateContainedData() && wrapper->GetLastError().empty(),
               "an unchanged tree cannot be written back into a DOM", wrapper->GetLastError());
    }
}

/// The dump by query leaves out what no query can name, and says so; what it writes loads.
void ExpectQueryDumpLoads(TypedDataContainer& object) {
    FullFunctionXMLDataWrapper output;
    Expect(output.CreateOutputDocument(object.GetContainerName().c_str()), "no output document", output.GetLastError());
    Expect(object.DumpMergeContents("", &output, -1, true), "a tree cannot be dumped by query", object.GetLastError());
    LoadedLike(object, output.GetXMLText(), "a dump by query");
}

/// Writing back what was loaded changes nothing, except words that are none.
void ExpectUpdateKeepsBytes(TypedDataContainer& object, XMLDataWrapper& wrapper, const Reading& reading,
                            const zelString& bytes) {
    object.UpdateContainedData();
    const zelString text = wrapper.GetXMLText();
    if (!reading.hasStrangeWords) {
        Expect(wrapper.GetLastError().empty(), "an unchanged tree cannot be written back", wrapper.GetLastError());
        Expect(text == bytes, "writing an unchanged tree back changes the document");
        return;
    }
    Expect(!text.empty(), "a document cannot be saved", wrapper.GetLastError());
    const std::unique_ptr<TypedDataContainer> other = LoadedLike(object, text, "a saved document");
    ExpectEqual(ReadAll(*other), reading, "a saved document loads differently");
}

} // namespace

void Load(std::string_view input) {
    const zelString bytes(input);
    const OverrideLog log;
    XMLDataWrapper wrapper;
    if (!wrapper.LoadXMLText(bytes, false)) {
        ExpectRefused(bytes);
        return;
    }
    Expect(wrapper.GetXMLText() == bytes, "an unedited document does not give its bytes back", wrapper.GetLastError());

    const std::unique_ptr<TypedDataContainer> object = ObjectFor(ContainerCatalog::RootElement(wrapper));
    Expect(object->LoadFromDataPacket(nullptr, &wrapper, false), "a document does not load into its class",
           object->GetLastError());
    Expect(object->Valid(), "a loaded object is not valid");
    const Reading reading = ReadAll(*object);

    const std::unique_ptr<TypedDataContainer> clone(object->Clone());
    Expect(clone != nullptr, "an object cannot be cloned", object->GetLastError());
    ExpectEqual(ReadAll(*clone), reading, "a clone differs");
    ExpectDumpLoadsEqual(*object, reading, log);
    ExpectQueryDumpLoads(*object);
    ExpectDomIsEqual(*object, reading, bytes);
    ExpectUpdateKeepsBytes(*object, wrapper, reading, bytes);

    Expect(clone->LoadFromDataPacket(nullptr, &wrapper, true), "a document does not load into an object in use",
           clone->GetLastError());
    ExpectEqual(ReadAll(*clone), reading, "an object in use loads differently");
}

} // namespace Fuzz
