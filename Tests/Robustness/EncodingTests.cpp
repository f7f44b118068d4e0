// Documents in every encoding: they come in right, are saved as they came, and those that lie about their encoding or
// are broken in it are refused with the place.

#include "Containers/EveryClass.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>

#include <iconv.h>
#include <unistd.h>

namespace Robustness {
namespace {

namespace fs = std::filesystem;
using namespace std::literals;

struct Encoding {
    std::string name;  ///< as documents declare it, and the system's converter knows it
    std::string text;  ///< in UTF-8; needs the encoding
    std::string bytes; ///< the same in the encoding
    std::string other; ///< another text, and its bytes
    std::string otherBytes;
    std::string broken = {}; ///< what stands for no character; empty where everything does
    bool isAscii = true;     ///< markup is written in it as in ASCII
    std::string mark = {};   ///< in front of the document
};

/// Of UTF-16 and UTF-32, from the code points.
std::string Wide(std::u32string_view text, std::size_t width, bool bigEndian) {
    std::string bytes;
    const auto append = [&](std::uint32_t unit) {
        for (std::size_t byte = 0; byte < width; ++byte) {
            bytes += static_cast<char>(unit >> (8 * (bigEndian ? width - 1 - byte : byte)) & 255U);
        }
    };
    for (const char32_t letter : text) {
        if (width == 2 && letter > 0xFFFF) {
            append(0xD800 + ((letter - 0x10000) >> 10U));
            append(0xDC00 + ((letter - 0x10000) & 0x3FFU));
        } else {
            append(letter);
        }
    }
    return bytes;
}

Encoding WideEncoding(std::size_t width, bool bigEndian, bool marked) {
    const std::u32string broken(1, width == 2 ? U'\xDE42' : U'\x110000');
    return {(width == 2 ? "UTF-16"s : "UTF-32"s) + (bigEndian ? "BE" : "LE"),
            "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x99\x82",
            Wide(U"\x00E4\x20AC\x1F642", width, bigEndian),
            "\xE3\x81\x82",
            Wide(U"\x3042", width, bigEndian),
            Wide(broken, width, bigEndian),
            false,
            marked ? Wide(U"\xFEFF", width, bigEndian) : ""};
}

const std::vector<Encoding>& Encodings() {
    static const std::vector<Encoding> encodings{
        {"UTF-8", "\xC3\xA4\xF0\x9F\x99\x82", "\xC3\xA4\xF0\x9F\x99\x82", "\xE2\x82\xAC", "\xE2\x82\xAC", "\xC3("},
        {"UTF-8", "\xC3\xA4", "\xC3\xA4", "\xE2\x82\xAC", "\xE2\x82\xAC", "\xF8", true, "\xEF\xBB\xBF"},
        WideEncoding(2, false, false),
        WideEncoding(2, false, true),
        WideEncoding(2, true, false),
        WideEncoding(2, true, true),
        WideEncoding(4, false, false),
        WideEncoding(4, false, true),
        WideEncoding(4, true, false),
        WideEncoding(4, true, true),
        {"ISO-8859-1", "\xC3\xA9\xC3\xBF", "\xE9\xFF", "\xC2\xA3", "\xA3"},
        {"ISO-8859-2", "\xC5\x82\xC5\xB1", "\xB3\xFB", "\xC5\xA0", "\xA9"},
        {"ISO-8859-7", "\xCE\xB1\xCF\x89", "\xE1\xF9", "\xCE\xA9", "\xD9", "\xAE"},
        {"ISO-8859-15", "\xE2\x82\xAC\xC5\x93", "\xA4\xBD", "\xC5\xB8", "\xBE"},
        {"windows-1251", "\xD0\x96\xE2\x84\x96", "\xC6\xB9", "\xD1\x8F", "\xFF", "\x98"},
        {"windows-1252", "\xE2\x82\xAC\xE2\x80\x93\xC3\xA9", "\x80\x96\xE9", "\xE2\x84\xA2", "\x99", "\x81"},
        {"KOI8-R", "\xD0\x96\xD1\x8F", "\xF6\xD1", "\xD0\xAE", "\xE0"},
        {"IBM850", "\xC3\xA9\xC2\xBF", "\x82\xA8", "\xC3\x9F", "\xE1"},
        {"TIS-620", "\xE0\xB8\x81\xE0\xB9\x84", "\xA1\xE4", "\xE0\xB8\x82", "\xA2", "\xFF"},
        {"Shift_JIS", "\xE3\x83\x86\xE3\x82\xBD\xEF\xBD\xB1", "\x83\x65\x83\x5C\xB1", "\xE8\xA1\xA8", "\x95\x5C",
         "\x83 "},
        {"EUC-JP", "\xE3\x83\x86\xEF\xBD\xB1", "\xA5\xC6\x8E\xB1", "\xE8\xA1\xA8", "\xC9\xBD", "\xA5 "},
        {"EUC-KR", "\xEA\xB0\x80", "\xB0\xA1", "\xED\x95\x9C", "\xC7\xD1", "\xB0 "},
        {"GB18030", "\xE4\xB8\xAD\xC4\x81\xF0\x9F\x99\x82", "\xD6\xD0\xA8\xA1\x95\x30\x85\x32", "\xE2\x82\xAC",
         "\xA2\xE3", "\xFF"},
        {"Big5", "\xE4\xB8\xAD\xE5\x8A\x9F", "\xA4\xA4\xA5\x5C", "\xE5\x9C\x8B", "\xB0\xEA", "\xFF"},
        {"ISO-2022-JP", "\xE3\x83\x86", "\x1B$B%F\x1B(B", "\xE8\xA1\xA8", "\x1B$BI=\x1B(B", "\x80"},
    };
    return encodings;
}

/// Those of large machines, in which markup has bytes of its own.
const std::vector<Encoding>& LargeMachineEncodings() {
    static const std::vector<Encoding> encodings{
        {"IBM037", "\xC3\xA9\xC3\x9F", "\x51\x59", "\xC2\xA3", "\xB1", "", false},
        {"IBM1047", "\xC3\xA9[", "\x51\xAD", "\xC2\xA3", "\xB1", "", false},
        {"IBM500", "\xC3\xA9!", "\x51\x4F", "\xC2\xA3", "\xB1", "", false},
    };
    return encodings;
}

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

/// A document that is written in an encoding and says that it is in one. Its value, which stands on line 3, and the key
/// beside it need the encoding; the value of the second entry is to be edited.
std::string Document(const Encoding& in, const std::string& declared, const std::string& value,
                     const std::string& second) {
    std::string text = "<?xml version='1.0' encoding='" + declared + "'?>\n<TranslationConfig><TranslationText><" +
                       "TranslationKeyMap language = 'x'><!-- # -->\n<Translation LookupData='#'><ResultValue >@" +
                       "</ResultValue></Translation>\n<Translation LookupData=\"2\" ><ResultValue>~</ResultValue>" +
                       "<Doc>#</Doc></Translation>\n</TranslationKeyMap></TranslationText></TranslationConfig>\n";
    std::string bytes = in.mark;
    for (const char letter : text) {
        bytes += letter == '#'   ? in.bytes
                 : letter == '@' ? value
                 : letter == '~' ? second
                 : in.isAscii    ? std::string(1, letter)
                                 : Convert(std::string(1, letter), "US-ASCII", in.name).text;
    }
    return bytes;
}

class EncodedDocuments : public testing::Test {
protected:
    EncodedDocuments() { fs::create_directories(m_folder); }
    ~EncodedDocuments() override { fs::remove_all(m_folder); }

