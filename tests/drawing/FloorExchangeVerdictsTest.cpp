// The strict reader of the floor exchange on a table of documents, each with the verdict that it must give.

#include "drawing/ORVCADFloorSDCData.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

using namespace drawing_test;

namespace {

class FloorExchangeVerdictsTest : public testing::Test
{
protected:
    /** A group of documents: accepted, tolerated or refused. */
    QJsonObject group(const char *name) const { return m_verdicts.value(QLatin1String(name)).toObject(); }

    const ORVCADFloorSDCData format;
    bool ok = false;

private:
    const QJsonObject m_verdicts = dataObject("drawing/floor-sdc-verdicts.json");
};

} // namespace

TEST_F(FloorExchangeVerdictsTest, tableHasManyDocumentsOfEachKind)
{
    EXPECT_GE(group("accepted").size(), 10);
    EXPECT_GE(group("tolerated").size(), 10);
    EXPECT_GE(group("refused").size(), 40);
}

TEST_F(FloorExchangeVerdictsTest, acceptedDocumentIsReadWholeAndWrittenAgainAsItIs)
{
    const QJsonObject documents = group("accepted");
    for (const QString &name : documents.keys()) {
        const QJsonObject document = documents.value(name).toObject();
        const auto floors = format.unserialize(document, ok);
        EXPECT_TRUE(ok) << name.toStdString();
        EXPECT_EQ(static_cast<int>(floors.size()), document.value("FloorSDCData").toArray().size())
            << name.toStdString();
        EXPECT_EQ(format.serialize(floors), document) << name.toStdString();
    }
}

TEST_F(FloorExchangeVerdictsTest, toleratedDocumentIsReadAndWrittenOtherwise)
{
    const QJsonObject tests = group("tolerated");
    for (const QString &name : tests.keys()) {
        const QJsonObject document = tests.value(name).toObject().value("document").toObject();
        const auto floors = format.unserialize(document, ok);
        EXPECT_TRUE(ok) << name.toStdString();
        const QJsonObject written = format.serialize(floors);
        EXPECT_NE(written, document) << name.toStdString();
        EXPECT_EQ(format.serialize(format.unserialize(written, ok)), written) << name.toStdString();
        EXPECT_TRUE(ok) << name.toStdString();
    }
}

TEST_F(FloorExchangeVerdictsTest, refusedDocumentGivesTheFloorsInFrontOfTheFault)
{
    const QJsonObject tests = group("refused");
    for (const QString &name : tests.keys()) {
        const QJsonObject test = tests.value(name).toObject();
        ok = true;
        const auto floors = format.unserialize(test.value("document").toObject(), ok);
        EXPECT_FALSE(ok) << name.toStdString();
        EXPECT_EQ(static_cast<int>(floors.size()), test.value("floors").toInt(-1)) << name.toStdString();
    }
}
