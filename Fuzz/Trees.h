#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Framework/ContainerCatalog.h"

/// What the targets share about trees of containers.
namespace Fuzz {

/// Collects what this thread's work tells the override log while it lives.
class OverrideLog {
public:
    OverrideLog() {
        s_current = this;
        TypedDataContainer::SetOverrideIssueHandler(&Record, nullptr);
    }
    ~OverrideLog() { s_current = nullptr; }
    OverrideLog(const OverrideLog&) = delete;
    OverrideLog& operator=(const OverrideLog&) = delete;

    std::size_t Count() const { return m_texts.size(); }
    std::string_view Last() const { return m_texts.empty() ? std::string_view() : m_texts.back(); }

private:
    static void Record(void*, const OverrideIssue& issue) {
        if (s_current != nullptr) {
            s_current->m_texts.push_back(issue.ErrorText);
        }
    }

    static inline thread_local OverrideLog* s_current = nullptr;
    std::vector<std::string> m_texts;
};

/// A file that stands in memory alone, for operations that want a path.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view bytes);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    const char* Path() const { return m_path.c_str(); }

private:
    int m_descriptor;
    std::string m_path;
};

/// What a tree holds, and what of it does not come back from a dump or an update for reasons that are known.
struct Reading {
    std::vector<std::string> lines; ///< of its sample, without keys that a load makes anew
    bool hasStrangeWords = false;   ///< its document has texts that are no words of their vocabulary
    bool hasEqualKeys = false;      ///< two keys of a list are written differently and are the same number
};

/// Reads every value through the catalogue.
Reading ReadAll(TypedDataContainer& object);

/// The same with every object and all that lasts beside the values: what a refused load or merge has to leave as it
/// was.
Reading StateOf(TypedDataContainer& object);

/// Throws a Violation with the first line that differs.
void ExpectEqual(const Reading& present, const Reading& expected, std::string_view what);

/// A new object for a document with that root: of the class that bears the name, else of any, given that name.
std::unique_ptr<TypedDataContainer> ObjectFor(const zelString& root);

/// A new object of the same class and name.
std::unique_ptr<TypedDataContainer> Another(TypedDataContainer& object);

/// A new object of the same class and name, loaded from a text that must load. `what` tells what that text is.
std::unique_ptr<TypedDataContainer> LoadedLike(TypedDataContainer& object, const zelString& xml, std::string_view what);

/// The object's content as a new document loads equal, without a word to the log.
void ExpectDumpLoadsEqual(TypedDataContainer& object, const Reading& reading, const OverrideLog& log);

/// Throws a Violation unless the text reads "<text>:line:column: ...".
void ExpectNamesPlace(std::string_view error, std::string_view source);

} // namespace Fuzz
