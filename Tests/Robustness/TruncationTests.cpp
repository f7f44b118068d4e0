// One document with everything in it that documents have, cut off at every byte and with every bit turned over, as a
// load and as a merge.

#include "Containers/EveryClass.h"
#include "Robustness/HostileState.h"
#include "Robustness/HostileWatch.h"
#include "Robustness/Sizes.h"

#include <algorithm>
#include <set>

#include <sys/mman.h>
#include <unistd.h>

namespace Robustness {
namespace {

constexpr std::string_view kWhole = R"(<?xml version="1.0" encoding="UTF-8" standalone='yes'?>
<!-- Channels of lane 7: names are those of the initialize strings. -->
<?check level="2" by='Zoë'?>
<CommConfig Version="2.1">
  <!-- The scale, bought with the lane. Frames: STX, text, ETX. -->
  <CommEntry name="ScaleSerial">
    <BinaryTransformer>
      <FactoryName>TransformFactory</FactoryName>
      <TransformerName><![CDATA[Frame<Stx>&<Etx>]]></TransformerName>
      <InitializeString>checksum=xor;mark=&lt;&#x48;ost&gt;</InitializeString>
    </BinaryTransformer>
    <EventTransformerList>
      <EventTransformer>
        <FactoryName>Transform<?pause?>Factory</FactoryName>
        <TransformerName>ScaleToWeight</TransformerName>
        <InitializeString>unit=kg;decimals=3;größe="±5 g"</InitializeString>
      </EventTransformer>
      <EventTransformer/>
    </EventTransformerList>
    <CommHandlerFactoryName>SerialFactory</CommHandlerFactoryName>
    <Parameters>
      <FileName>/dev/ttyS0</FileName>
      <SerialParameters>
        <PortLoaderFactoryName>PortFactory</PortLoaderFactoryName>
        <BaudRate> 9600 </BaudRate>
        <DataBits>7</DataBits>
        <Parity>ODD</Parity>
        <StopBits>TWO</StopBits>
        <Control>HARDWARE</Control>
        <Stxchar>0x02</Stxchar>
      </SerialParameters>
      <MaxBufferSize>-4096</MaxBufferSize>
    </Parameters>
  </CommEntry>
  <CommEntry name='Tom &amp; "Jerry" &#127826;' x:note="&#xE9;&apos;" xmlns:x="urn:lane">
    <Parameters>
      <Mode>SERVER</Mode>
      <HostName>店.example</HostName><!-- 店: the store -->
      <Port>7411</Port>
      <NumConnections>2</NumConnections>
      <DeviceDescList>a<![CDATA[]]>b<![CDATA[ ]] > ]]>c</DeviceDescList>
    </Parameters>
    <x:Stranger kept='yes'>as it is]]&gt;</x:Stranger>
  </CommEntry>
  <CommEntry name="Spare"></CommEntry >
</CommConfig>
<!-- end -->
)";

/// What is merged into: it shares a key with the document.
constexpr std::string_view kBase = R"(<CommConfig><CommEntry name="Spare"><Parameters><Port>1</Port></Parameters>)"
                                   R"(</CommEntry><CommEntry name="Old"/></CommConfig>)";

class BrokenDocument {
public:
    explicit BrokenDocument(Watch& watch) : m_watch(watch) { MakeObject(); }
    ~BrokenDocument() { ::close(m_file); }
    BrokenDocument(const BrokenDocument&) = delete;
    BrokenDocument& operator=(const BrokenDocument&) = delete;

    /// Loads and merges the bytes: whatever they are, the object is as it was or holds all of them. True when they were
    /// taken.
    bool Try(const std::string& bytes) {
        Check(::ftruncate(m_file, 0) == 0 &&
                  ::pwrite(m_file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()),
              "cannot be written");
        const bool loaded = Take(
            bytes, [&] { return m_object->LoadFromFile(nullptr, m_path.c_str(), false); }, [&] { CheckLoaded(bytes); });
        const bool merged = Take(
            bytes, [&] { return m_object->MergeFromFile(nullptr, m_path.c_str()); }, [&] { CheckDump(); });
        Check(loaded == merged, "a load and a merge do not agree");
        return loaded;
    }

private:
    void MakeObject() {
        m_object = ContainerCatalog::Create("CommConfig", false);
        {
            XMLDataWrapper wrapper;
            Check(wrapper.LoadXMLText(std::string(kBase), false) &&
                      m_object->LoadFromDataPacket(nullptr, &wrapper, false),
                  "the base does not load");
        } // from here on the object has a wrapper of its own
        m_before = StateOf(*m_object);
    }

