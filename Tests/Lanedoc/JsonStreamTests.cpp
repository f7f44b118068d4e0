// JSON that is written while it is made is that which is made first.
#include "../../Tools/lanedoc/JsonStream.cpp"
#include "../../Tools/lanedoc/JsonValue.cpp"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace Lanedoc;

TEST(JsonStream, WritesWhatWriteJsonDoesWithOneEntryInMemory) {
    const Json entry = {
        {"text", "a \"b\"\n\t\xC3\xA9 \xFF"}, {"none", Json::array()}, {"inner", {{"list", {1, "two", nullptr}}}}};
    Json whole = {{"format", jsonFormat}, {"empty", Json::array()}, {"lists", {Json::array(), Json::array()}}};
    std::string text;
    std::size_t longest = 0;
    JsonStream json([&](std::string_view piece) {
        text += piece;
        longest = std::max(longest, piece.size());
    });
    json.OpenObject();
    json.Add("format", jsonFormat);
    json.OpenArray("empty");
    json.Close();
    json.OpenArray("lists");
    for (Json& list : whole["lists"]) {
        json.OpenArray();
        for (int i = 0; i < 1000; ++i) {
            list.push_back(entry);
            json.Add(entry);
        }
        json.Close();
    }
    json.Close();
    json.OpenObject("last");
    whole["last"] = Json::object();
    json.Close();
    json.Close();
    EXPECT_EQ(text, WriteJson(whole));
    EXPECT_LT(longest, text.size() / 4);
}

} // namespace
