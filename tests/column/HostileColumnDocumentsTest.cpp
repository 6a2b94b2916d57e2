#include "ColumnDocuments.h"
#include "column/ORVCADAIIdentifyColumnResultModel.h"
#include "column/ORVCADColumnCloudCheckInputModel.h"
#include "column/ORVCADColumnCloudIdentifyInputModel.h"

#include <functional>

namespace {

/** Reads an object as every record that it could be meant as. */
void readAsEverything(const QJsonObject &json)
{
    filled<ORVCADAIIdentifyColumnResultModel>(json).toJson();
    filled<ORVCADColumnCloudCheckInputModel>(json).toJson();
    filled<ORVCADColumnCloudIdentifyInputModel>(json).toJson();
    filled<ORVCADAIColumnSemnticParsingPar>(json).toJson();
    ORVCADColumnHoopBarSettingPar hoops;
    hoops.fromJson(json);
    hoops.toJson();
}

/** The value with each value inside it replaced in turn. */
void eachReplaced(const QJsonValue &value, const QJsonValue &odd, const std::function<void(const QJsonValue &)> &visit)
{
    visit(odd);
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QString &key : object.keys())
            eachReplaced(object[key], odd, [&](const QJsonValue &other) {
                QJsonObject changed = object;
                changed[key] = other;
                visit(changed);
            });
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            eachReplaced(array[i], odd, [&](const QJsonValue &other) {
                QJsonArray changed = array;
                changed[i] = other;
                visit(changed);
            });
    }
}

const QStringList kDocuments{"results", "check-input", "identify-input"};

TEST(HostileColumnDocumentsTest, anyValueMayBeReplacedByAnyOther)
{
    const QJsonValue odds[] = {QJsonValue(QJsonValue::Null),
                               true,
                               -1.5,
                               1e308,
                               "",
                               "\x01;*,,;NaN",
                               QJsonArray{QJsonArray{}},
                               QJsonObject{{"", QJsonObject{{"id", "id"}}}}};
    int read = 0;
    for (const QString &name : kDocuments)
        for (const QJsonValue &odd : odds)
            eachReplaced(jsonOf(columnDocument(name)), odd, [&](const QJsonValue &changed) {
                readAsEverything(changed.toObject());
                ++read;
            });
    EXPECT_GT(read, 500);
}

TEST(HostileColumnDocumentsTest, truncatedDocumentIsNoObject)
{
    for (const QString &name : kDocuments) {
        const QByteArray whole = columnDocument(name).trimmed();
        for (int length = 0; length < whole.size(); ++length) {
            const QJsonObject json = QJsonDocument::fromJson(whole.left(length)).object();
            EXPECT_TRUE(json.isEmpty());
            if (length % 100 == 0)
                readAsEverything(json);
        }
    }
}

TEST(HostileColumnDocumentsTest, hugeListsAreReadInTheTimeThatTheirLengthTakes)
{
    constexpr int count = 100000;
    QJsonArray numbers;
    QJsonArray pictures;
    for (int i = 0; i < count; ++i) {
        numbers.append(i);
        pictures.append(QJsonObject{{"id", i % 100}});
    }
    const auto results =
        filled<ORVCADAIIdentifyColumnResultModel>({{"resultData", QJsonArray{QJsonObject{{"cadLineIDs", numbers}}}}});
    EXPECT_EQ(results.resultData[0]->cadLineIDs.size(), 100000U);
    const auto input = filled<ORVCADColumnCloudIdentifyInputModel>(
        {{"columnCodes", numbers},
         {"axisLineList", numbers},
         {"elements", numbers},
         {"oHoopBarSettingPar",
          QJsonObject{{"ColumnHoopBarPicInfos", pictures}, {"ColumnHoopBarSettings", pictures}}}});
    EXPECT_EQ(input.columnCodes.size(), count);
    EXPECT_EQ(input.axisLineList.size(), 100000U);
    EXPECT_EQ(input.elements.size(), 100000U);
    EXPECT_EQ(input.oHoopBarSettingPar.toJson()["ColumnHoopBarPicInfos"].toArray().size(), 100);
}

TEST(HostileColumnDocumentsTest, longTextsAreNoLimbsAndNoGeometry)
{
    const QString text(1000000, u'9');
    const auto input = filled<ORVCADColumnCloudIdentifyInputModel>(
        {{"axisLineList", QJsonArray{text, text + ',' + text}}, {"elements", QJsonArray{QJsonObject{{"poly", text}}}}});
    EXPECT_FALSE(input.axisLineList[0]->curve);
    EXPECT_FALSE(input.elements[0]->poly);
    qint64 b = 7;
    qint64 h = 7;
    EXPECT_FALSE(input.oHoopBarSettingPar.parseColumnCombLimbInfo((text + '*' + text).toStdWString(), b, h));
    EXPECT_FALSE(input.oHoopBarSettingPar.parseColumnCombLimbInfo(std::wstring(100000, L'*'), b, h));
    EXPECT_EQ(b, 7);
    EXPECT_EQ(h, 7);
}

} // namespace