    void Check(bool holds, const std::string& failure) {
        if (!holds) {
            m_watch.Fail(failure);
        }
    }

    /// What is not taken leaves no trace, and the error has a place in the document.
    bool Take(const std::string& bytes, const std::function<bool()>& load, const std::function<void()>& checkTaken) {
        if (load()) {
            checkTaken();
            MakeObject();
            return true;
        }
        Check(StateOf(*m_object) == m_before, "the refused document left a trace");
        const std::string error = m_object->GetLastError();
        unsigned long line = 0;
        unsigned long column = 0;
        int length = 0;
        const bool hasPlace =
            error.rfind(m_path, 0) == 0 &&
            std::sscanf(error.c_str() + m_path.size(), ":%lu:%lu: %n", &line, &column, &length) == 2 && length > 0;
        const auto lines = static_cast<unsigned long>(
            1 + std::count_if(bytes.begin(), bytes.end(), [](char byte) { return byte == '\n' || byte == '\r'; }));
        Check(hasPlace && line >= 1 && line <= lines && column >= 1,
              "the error has no place in the document: " + error);
        return false;
    }

    void CheckLoaded(const std::string& bytes) {
        XMLDataWrapper& wrapper = *m_object->GetContainedDataPtr();
        Check(wrapper.GetXMLText() == bytes, "it saves to other bytes");
        const std::vector<std::string> lines = CheckDump();
        XMLDataWrapper reload;
        const auto again = ContainerCatalog::Create("CommConfig", false);
        Check(reload.LoadXMLText(wrapper.GetXMLText(), false) && again->LoadFromDataPacket(nullptr, &reload, false) &&
                  Samples::Lines(*again) == lines,
              "it loads again otherwise");
    }

    /// Every value can be read, and a dump has them all.
    std::vector<std::string> CheckDump() {
        std::vector<std::string> lines = Samples::Lines(*m_object);
        const std::unique_ptr<XMLDataWrapper> dump(m_object->BuildAndReturnDataContent());
        const auto again = ContainerCatalog::Create("CommConfig", false);
        Check(dump != nullptr && again->LoadFromDataPacket(nullptr, dump.get(), false) &&
                  Samples::Lines(*again) == lines,
              "the dump has something else");
        return lines;
    }

    Watch& m_watch;
    int m_file = ::memfd_create("document", MFD_CLOEXEC); // a disk would take most of the time
    std::string m_path = "/proc/self/fd/" + std::to_string(m_file);
    std::unique_ptr<TypedDataContainer> m_object;
    std::vector<std::string> m_before;
};

/// Tries every `step`-th variant in a process of its own; returns those that were taken.
std::set<std::size_t> TryVariants(std::size_t count, std::size_t step,
                                  const std::function<std::string(std::size_t)>& variant) {
    const Watched watched = RunWatched(600, [&](Watch& watch) {
        BrokenDocument document(watch);
        for (std::size_t number = 0; number < count; number += step) {
            watch.At("variant " + std::to_string(number));
            if (document.Try(variant(number))) {
                watch.Tell(std::to_string(number));
            }
        }
    });
    for (const std::string& failure : watched.failures) {
        ADD_FAILURE() << failure;
    }
    std::set<std::size_t> taken;
    for (const std::string& number : watched.facts) {
        taken.insert(std::stoul(number));
    }
    return taken;
}

TEST(BrokenDocuments, CutOffAtAnyByteAreRefused) {
    const auto taken =
        TryVariants(kWhole.size() + 1, 1, [](std::size_t length) { return std::string(kWhole.substr(0, length)); });
    const std::size_t end = kWhole.find("</CommConfig>") + 13;
    EXPECT_EQ(taken,
              (std::set<std::size_t>{end, end + 1, kWhole.size() - 1, kWhole.size()})); // before the comment, behind it
}

TEST(BrokenDocuments, WithAnyBitTurnedOverAreWholeOrRefused) {
    const std::size_t bits = kWhole.size() * 8;
    const std::size_t step = FullSizes() ? 1 : 29; // comes by every bit of a byte
    const auto taken = TryVariants(bits, step, [](std::size_t bit) {
        std::string bytes(kWhole);
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << (bit % 8)));
        return bytes;
    });
    RecordProperty("taken", std::to_string(taken.size()) + " of " + std::to_string(bits / step));
    EXPECT_GT(taken.size(), bits / step / 5); // a letter for a letter: XML has no checksum
    EXPECT_LT(taken.size(), bits / step / 2);
}

} // namespace
} // namespace Robustness
