// Document types, which nothing but harm can come of here, and all that points to other files.

#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileTexts.h"

namespace Robustness {

namespace {

constexpr const char* kNoDoctype = "2:1: a document type (DOCTYPE) is not allowed";

/// A document whose document type holds the declarations, and whose value refers to the entity x.
std::string WithDeclarations(const std::string& declarations, const std::string& value = "&x;") {
    return InProlog("<!DOCTYPE TranslationConfig [" + declarations + "]>", InValue(value));
}

/// Entities each of which stands for `times` of the one before.
std::string Chain(std::size_t length, std::size_t times, const std::string& percent = "") {
    const std::string reference = percent.empty() ? "&" : "&#37;";
    return "<!ENTITY " + percent + "e0 'ha'>" + Join(length, [&](std::size_t number) {
               return "<!ENTITY " + percent + "e" + std::to_string(number + 1) + " '" +
                      Repeat(reference + "e" + std::to_string(number) + ";", times) + "'>";
           });
}

HostileDocument Bomb(std::string name, std::size_t small, std::size_t full,
                     std::function<std::string(std::size_t)> text) {
    return {std::move(name), kNoDoctype, std::move(text), small, full, "TranslationConfig", kBombMegabytes};
}

} // namespace

HostileDocuments EntityDocuments() {
    const auto bomb = [](std::string name, const std::string& text) {
        return Bomb(std::move(name), 0, 0, [text](std::size_t) { return text; });
    };
    return {
        bomb("billion laughs", WithDeclarations(Chain(10, 10) + "<!ENTITY x '&e10;'>")),
        bomb("billion laughs in an attribute",
             InProlog("<!DOCTYPE TranslationConfig [" + Chain(10, 10) + "]>", InTag("a='&e10;'"))),
        bomb("billion laughs of parameter entities", WithDeclarations(Chain(10, 10, "% ") + "%e10;<!ENTITY x 'y'>")),
        Bomb("quadratic blow-up", 2'000, 100'000,
             [](std::size_t size) {
                 return WithDeclarations("<!ENTITY x '" + Repeat("a", size) + "'>", Repeat("&x;", size));
             }),
        Bomb("long chain of entities", 2'000, 100'000,
             [](std::size_t size) {
                 return WithDeclarations(Chain(size, 1) + "<!ENTITY x '&e" + std::to_string(size) + ";'>");
             }),
        bomb("entity within itself", WithDeclarations("<!ENTITY x 'a&x;'>")),
        bomb("entities within each other", WithDeclarations("<!ENTITY x '&y;'><!ENTITY y '&x;'>")),
        Bomb("huge default attribute on every element", 20'000, 2'000'000,
             [](std::size_t size) {
                 return WithDeclarations("<!ATTLIST b c CDATA '" + Repeat("d", size) + "'>", Repeat("<b/>", 1000));
             }),
        Bomb("huge internal subset", 20'000, 1'000'000,
             [](std::size_t size) { return WithDeclarations(Repeat("<!-- -->", size), "x"); }),
        Bomb("content model in brackets", 2'000, 100'000,
             [](std::size_t size) {
                 return WithDeclarations("<!ELEMENT a " + Repeat("(", size) + "b" + Repeat(")", size) + ">", "x");
             }),
        Bomb("content model of choices", 2'000, 100'000,
             [](std::size_t size) {
                 return WithDeclarations("<!ELEMENT a (b" + Repeat(",(b|(c,d?)*)?", size) + ")>", "x");
             }),
        Bomb("document type without end", 20'000, 500'000,
             [](std::size_t size) { return InProlog("<!DOCTYPE a [" + Repeat("<!ENTITY a 'b'>", size)); }),
        Fixed("document type behind a comment", "2:9: a document type", InProlog("<!-- --><!DOCTYPE a>")),
        Fixed("document type within the root", "2:1: unexpected \"<!\"", InRoot("<!DOCTYPE a [<!ENTITY x 'y'>]>")),
        Fixed("document type in small letters", "2:1: only comments, instructions", InProlog("<!doctype a>")),
        Fixed("entity declaration without document type", "2:1: only comments, instructions",
              InProlog("<!ENTITY x 'y'>")),
        Fixed("conditional section", "2:1: unexpected \"<!\"", InRoot("<![INCLUDE[<a/>]]>")),
        Fixed("unknown entity", "2:1: unknown reference &x;", InValue("&x;")),
        Fixed("unknown entity of HTML", "2:2: unknown reference &nbsp;", InValue("a&nbsp;b")),
        Fixed("parameter entity in a text", "", InValue("%x;")),
        Fixed("unknown entity in an attribute", "2:4: unknown reference &x;", InTag("a='&x;'")),
        {"flood of character references", "", [](std::size_t size) { return InValue(Repeat("&#x41;", size)); }, 20'000,
         2'000'000},
        {"flood of predefined entities", "", [](std::size_t size) { return InValue(Repeat("&amp;", size)); }, 20'000,
         2'000'000},
        {"flood of references in an attribute", "",
         [](std::size_t size) { return InTag("a='" + Repeat("&lt;&#233;", size) + "'"); }, 10'000, 100'000},
        Fixed("reference to NUL", "2:1: &#0; does not stand for a character", InValue("&#0;")),
        Fixed("reference to a surrogate", "2:1: &#xDC00; does not stand for a character", InValue("&#xDC00;")),
        Fixed("reference to U+FFFE", "2:1: &#xFFFE; does not stand for a character", InValue("&#xFFFE;")),
        Fixed("reference past the last character", "2:1: &#x110000; does not stand for", InValue("&#x110000;")),
        Fixed("reference past every number", "2:1: &#99999999999999999999", InValue("&#99999999999999999999;")),
        Fixed("reference that wraps round to a letter", "2:1: &#x100000041; does not", InValue("&#x100000041;")),
        Fixed("reference without a number", "2:1: '&' must begin a reference", InValue("&#;")),
    };
}

HostileDocuments ReachingDocuments(const Trap& trap) {
    const std::string file = "file://" + trap.folder + "/canary";
    const std::string web = "http://127.0.0.1:" + std::to_string(trap.port) + "/canary";
    const auto entity = [](const std::string& id) { return WithDeclarations("<!ENTITY x " + id + ">"); };
    const auto external = [](const std::string& id, const std::string& value) {
        return InProlog("<!DOCTYPE TranslationConfig " + id + ">", InValue(value));
    };
    const auto refused = [](std::string name, const std::string& text) {
        return Bomb(std::move(name), 0, 0, [text](std::size_t) { return text; });
    };
    HostileDocuments documents{
        refused("entity of a file", entity("SYSTEM '" + file + ".txt'")),
        refused("entity of a file beside", entity("SYSTEM 'canary.txt'")),
        refused("entity of a path", entity("SYSTEM '" + trap.folder + "/canary.txt'")),
        refused("entity of the web", entity("SYSTEM '" + web + "'")),
        refused("public entity of the web", entity("PUBLIC '-//c//' '" + web + "'")),
        refused("entity of a file server", entity("SYSTEM 'ftp://127.0.0.1:" + std::to_string(trap.port) + "/c'")),
        refused("entity of a device", entity("SYSTEM 'file:///dev/zero'")),
        refused("external subset", external("SYSTEM '" + file + ".dtd'", "&c;")),
        refused("external subset beside", external("SYSTEM 'canary.dtd'", "&c;")),
        refused("external subset of the web", external("SYSTEM '" + web + "'", "x")),
        refused("public external subset", external("PUBLIC '-//c//' '" + web + "'", "x")),
        refused("parameter entity of a file", WithDeclarations("<!ENTITY % p SYSTEM '" + file + ".dtd'>%p;", "&c;")),
        refused("parameter entity of the web", WithDeclarations("<!ENTITY % p SYSTEM '" + web + "'>%p;", "x")),
        refused("file sent to the web",
                WithDeclarations("<!ENTITY % f SYSTEM '" + file + ".txt'><!ENTITY % d \"<!ENTITY &#37; s SYSTEM '" +
                                     web + "?%f;'>\">%d;%s;",
                                 "x")),
        refused("default attribute",
                WithDeclarations("<!ATTLIST TranslationKeyMap language CDATA '" + std::string(kCanary) + "'>", "x")),
        refused("default attribute of a file", external("SYSTEM 'canary.dtd'", "x")),
        refused("notation", WithDeclarations("<!NOTATION n SYSTEM '" + file + ".txt'>", "x")),
        refused("unparsed entity", WithDeclarations("<!NOTATION n SYSTEM 'n'><!ENTITY x SYSTEM '" + file +
                                                        ".txt' NDATA n>"
                                                        "<!ATTLIST TranslationConfig a ENTITY 'x'>",
                                                    "x")),
    };
    // Nobody follows these: they are elements, attributes and instructions as any other.
    const auto loads = [&documents](std::string name, std::string text) {
        documents.push_back(Fixed(std::move(name), "", std::move(text)));
    };
    const std::string include = "<x:include xmlns:x='http://www.w3.org/2001/XInclude' ";
    loads("inclusion of a text", InValue(include + "parse='text' href='" + file + ".txt'/>"));
    loads("inclusion of a document", InRoot(include + "href='canary.xml'/>"));
    loads("inclusion with a way out", InRoot(include + "href='nowhere.xml'><x:fallback>" + include + "href='" + web +
                                             "'/></x:fallback></x:include>"));
    const std::string instance = "xmlns:i='http://www.w3.org/2001/XMLSchema-instance' ";
    loads("schema of the web", InTag(instance + "i:schemaLocation='urn:c " + web + ".xsd'"));
    loads("schema of a file", InTag(instance + "i:noNamespaceSchemaLocation='" + file + ".xml'"));
    loads("style sheets", InProlog("<?xml-stylesheet type='text/xsl' href='" + web + ".xsl'?><?xml-stylesheet href='" +
                                   file + ".xml'?>"));
    loads("model and other instructions",
          InProlog("<?xml-model href='" + web + "'?><?import canary.xml?><?include " + file + ".txt?>"));
    loads("base and links", InTag("xml:base='" + web +
                                  "' xmlns:l='http://www.w3.org/1999/xlink' l:href='canary.xml'"
                                  " l:show='embed' l:actuate='onLoad'"));
    loads("names of files as values",
          InValue(file + ".txt " + web + " ${file:canary.txt} `cat canary.txt` @canary.txt"));
    return documents;
}

} // namespace Robustness
