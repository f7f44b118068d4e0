#include <gtest/gtest.h>

#include "Framework/LoadLimits.h"
#include "Framework/XMLDataWrapper.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>

namespace {

struct Edit {
    std::string before;
    std::string query;
    std::string value;
    std::string after; ///< empty: refused
};

class WriteBack : public testing::TestWithParam<Edit> {};

/// One value is set and read back, every other byte stays, and the old value brings the old bytes back.
TEST_P(WriteBack, ChangesOneValueOnly) {
    const auto& [before, query, value, after] = GetParam();
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText(before, false)) << wrapper.GetLastError();
    const zelString old = wrapper.GetStringValue(query, true);
    ASSERT_EQ(wrapper.SetQueryValue(query, value, true), !after.empty()) << wrapper.GetLastError();
    EXPECT_EQ(wrapper.GetXMLText(), after.empty() ? before : after);
    EXPECT_EQ(wrapper.GetStringValue(query, true), after.empty() ? old : zelString(value));
    XMLDataWrapper again;
    ASSERT_TRUE(again.LoadXMLText(wrapper.GetXMLText(), false)) << again.GetLastError();
    EXPECT_EQ(again.GetStringValue(query, true), wrapper.GetStringValue(query, true));
    ASSERT_TRUE(wrapper.SetQueryValue(query, old, true)) << wrapper.GetLastError();
    EXPECT_EQ(wrapper.GetXMLText(), before);
    // A DOM holds what was written before, and takes the same values.
    ASSERT_EQ(wrapper.SetQueryValue(query, value, true), !after.empty());
    ASSERT_NE(wrapper.GetDOMNode(true, true), nullptr);
    EXPECT_EQ(wrapper.GetStringValue(query, true), after.empty() ? old : zelString(value));
    ASSERT_TRUE(wrapper.SetQueryValue(query, old, true)) << wrapper.GetLastError();
    ASSERT_EQ(wrapper.SetQueryValue(query, value, true), !after.empty()) << wrapper.GetLastError();
    ASSERT_TRUE(again.LoadXMLText(wrapper.GetXMLText(), false)) << again.GetLastError() << wrapper.GetLastError();
    EXPECT_EQ(again.GetStringValue(query, true), after.empty() ? old : zelString(value));
}

INSTANTIATE_TEST_SUITE_P(
    OddFormats, WriteBack,
    testing::Values(
        Edit{"<R  b='1'\n\ta = \"2\" ><A>v</A ></R\n>", "//A", "w", "<R  b='1'\n\ta = \"2\" ><A>w</A ></R\n>"},
        Edit{"<R><A/></R>", "//A", "w", "<R><A>w</A></R>"},
        Edit{"<R><A  k='1' /></R>", "//A", "w<", "<R><A  k='1' >w&lt;</A></R>"},
        Edit{"<R><A></A></R>", "//A", " ", "<R><A> </A></R>"}, Edit{"<R><A>v</A></R>", "//A", "", "<R><A></A></R>"},
        Edit{"<R>\r\n<A>&#118;&amp;\r\n</A>\r\n</R>", "//A", "1\n2\r3", "<R>\r\n<A>1\r\n2&#13;3</A>\r\n</R>"},
        Edit{"<R><A>a<!--c-->b<?p?>c</A></R>", "//A", "w", "<R><A>w<!--c--><?p?></A></R>"},
        Edit{"<R><A>a<!--c-->b</A></R>", "//A", "a", "<R><A>a<!--c--></A></R>"}, // its first text alone
        Edit{"<R><A><!--c--><B>x</B></A></R>", "//A", "w", "<R><A>w<!--c--><B>x</B></A></R>"},
        Edit{"<R><A><B>x</B>t<B>y</B></A></R>", "//A", "w", "<R><A><B>x</B>w<B>y</B></A></R>"},
        Edit{"<R><A><![CDATA[v]]></A></R>", "//A", "w<&", "<R><A><![CDATA[w<&]]></A></R>"},
        Edit{"<R><A> <![CDATA[v]]> <![CDATA[]]></A></R>", "//A", "]]>\r",
             "<R><A><![CDATA[]]]]><![CDATA[>]]>&#13;<![CDATA[]]></A></R>"},
        Edit{"<R><A k='it&apos;s \"q\"'/></R>", "//A/@k", "'\"<&\t\n", "<R><A k='&apos;\"&lt;&amp;&#9;&#10;'/></R>"},
        Edit{"<R><A k=\"v\" j='>'/></R>", "//A/@k", "'\">", "<R><A k=\"'&quot;>\" j='>'/></R>"},
        Edit{"\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><R>\xC3\xA9<A>v</A></R>\n", "//A", "\xE2\x82\xAC",
             "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><R>\xC3\xA9<A>\xE2\x82\xAC</A></R>\n"},
        Edit{"<?xml version='1.0' encoding='ISO-8859-1'?><R b='\xE9'><A>v</A></R>", "//A", "\xC3\xA9\xE2\x82\xAC",
             "<?xml version='1.0' encoding='ISO-8859-1'?><R b='\xE9'><A>\xE9&#8364;</A></R>"},
        Edit{"<?xml version='1.0' encoding='ISO-8859-1'?><R><A><![CDATA[\xE9]]></A></R>", "//A", "\xE2\x82\xAC",
             "<?xml version='1.0' encoding='ISO-8859-1'?><R><A><![CDATA[]]>&#8364;<![CDATA[]]></A></R>"},
        Edit{"<?xml version='1.0' encoding='ISO-8859-1'?><R><A k='\xE9'/></R>", "//A/@k", "\xF0\x9F\x98\x80",
             "<?xml version='1.0' encoding='ISO-8859-1'?><R><A k='&#128512;'/></R>"},
        Edit{"<R xml:space='preserve'> <A>v</A> </R>", "//A", "w", "<R xml:space='preserve'> <A>w</A> </R>"},
        Edit{"<R><A>1</A><A>2</A></R>", "//R/A", "w", "<R><A>1</A><A>w</A></R>"},
        Edit{"<R><A>1</A><A>2</A></R>", "//R/A[1]", "w", "<R><A>w</A><A>2</A></R>"},
        Edit{"<R><A>v</A></R>", "//A", "a\x01", ""}, Edit{"<R><A>v</A></R>", "//A", "\xED\xA0\x80", ""},
        Edit{"<R><A>v</A></R>", "//A", "\xEF\xBF\xBF", ""}, Edit{"<R><A k='v'/></R>", "//A/@k", "\xFF", ""}));