    std::string Write(const std::string& bytes) const {
        const fs::path path = m_folder / "document.xml";
        fs::remove(path); // to write over a file may wait for the disk
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    /// What the file holds that the object's wrapper saves.
    std::string Saved(TypedDataContainer& object) const {
        const std::string path = m_folder / "saved.xml";
        EXPECT_TRUE(object.GetContainedDataPtr()->SaveXMLFile(path.c_str()))
            << object.GetContainedDataPtr()->GetLastError();
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    /// The error of a load behind the name of the file; empty when it loads.
    std::string Refusal(const std::string& bytes, TypedDataContainer& object) const {
        const std::string path = Write(bytes);
        if (object.LoadFromFile(nullptr, path.c_str(), false)) {
            return {};
        }
        const std::string error = object.GetLastError();
        EXPECT_EQ(error.rfind(path + ":", 0), 0U) << error;
        return error.substr(std::min(error.size(), path.size() + 1));
    }
    static std::unique_ptr<TypedDataContainer> New() { return ContainerCatalog::Create("TranslationConfig", false); }

    void CheckKept(const Encoding& encoding) const;

private:
    fs::path m_folder = fs::temp_directory_path() / ("encodings." + std::to_string(::getpid()));
};

/// The entry of the list at a position.
TypedDataContainer& Translation(TypedDataContainer& object, std::size_t position) {
    TypedDataContainer* at = &object;
    for (const auto& [field, index] :
         {std::pair{"TranslationText"sv, std::size_t{0}}, {"TranslationKeyMap"sv, 0}, {"Translation"sv, position}}) {
        const CatalogField found = *ContainerCatalog::FindField(ContainerCatalog::ClassOf(*at), field);
        at = found.IsList() ? found.Entry(*at, index) : found.GetChild(*at);
    }
    return *at;
}

CatalogField ResultValue() {
    return *ContainerCatalog::FindField(ContainerCatalog::FindClass("TranslationType"), "ResultValue");
}

std::string ValueOf(TypedDataContainer& object) {
    return ResultValue().GetText(Translation(object, 0));
}

void EncodedDocuments::CheckKept(const Encoding& encoding) const {
    SCOPED_TRACE(encoding.name + (encoding.mark.empty() ? "" : " with a mark"));
    const std::string bytes = Document(encoding, encoding.name, encoding.bytes, encoding.bytes);
    const auto object = New();
    ASSERT_EQ(Refusal(bytes, *object), "");
    EXPECT_EQ(ValueOf(*object), encoding.text);
    EXPECT_EQ(ContainerCatalog::FindField(ContainerCatalog::FindClass("TranslationType"), "LookupData")
                  ->GetText(Translation(*object, 0)),
              encoding.text);
    EXPECT_EQ(Saved(*object), bytes);

    ASSERT_TRUE(ResultValue().SetText(Translation(*object, 1), encoding.other));
    EXPECT_TRUE(object->UpdateContainedData());
    EXPECT_EQ(Saved(*object), Document(encoding, encoding.name, encoding.bytes, encoding.otherBytes));
    const auto again = New();
    ASSERT_EQ(Refusal(Saved(*object), *again), "");
    EXPECT_EQ(Samples::Lines(*again), Samples::Lines(*object));
}

TEST_F(EncodedDocuments, ComeInRightAndAreSavedAsTheyCame) {
    for (const Encoding& encoding : Encodings()) {
        CheckKept(encoding);
    }
}

TEST_F(EncodedDocuments, OfLargeMachinesComeInRightAndAreSavedAsTheyCame) {
    for (const Encoding& encoding : LargeMachineEncodings()) {
        CheckKept(encoding);
    }
}

TEST_F(EncodedDocuments, ThatCannotBeWrittenBackAreKeptAndNotEdited) {
    const std::string seven = "<?xml version='1.0' encoding='UTF-7'?>\n<TranslationConfig><TranslationText>"
                              "<TranslationKeyMap><Translation><ResultValue>x</ResultValue></Translation>"
                              "</TranslationKeyMap></TranslationText></TranslationConfig>";
    const auto object = New();
    ASSERT_EQ(Refusal(seven, *object), "");
    EXPECT_EQ(Saved(*object), seven);
    ASSERT_TRUE(ResultValue().SetText(Translation(*object, 0), "y"));
    EXPECT_FALSE(ResultValue().WriteBack(Translation(*object, 0)));
    EXPECT_NE(object->GetContainedDataPtr()->GetLastError().find("the encoding UTF-7 does not give the bytes"),
              zelString::npos);
    EXPECT_EQ(Saved(*object), seven);
}

/// The converter of the system is the judge of what an encoding makes of bytes.
void CheckLie(const std::string& refusal, TypedDataContainer& object, const std::string& bytes, const Encoding& actual,
              const Encoding& declared) {
    const bool isPlain = actual.isAscii && actual.mark.empty();
    if (actual.name == declared.name) {
        EXPECT_EQ(refusal, "");
    } else if (!isPlain || !declared.isAscii) {
        EXPECT_EQ(refusal.rfind("1:31: the declaration says " + declared.name + ", but ", 0), 0U) << refusal;
    } else if (const Converted text = Convert(bytes, declared.name, "UTF-8"); text.badByte) {
        const std::string offset = "at byte offset " + std::to_string(*text.badByte) + " ";
        EXPECT_EQ(refusal.rfind("2:", 0), 0U) << refusal; // where the first such text stands
        EXPECT_NE(refusal.find(offset), refusal.npos) << refusal << "\n  expected " << offset;
    } else if (text.text.find('\x1B') != text.text.npos) {
        EXPECT_NE(refusal.find("the character U+001B is not allowed"), refusal.npos) << refusal;
    } else {
        ASSERT_EQ(refusal, "");
        const std::size_t begin = text.text.find("<ResultValue >") + 14;
        EXPECT_EQ(ValueOf(object), text.text.substr(begin, text.text.find("</ResultValue>") - begin));
    }
}

TEST_F(EncodedDocuments, ThatLieAreRefusedWhereItShowsElseLoadAsDeclared) {
    std::size_t refused = 0;
    for (const Encoding& actual : Encodings()) {
        for (const Encoding& declared : Encodings()) {
            SCOPED_TRACE(actual.name + (actual.mark.empty() ? "" : " with a mark") + " declared as " + declared.name);
            const std::string bytes = Document(actual, declared.name, actual.bytes, "");
            const auto object = New();
            const std::string refusal = Refusal(bytes, *object);
            refused += refusal.empty() ? 0 : 1;
            CheckLie(refusal, *object, bytes, actual, declared);
        }
    }
    EXPECT_GT(refused, Encodings().size() * Encodings().size() / 2);
}

TEST_F(EncodedDocuments, OfLargeMachinesThatLieAreRefused) {
    for (const Encoding& large : LargeMachineEncodings()) {
        for (const Encoding& other : Encodings()) {
            SCOPED_TRACE(large.name + " and " + other.name);
            const auto object = New();
            EXPECT_EQ(Refusal(Document(large, other.name, large.bytes, ""), *object).rfind("1:", 0), 0U)
                << object->GetLastError();
            EXPECT_EQ(Refusal(Document(other, large.name, other.bytes, ""), *object)
                          .rfind("1:31: the declaration says " + large.name, 0),
                      0U)
                << object->GetLastError();
        }
    }
}

TEST_F(EncodedDocuments, ThatAreBrokenAreRefusedWithTheOffset) {
    for (const Encoding& encoding : Encodings()) {
        if (encoding.broken.empty()) {
            continue;
        }
        SCOPED_TRACE(encoding.name + (encoding.mark.empty() ? "" : " with a mark"));
        const std::string bytes = Document(encoding, encoding.name, encoding.bytes + encoding.broken, "");
        const auto object = New();
        const std::string refusal = Refusal(bytes, *object);
        const std::size_t expected = bytes.find(encoding.bytes + encoding.broken) + encoding.bytes.size();
        EXPECT_EQ(refusal.rfind("3:", 0), 0U) << refusal;
        EXPECT_NE(refusal.find("at byte offset " + std::to_string(expected) + " "), refusal.npos) << refusal;
    }
}

} // namespace
} // namespace Robustness
