// Documents in every encoding: they come in right, are saved as they came, and those that lie about their encoding or
// are broken in it are refused with the place.

#include "Commands.h"
#include "Framework/XMLDataWrapper.h"

#include <algorithm>
#include <optional>

#include <iconv.h>

namespace Robustness {
namespace {

namespace fs = std::filesystem;
using namespace std::literals;

struct Converted {
    std::string text;
    std::optional<std::size_t> badByte; ///< the first that is no character's
};

Converted Convert(std::string bytes, const std::string& from, const std::string& to) {
    const iconv_t handle = ::iconv_open(to.c_str(), from.c_str());
    Converted converted;
    converted.text.resize(bytes.size() * 6 + 16);
    char* in = bytes.data();
    char* out = converted.text.data();
    std::size_t left = bytes.size();
    std::size_t room = converted.text.size();
    if (::iconv(handle, &in, &left, &out, &room) == std::size_t(-1)) {
        converted.badByte = bytes.size() - left;
    }
    ::iconv(handle, nullptr, nullptr, &out, &room);
    ::iconv_close(handle);
    converted.text.resize(converted.text.size() - room);
    return converted;
}

struct Encoding {
    std::string name;        ///< as documents declare it, and the system's converter knows it
    std::string text;        ///< in UTF-8; needs the encoding
    std::string other;       ///< another text
    std::string broken = {}; ///< bytes that stand for no character; empty where everything does
    bool isAscii = true;     ///< markup is written in it as in ASCII
    std::string mark = {};   ///< in front of the document

