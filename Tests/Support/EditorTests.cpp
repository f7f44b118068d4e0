#include <gtest/gtest.h>

#include "Framework/XMLSupport/DocumentEditor.h"
#include "Support/RandomXml.h"
#include "Support/TreeText.h"

namespace Framework {

namespace {

class RandomEdits {
public:
    explicit RandomEdits(unsigned seed) : m_random(seed) {
        RandomWriter writer(seed);
        writer.Element(4);
        m_source = writer.Text();
        m_document = Testing::Load(m_source)->Copy();
    }

    void Run() {
        for (int step = 0; step < 25; ++step) {
            Edit();
            const std::string bytes = m_document->Bytes();
            ASSERT_EQ(Testing::Reading(*Testing::Load(bytes)), Testing::Reading(*m_document)) << m_source << "\n"
                                                                                              << bytes;
        }
        // A copy has the same changes and forgets them by itself.
        const std::shared_ptr<Document> copy = m_document->Copy();
        TakeBack();
        EXPECT_EQ(m_document->Bytes(), m_source);
        EXPECT_EQ(Testing::Reading(*m_document), Testing::Reading(*Testing::Load(m_source)));
        std::swap(m_document, const_cast<std::shared_ptr<Document>&>(copy));
        EXPECT_EQ(Testing::Reading(*Testing::Load(m_document->Bytes())), Testing::Reading(*m_document));
        TakeBack();
        EXPECT_EQ(m_document->Bytes(), m_source);
    }

private:
    std::size_t Below(std::size_t count) { return m_random() % count; }

    std::vector<NodeRef> Elements() const {
        std::vector<NodeRef> elements;
        for (NodeRef node = m_document->Root(); node != NodeRef::None;
             node = NextInOrder(*m_document, node, m_document->Root())) {
            if (m_document->Kind(node) == NodeKind::Element) {
                elements.push_back(node);
            }
        }
        return elements;
    }

    void Edit() {
        static const std::vector<std::string_view> order{"a", "New", "Item", "Other", "p:q"};
        static const std::string texts[] = {"", "x", " ", "]]>", "a\r\nb", "<&>'\"", "\xE2\x82\xAC\t"};
        const std::vector<NodeRef> elements = Elements();
        const NodeRef element = elements[Below(elements.size())];
        const std::string& text = texts[Below(std::size(texts))];
        const TextForm form = Below(3) == 0 ? TextForm::CData : TextForm::Text;
        const NodeRef attribute = m_document->FirstAttribute(element);
        const std::size_t position = 1 + 2 * Below(2);
        DocumentEditor editor(*m_document);
        switch (Below(7)) {
        case 0:
            editor.Restore(element);
            break;
        case 1:
            if (attribute != NodeRef::None) {
                editor.SetValue(attribute, text);
            }
            break;
        case 2:
            if (FindAttribute(*m_document, element, "added") == NodeRef::None) {
                editor.AddAttribute(element, "added", text);
            }
            break;
        case 3:
        case 4:
            editor.AddElement(PlaceOfField(*m_document, element, order, position), order[position], text, form);
            break;
        case 5:
            if (editor.IsAdded(element)) {
                editor.Remove(element);
            }
            break;
        default:
            editor.SetText(element, text, form);
        }
    }

    void TakeBack() {
        DocumentEditor editor(*m_document);
        for (const NodeRef element : Elements()) {
            if (m_document->Kind(element) != NodeKind::Element) {
                continue; // went with another
            }
            if (editor.IsAdded(element)) {
                editor.Remove(element);
                continue;
            }
            for (NodeRef at = m_document->FirstAttribute(element); at != NodeRef::None;) {
                const NodeRef next = m_document->NextSibling(at);
                editor.IsAdded(at) ? editor.Remove(at) : editor.Restore(at);
                at = next;
            }
            editor.Restore(element);
        }
    }

    std::mt19937 m_random;
    std::string m_source;
    std::shared_ptr<Document> m_document;
};

TEST(Editor, RandomEditsReadBackAndCanBeTakenBack) {
    for (unsigned seed = 0; seed < 600; ++seed) {
        SCOPED_TRACE(seed);
        RandomEdits(seed).Run();
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

} // namespace

} // namespace Framework