TEST(WriteBackEncodings, WriteOnlyWhatComesBack) {
    // The escape sequence before </R> would not be written again; UTF-7 may write in plain letters what it need not.
    for (const char* const xml : {"<?xml version='1.0' encoding='ISO-2022-JP'?><R><A>v</A>\x1b(B</R>",
                                  "<?xml version='1.0' encoding='UTF-7'?><R><A>v</A></R>"}) {
        XMLDataWrapper redundant;
        ASSERT_TRUE(redundant.LoadXMLText(xml, false)) << redundant.GetLastError();
        EXPECT_FALSE(redundant.SetQueryValue("A", "w", false));
        EXPECT_NE(redundant.GetLastError().find("does not give the bytes"), std::string::npos)
            << redundant.GetLastError();
        EXPECT_EQ(redundant.GetXMLText(), xml);
    }
    XMLDataWrapper japanese; // a yen sign would come back as a backslash
    ASSERT_TRUE(japanese.LoadXMLText("<?xml version='1.0' encoding='EUC-JP'?><R><A>\xA4\xA2</A></R>", false));
    ASSERT_TRUE(japanese.SetQueryValue("A", "\xC2\xA5\xE3\x81\x84", false));
    EXPECT_EQ(japanese.GetXMLText(), "<?xml version='1.0' encoding='EUC-JP'?><R><A>&#165;\xA4\xA4</A></R>");
}

TEST(WriteBackLimits, NothingGrowsBeyondWhatLoads) {
    const zelString long30(std::string(30, 'x'));
    for (const bool asDom : {false, true}) {
        for (const bool isTag : {false, true}) {
            XMLDataWrapper wrapper;
            ASSERT_TRUE(wrapper.LoadXMLText("<R>\n<A k='v' l='w'/></R>", false));
            ASSERT_TRUE(!asDom || wrapper.GetDOMNode("//A", true) != nullptr);
            LoadLimits limits;
            (isTag ? limits.bytesPerTag : limits.bytes) = isTag ? 30 : asDom ? 75 : 30;
            const LoadLimits::Scope scope(limits);
            ASSERT_TRUE(wrapper.SetQueryValue("A/@k", long30, false));
            EXPECT_EQ(wrapper.GetXMLText(), "");
            EXPECT_NE(wrapper.GetLastError().find(isTag ? " would have more than the 30 bytes that can be loaded"
                                                        : ": it would have "),
                      std::string::npos)
                << wrapper.GetLastError();
            ASSERT_TRUE(wrapper.SetQueryValue("A/@k", "y", false));
            EXPECT_NE(wrapper.GetXMLText(), "") << wrapper.GetLastError();
        }
    }
}

TEST(WriteBackErrors, NameThePlaceInWhateverOrderTheyCome) {
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText("<R><L/><M/><L/><M/><L/><N/></R>", false));
    for (const char* const path : {"L[3]", "L[1]", "M[2]", "L[2]", "L[2]", "L[3]", "N", "M[1]", "M[2]"}) {
        EXPECT_FALSE(wrapper.SetQueryValue(path, "\x01", false));
        EXPECT_EQ(wrapper.GetLastError(),
                  "cannot write R/" + std::string(path) + ": character U+0001 is not allowed in XML");
    }
}

TEST(WriteBackNames, AreLookedForAsChildThenAsAttribute) {
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText("<R k='1'><k>2</k><L i='1'/><L i='2'/></R>", false));
    EXPECT_TRUE(wrapper.SetQueryValue("k", "child", false));
    EXPECT_TRUE(wrapper.SetQueryValue("@k", true, false));
    ASSERT_NE(wrapper.SelectNode("L[@i=2]", false), nullptr);
    EXPECT_TRUE(wrapper.SetQueryValue("i", 7, false));
    EXPECT_TRUE(wrapper.SetQueryValue("", 0.5, false));
    EXPECT_TRUE(wrapper.SetQueryCData("//L[@i='1']", "c", 0, 1));
    EXPECT_FALSE(wrapper.SetQueryValue("missing", "x", false));
    EXPECT_EQ(wrapper.GetLastError(), "cannot write missing: there is no such element or attribute in R/L[2]");
    EXPECT_FALSE(wrapper.SetQueryValue("//L[@i='3']", "x", false));
    EXPECT_EQ(wrapper.GetXMLText(), "<R k='true'><k>child</k><L i='1'><![CDATA[c]]></L><L i='7'>0.5</L></R>");
    EXPECT_NE(wrapper.GetXalanNode("//L[@i='7']", true), nullptr); // what was asked before does not stand in the way
}

} // namespace