    std::string Bytes(const std::string& utf8) const { return Convert(utf8, "UTF-8", name).text; }
};

const std::vector<Encoding>& Encodings() {
    static const std::vector<Encoding> encodings = [] {
        std::vector<Encoding> all{
            {"UTF-8", "\xC3\xA4\xF0\x9F\x99\x82", "\xE2\x82\xAC", "\xC3("},
            {"UTF-8", "\xC3\xA4", "\xE2\x82\xAC", "\xF8", true, "\xEF\xBB\xBF"},
            {"ISO-8859-1", "\xC3\xA9\xC3\xBF", "\xC2\xA3"},
            {"ISO-8859-2", "\xC5\x82\xC5\xB1", "\xC5\xA0"},
            {"ISO-8859-7", "\xCE\xB1\xCF\x89", "\xCE\xA9", "\xAE"},
            {"ISO-8859-15", "\xE2\x82\xAC\xC5\x93", "\xC5\xB8"},
            {"windows-1251", "\xD0\x96\xE2\x84\x96", "\xD1\x8F", "\x98"},
            {"windows-1252", "\xE2\x82\xAC\xE2\x80\x93\xC3\xA9", "\xE2\x84\xA2", "\x81"},
            {"KOI8-R", "\xD0\x96\xD1\x8F", "\xD0\xAE"},
            {"IBM850", "\xC3\xA9\xC2\xBF", "\xC3\x9F"},
            {"TIS-620", "\xE0\xB8\x81\xE0\xB9\x84", "\xE0\xB8\x82", "\xFF"},
            {"Shift_JIS", "\xE3\x83\x86\xE3\x82\xBD\xEF\xBD\xB1", "\xE8\xA1\xA8", "\x83 "},
            {"EUC-JP", "\xE3\x83\x86\xEF\xBD\xB1", "\xE8\xA1\xA8", "\xA5 "},
            {"EUC-KR", "\xEA\xB0\x80", "\xED\x95\x9C", "\xB0 "},
            {"GB18030", "\xE4\xB8\xAD\xC4\x81\xF0\x9F\x99\x82", "\xE2\x82\xAC", "\xFF"},
            {"Big5", "\xE4\xB8\xAD\xE5\x8A\x9F", "\xE5\x9C\x8B", "\xFF"},
            {"ISO-2022-JP", "\xE3\x83\x86", "\xE8\xA1\xA8", "\x80"},
            // Those of large machines, in which markup has bytes of its own.
            {"IBM037", "\xC3\xA9\xC3\x9F", "\xC2\xA3", "", false},
            {"IBM1047", "\xC3\xA9[", "\xC2\xA3", "", false},
            {"IBM500", "\xC3\xA9!", "\xC2\xA3", "", false},
        };
        for (const auto& [name, broken] : {std::pair{"UTF-16LE", "\x42\xDE"s},
                                           {"UTF-16BE", "\xDE\x42"s},
                                           {"UTF-32LE", "\0\0\x11\0"s},
                                           {"UTF-32BE", "\0\x11\0\0"s}}) {
            for (const std::string& mark : {""s, Convert("\xEF\xBB\xBF", "UTF-8", name).text}) {
                all.push_back({name, "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x99\x82", "\xE3\x81\x82", broken, false, mark});
            }
        }
        return all;
    }();
    return encodings;
}

bool IsOfLargeMachine(const Encoding& encoding) {
    return encoding.name.starts_with("IBM") && !encoding.isAscii;
}

std::string Title(const Encoding& encoding) {
    return encoding.name + (encoding.mark.empty() ? "" : " with a mark");
}

/// A document that is written in an encoding and says that it is in one. Its value, which stands on line 3, and the key
/// beside it need the encoding; the value of the second entry is to be edited.
std::string Document(const Encoding& in, const std::string& declared, const std::string& value,
                     const std::string& second) {
    const std::string text = "<?xml version='1.0' encoding='" + declared + "'?>\n<Map language = 'x'><!-- # -->\n" +
                             "<Entry Key='#'><Value >@</Value></Entry>\n<Entry Key=\"2\" ><Value>~</Value>" +
                             "<Doc>#</Doc></Entry>\n</Map>\n";
    std::string bytes = in.mark;
    for (const char letter : text) {
        bytes += letter == '#'   ? in.Bytes(in.text)
                 : letter == '@' ? value
                 : letter == '~' ? second
                 : in.isAscii    ? std::string(1, letter)
                                 : Convert(std::string(1, letter), "US-ASCII", in.name).text;
    }
    return bytes;
}

constexpr const char* kValue = "Entry[1]/Value";
constexpr const char* kSecond = "Entry[2]/Value";

class EncodedDocuments : public testing::Test {
protected:
    /// What the file holds that the wrapper saves.
    std::string Saved(XMLDataWrapper& wrapper) const {
        const std::string path = m_folder / "saved.xml";
        EXPECT_TRUE(wrapper.SaveXMLFile(path.c_str(), false)) << wrapper.GetLastError();
        return Framework::ReadText(path);
    }
    /// The error of a load behind the name of the file; empty when it loads.
    std::string Refusal(const std::string& bytes, XMLDataWrapper& wrapper) const {
        const fs::path path = m_folder / "document.xml";
        fs::remove(path); // to write over a file may wait for the disk
        Framework::WriteText(path, bytes);
        if (wrapper.LoadXMLFile(path.c_str(), false)) {
            return {};
        }
        const std::string error = wrapper.GetLastError();
        EXPECT_TRUE(error.starts_with(path.string() + ":")) << error;
        return error.substr(std::min(error.size(), path.string().size() + 1));
    }

private:
    const Framework::TemporaryFolder m_folder;
};

TEST_F(EncodedDocuments, ComeInRightAndAreSavedAsTheyCame) {
    for (const Encoding& encoding : Encodings()) {
        SCOPED_TRACE(Title(encoding));
        const std::string value = encoding.Bytes(encoding.text);
        const std::string bytes = Document(encoding, encoding.name, value, value);
        XMLDataWrapper wrapper;
        ASSERT_EQ(Refusal(bytes, wrapper), "");
        EXPECT_EQ(wrapper.GetStringValue(kValue, false), encoding.text);
        EXPECT_EQ(wrapper.GetStringValue("Entry[1]/@Key", false), encoding.text);
        EXPECT_EQ(Saved(wrapper), bytes);
        ASSERT_TRUE(wrapper.SetQueryValue(kSecond, encoding.other, false)) << wrapper.GetLastError();
        EXPECT_EQ(Saved(wrapper), Document(encoding, encoding.name, value, encoding.Bytes(encoding.other)));
        ASSERT_EQ(Refusal(Saved(wrapper), wrapper), "");
        EXPECT_EQ(wrapper.GetStringValue(kSecond, false), encoding.other);
    }
}

/// The converter of the system is the judge of what an encoding makes of bytes.
void CheckLie(const std::string& refusal, XMLDataWrapper& wrapper, const std::string& bytes, const Encoding& actual,
              const Encoding& declared) {
    if (IsOfLargeMachine(actual)) { // their declarations are written alike
        EXPECT_TRUE(refusal.starts_with("1:") || IsOfLargeMachine(declared)) << refusal;
    } else if (!actual.isAscii || !actual.mark.empty() || !declared.isAscii) {
        EXPECT_TRUE(refusal.starts_with("1:31: the declaration says " + declared.name + ", but ")) << refusal;
    } else if (const Converted text = Convert(bytes, declared.name, "UTF-8"); text.badByte) {
        EXPECT_NE(refusal.find("at byte offset " + std::to_string(*text.badByte) + " "), refusal.npos) << refusal;
    } else if (text.text.find('\x1B') != text.text.npos) {
        EXPECT_NE(refusal.find("the character U+001B is not allowed"), refusal.npos) << refusal;
    } else {
        ASSERT_EQ(refusal, "");
        EXPECT_NE(text.text.find("<Value >" + wrapper.GetStringValue(kValue, false) + "</Value>"), text.text.npos);
    }
}

TEST_F(EncodedDocuments, ThatLieAreRefusedWhereItShowsElseLoadAsDeclared) {
    for (const Encoding& actual : Encodings()) {
        for (const Encoding& declared : Encodings()) {
            SCOPED_TRACE(Title(actual) + " declared as " + declared.name);
            const std::string bytes = Document(actual, declared.name, actual.Bytes(actual.text), "");
            XMLDataWrapper wrapper;
            const std::string refusal = Refusal(bytes, wrapper);
            if (actual.name != declared.name) {
                CheckLie(refusal, wrapper, bytes, actual, declared);
            } else {
                EXPECT_EQ(refusal, "");
            }
        }
    }
}

TEST_F(EncodedDocuments, ThatAreBrokenAreRefusedWithTheOffset) {
    for (const Encoding& encoding : Encodings()) {
        if (encoding.broken.empty()) {
            continue;
        }
        SCOPED_TRACE(Title(encoding));
        const std::string broken = encoding.Bytes(encoding.text) + encoding.broken;
        const std::string bytes = Document(encoding, encoding.name, broken, "");
        XMLDataWrapper wrapper;
        const std::string refusal = Refusal(bytes, wrapper);
        const std::size_t expected = bytes.find(broken) + broken.size() - encoding.broken.size();
        EXPECT_EQ(refusal.rfind("3:", 0), 0U) << refusal;
        EXPECT_NE(refusal.find("at byte offset " + std::to_string(expected) + " "), refusal.npos) << refusal;
    }
}

} // namespace
} // namespace Robustness
