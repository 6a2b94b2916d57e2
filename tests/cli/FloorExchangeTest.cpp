#include "cli/FloorExchange.h"

#include "CommandFailures.h"
#include "TestFiles.h"

#include <functional>

using clitest::failureOf;
using clitest::objectOf;
using clitest::textOf;
using namespace orvcad;

namespace {

const QString kExchange = QStringLiteral(ORVCAD_EXAMPLES "/masonry-block.floor-sdc.json");

/** Gives the value once for every value in it and every odd one put in its place. */
void forEachOddCopy(const QJsonValue &value, const std::function<void(const QJsonValue &)> &take)
{
    const QJsonArray oddValues{QJsonValue(), 1.5, -2147483648.0, "7", QJsonArray{7}, QJsonObject{{"a", 1}}};
    for (const QJsonValue odd : oddValues)
        take(odd);
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i)
        forEachOddCopy(array.at(i), [&](const QJsonValue &odd) {
            QJsonArray changed = array;
            changed.replace(i, odd);
            take(changed);
        });
    const QJsonObject object = value.toObject();
    for (const QString &key : object.keys())
        forEachOddCopy(object[key], [&](const QJsonValue &odd) {
            QJsonObject changed = object;
            changed[key] = odd;
            take(changed);
        });
}

class FloorExchangeTest : public TestFiles
{
protected:
    FloorExchange exchangeOf(const QJsonObject &document) const
    {
        return readFloorExchange(fileOf("floors.json", QJsonDocument(document).toJson()));
    }
};

TEST_F(FloorExchangeTest, exampleIsKeptWholeAndStable)
{
    const FloorExchange exchange = readFloorExchange(kExchange);
    EXPECT_EQ(exchange.floors.size(), 6U);
    EXPECT_EQ(exchange.written, clitest::fileObject(kExchange));
    EXPECT_EQ(textOf(exchange.notKept), "");
    EXPECT_EQ(textOf(exchange.notStable), "");
}

TEST_F(FloorExchangeTest, whatIsNotKeptIsToldWithItsReason)
{
    const FloorExchange exchange = exchangeOf(objectOf(
        R"({"FloorSDCData": [{"Region": {"Name": "A"}, "Remark": 7, "ConcreteAnchorJoint": [], "Height": 3}]})"));
    EXPECT_EQ(textOf(exchange.notKept), "FloorSDCData[0].ConcreteAnchorJoint: is empty, so it is not written\n"
                                        "FloorSDCData[0].Region.Name: is no key of this format\n"
                                        "FloorSDCData[0].Remark: is no text, so the field has no value");
    EXPECT_EQ(textOf(exchange.notStable), "");
}

TEST_F(FloorExchangeTest, fileThatIsRefusedIsToldWithItsPlace)
{
    const QString file = fileOf("floors.json", R"({"FloorSDCData": [{"Region": {}}, {"Height": 3}]})");
    EXPECT_EQ(failureOf([&] { readFloorExchange(file); }), file.toStdString() + ": FloorSDCData[1].Region: is missing");
}

TEST_F(FloorExchangeTest, verdictOfEveryListedExchangeHasItsPlaceAndReason)
{
    const QJsonObject verdicts =
        clitest::fileObject(QStringLiteral(ORVCAD_TEST_DATA "/drawing/floor-sdc-verdicts.json"));
    const QJsonObject accepted = verdicts["accepted"].toObject();
    for (const QString &name : accepted.keys())
        EXPECT_FALSE(firstRefusal(accepted[name].toObject())) << name.toStdString();
    const QJsonObject tolerated = verdicts["tolerated"].toObject();
    for (const QString &name : tolerated.keys()) {
        QJsonArray places;
        for (const JsonFault &fault : exchangeOf(tolerated[name].toObject()["document"].toObject()).notKept)
            places.append(fault.place);
        EXPECT_EQ(places, tolerated[name].toObject()["notKept"].toArray()) << name.toStdString();
    }
    const QJsonObject refused = verdicts["refused"].toObject();
    for (const QString &name : refused.keys()) {
        const QJsonObject test = refused[name].toObject();
        const auto fault = firstRefusal(test["document"].toObject());
        ASSERT_TRUE(fault) << name.toStdString();
        EXPECT_EQ(fault->place, test["place"].toString()) << name.toStdString();
        EXPECT_EQ(fault->reason, test["reason"].toString()) << name.toStdString();
    }
}

TEST_F(FloorExchangeTest, placeOfARefusalIsToldForExactlyThoseExchangesThatTheReaderRefuses)
{
    int refused = 0;
    forEachOddCopy(clitest::fileObject(kExchange), [&](const QJsonValue &odd) {
        bool ok = false;
        const auto floors = ORVCADFloorSDCData().unserialize(odd.toObject(), ok);
        const auto fault = firstRefusal(odd.toObject());
        ASSERT_EQ(fault.has_value(), !ok) << QJsonDocument(odd.toObject()).toJson().toStdString();
        if (ok || !fault->place.startsWith("FloorSDCData["))
            return;
        ++refused;
        EXPECT_TRUE(fault->place.startsWith(QStringLiteral("FloorSDCData[%1]").arg(floors.size())));
    });
    EXPECT_GT(refused, 300);
}

} // namespace
