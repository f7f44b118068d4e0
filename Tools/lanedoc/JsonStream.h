#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "JsonValue.h"

namespace Lanedoc {

/// JSON that is written while it is made, in the layout of WriteJson: of a long list there is one entry in memory.
///
///     json.OpenObject();
///     json.Add("format", 1);
///     json.OpenArray("entries");
///     json.Add(entry); // and so on
///     json.Close();
///     json.Close();
///
class JsonStream {
public:
    using Writer = std::function<void(std::string_view piece)>;

    /// The text goes there in pieces of some size.
    explicit JsonStream(Writer write) : m_write(std::move(write)) {}

    /// Opens what is the next entry of an array or, with a key, of an object.
    void OpenObject(std::string_view key = {}) { Open("{}", key); }
    void OpenArray(std::string_view key = {}) { Open("[]", key); }
    void Add(const Json& entry) { AddEntry({}, entry); }
    void Add(std::string_view key, const Json& value) { AddEntry(key, value); }
    /// Closes what was opened last. When that is the first one, the text is at its end.
    void Close();

private:
    struct Level {
        char end;
        bool isEmpty = true;
    };

    void Open(std::string_view brackets, std::string_view key);
    void AddEntry(std::string_view key, const Json& value);
    void BeginEntry(std::string_view key);
    void BeginLine();
    void WriteFrom(std::size_t size);

    Writer m_write;
    std::vector<Level> m_levels;
    std::string m_text; ///< not yet written
};

} // namespace Lanedoc
