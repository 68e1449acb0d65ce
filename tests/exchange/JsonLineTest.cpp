#include "exchange/JsonLine.h"

#include "exchange/SampleFacts.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

TEST(JsonLine, tellsThePictureTheAxesAndTheSeries)
{
    EXPECT_EQ(jsonline::object(samplefacts::twoSeries(), std::nullopt),
              R"({"document":"plot.crvgrab","picture":{"width":300,"height":200.5},)"
              R"("axes":{"kind":"parallel","anchors":[[10,20],[110,20],[110,60],[10.1,60]],)"
              R"("x":{"minimum":0,"maximum":10,"logarithmic":false},)"
              R"("y":{"minimum":1,"maximum":100,"logarithmic":true}},)"
              R"("series":[{"number":1,"name":"Series_01","quantities":["x","y"],)"
              R"("converter":{"kind":"parallel","logarithmic":[false,true],)"
              R"("origin":[10,20],"unitX":[10,0],"unitY":[0,20]},)"
              R"("points":[[0.1,-2.5],[0.3333333333333333,1e+20]]},)"
              R"({"number":3,"name":"Series_03","quantities":["theta","r"],)"
              R"("converter":{"kind":"polar","logarithmic":[false,false],"centre":[50,50],)"
              R"("originValue":[6.283185307179586,0],"unitR":[10,0],"counterClockwise":true,)"
              R"("degrees":true},"points":[[15,7.5]]}]})"
              "\n");
}

TEST(JsonLine, isJsonOnOneLine)
{
    const std::string line = jsonline::object(samplefacts::twoSeries(), std::nullopt);
    EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(line)).isObject());
    EXPECT_EQ(line.find('\n'), line.size() - 1);
}

TEST(JsonLine, theDigitsConcernThePointsOnly)
{
    ExchangeFacts facts = samplefacts::twoSeries();
    facts.axes->x.maximum = 1.0 / 3;
    const std::string line = jsonline::object(facts, 2);
    EXPECT_NE(line.find(R"("points":[[0.1,-2.5],[0.33,1e+20]])"), std::string::npos) << line;
    EXPECT_NE(line.find(R"("maximum":0.3333333333333333)"), std::string::npos) << line;
}

TEST(JsonLine, polarAxesHaveACentreAndARadius)
{
    ExchangeFacts facts = samplefacts::twoSeries();
    facts.axes->type = 2;
    facts.axes->isInDegrees = false;
    facts.axes->isSigned = true;
    const std::string line = jsonline::object(facts, std::nullopt);
    EXPECT_NE(line.find(R"("axes":{"kind":"polar","centre":[10,20],"radiusEnd":[110,20],)"
                        R"("radius":{"minimum":1,"maximum":100,"logarithmic":true},)"
                        R"("angle":{"unit":"radian","signed":true,"counterClockwise":false}})"),
              std::string::npos)
        << line;
}

TEST(JsonLine, aQuadranglesParallelEdgesMeetNowhere)
{
    ExchangeFacts facts;
    facts.series = {{2, samplefacts::points({{1, 2}}), samplefacts::quadrangle()}};
    const std::string line = jsonline::object(facts, std::nullopt);
    EXPECT_NE(line.find(R"("converter":{"kind":"quadrangle","logarithmic":[false,false],)"
                        R"("origin":[0,0],"originValue":[0,0],"unitX":[10,0],"unitY":[0,10],)"
                        R"("crossX":null,"crossY":null})"),
              std::string::npos)
        << line;
}

TEST(JsonLine, whatThereIsNotIsNull)
{
    ExchangeFacts facts;
    facts.document = "a";
    facts.series = {{1, {}, nullptr}, {2, {}, std::make_shared<ZKConvCoordinate>()}};
    EXPECT_EQ(jsonline::object(facts, std::nullopt),
              R"({"document":"a","picture":null,"axes":null,"series":[)"
              R"({"number":1,"name":"Series_01","quantities":["x","y"],"converter":null,)"
              R"("points":[]},)"
              R"({"number":2,"name":"Series_02","quantities":["x","y"],"converter":null,)"
              R"("points":[]}]})"
              "\n");
}
