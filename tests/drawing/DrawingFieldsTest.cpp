#include "drawing/DrawingFields.h"

#include "DrawingJson.h"
#include "platform/dwgx/KeyLiteral.h"

#include <gtest/gtest.h>

using namespace drawing_test;
using namespace dwgx::literals;
using encoding::field;

namespace {

struct Layer
{
    QString name = QStringLiteral("default");
    QList<qint64> ids{1};
};

constexpr auto kTable = std::make_tuple(drawing::keyRequired<Layer>("mark"_key),
                                        drawing::fieldRequiredAs<drawing::NarrowIds>("ids"_key, &Layer::ids),
                                        field("name"_key, &Layer::name));

std::unique_ptr<Layer> layerFrom(const char *json)
{
    return std::unique_ptr<Layer>(drawing::readOrNull(std::make_unique<Layer>(), kTable, object(json)));
}

TEST(DrawingFieldsTest, newRecordIsReadFromItsTable)
{
    const auto layer = layerFrom(R"({"mark":1,"ids":[3,2],"name":"W"})");
    ASSERT_TRUE(layer);
    EXPECT_EQ(layer->ids, (QList<qint64>{3, 2}));
    EXPECT_EQ(layer->name, "W");
}

TEST(DrawingFieldsTest, recordWithoutARequiredKeyIsNull)
{
    EXPECT_FALSE(layerFrom(R"({"mark":1,"name":"W"})"));
    EXPECT_FALSE(layerFrom(R"({"ids":[],"name":"W"})"));
    EXPECT_TRUE(layerFrom(R"({"mark":1,"ids":[]})"));
}

TEST(DrawingFieldsTest, requiredKeyMayHoldAnything)
{
    for (const char *json : {R"({"mark":null,"ids":[]})", R"({"mark":[],"ids":[]})", R"({"mark":"","ids":[]})"})
        EXPECT_TRUE(layerFrom(json)) << json;
}

TEST(DrawingFieldsTest, requiredKeyWithoutAFieldIsNeverWritten)
{
    EXPECT_EQ(text(encoding::writtenFields(Layer(), kTable)), R"({"ids":[1],"name":"default"})");
}

TEST(DrawingFieldsTest, idsAreWrittenWholeAndReadWith32Bits)
{
    Layer layer;
    layer.ids = {4294967296, -1};
    EXPECT_EQ(text(encoding::writtenFields(layer, kTable)), R"({"ids":[4294967296,-1],"name":"default"})");
    const auto read = layerFrom(R"({"mark":1,"ids":[2147483647,2147483648,-2147483648,1.5,"7",null]})");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->ids, (QList<qint64>{2147483647, 0, -2147483648LL, 0, 0, 0}));
}

TEST(DrawingFieldsTest, idsThatAreNoArrayReadAsNone)
{
    const auto layer = layerFrom(R"({"mark":1,"ids":{"0":1}})");
    ASSERT_TRUE(layer);
    EXPECT_TRUE(layer->ids.isEmpty());
}

} // namespace
