#pragma once

#include <string>
#include <string_view>

namespace Lanedoc {

enum class ColorMode { Auto, Always, Never };

/// Colours for one stream, or none: then every text is returned as it is.
class Style {
public:
    explicit Style(bool colored) : m_colored(colored) {}

    std::string Bold(std::string_view text) const { return Paint("1", text); }
    std::string Dim(std::string_view text) const { return Paint("2", text); }
    std::string Red(std::string_view text) const { return Paint("31", text); }
    std::string Green(std::string_view text) const { return Paint("32", text); }
    std::string Yellow(std::string_view text) const { return Paint("33", text); }
    std::string Magenta(std::string_view text) const { return Paint("35", text); }
    std::string Cyan(std::string_view text) const { return Paint("36", text); }

private:
    std::string Paint(std::string_view code, std::string_view text) const;

    bool m_colored;
};

/// The style of standard output or standard error. Auto colours a terminal, unless NO_COLOR is set or TERM says that it
/// is dumb; with CLICOLOR_FORCE all else too.
Style StyleOfOutput(ColorMode mode);
Style StyleOfErrors(ColorMode mode);

/// Writes data to standard output, all of it; throws a Failure when it takes no more.
void WriteOutput(std::string_view data);

/// A file that is written in one or more pieces. Whatever fails throws a Failure. Not for documents that go into files:
/// those are replaced as a whole or not at all.
class OutputFile {
public:
    enum class Kind {
        Regular, ///< made when it is not there, and written over when it is
        Device,  ///< a device or a pipe, which is there
    };

    explicit OutputFile(std::string path, Kind kind = Kind::Regular);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(std::string_view data);
    /// Of what is not closed nobody knows whether it was written.
    void Close();

private:
    std::string m_path;
    int m_descriptor = -1;
};

/// Closes standard output, where a full disk may show only now; throws a Failure.
void CloseOutput();

/// Writes a line to standard error.
void Say(std::string_view line);

/// The text with its control characters made visible, so that no document can steer the terminal.
std::string Printable(std::string_view text);
/// The same in double quotes, on one line; longer texts are cut after `limit` characters, 0 means never.
std::string Quoted(std::string_view text, std::size_t limit = 0);
/// Columns a text takes, one for each code point.
std::size_t Width(std::string_view text);

} // namespace Lanedoc
