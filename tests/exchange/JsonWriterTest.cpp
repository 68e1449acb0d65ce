#include "exchange/JsonWriter.h"

#include <gtest/gtest.h>

#include <limits>

TEST(JsonWriter, separatesMembersAndElements)
{
    JsonWriter json;
    json.beginObject();
    json.key("a");
    json.beginArray();
    json.integer(1);
    json.boolean(false);
    json.beginArray();
    json.endArray();
    json.endArray();
    json.key("b");
    json.null();
    json.endObject();
    EXPECT_EQ(json.text(), R"({"a":[1,false,[]],"b":null})");
}

TEST(JsonWriter, escapesWhatATextMayNotHold)
{
    JsonWriter json;
    json.string("\"\\\n\x1f θ");
    EXPECT_EQ(json.text(), "\"\\\"\\\\\\u000a\\u001f θ\"");
}

TEST(JsonWriter, hasNullForWhatIsNoNumber)
{
    JsonWriter json;
    json.beginArray();
    json.number(std::numeric_limits<double>::quiet_NaN());
    json.number(-std::numeric_limits<double>::infinity(), 3);
    json.number(std::numeric_limits<float>::infinity());
    json.number(0.1F);
    json.endArray();
    EXPECT_EQ(json.text(), "[null,null,null,0.1]");
}
