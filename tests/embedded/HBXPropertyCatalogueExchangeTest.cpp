#include "platform/embedded/HBXPropertyCatalogue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include <map>

/** The catalogue against the exchange file: what buildings give, and what the schema says. */
using namespace hbx::embedded;

namespace {

const HBXPropertyCatalogue &catalogue() { return HBXPropertyCatalogue::instance(); }

QJsonObject readObject(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QJsonDocument::fromJson(file.readAll()).object();
}

QString dataPath(const char *name) { return QStringLiteral(ORVCAD_TEST_DATA "/") + QString::fromLatin1(name); }

bool isWhole(const QJsonValue &value) { return value.isDouble() && value.toDouble() == value.toInt(); }

/** Whether a value of an exchange file can stand under a property of the kind. */
bool fits(const QJsonValue &value, const PropertyEntry &entry)
{
    switch (entry.kind) {
    case PropertyKind::Integer:
        return isWhole(value) || (entry.namesDrawObjs() && value.isString());
    case PropertyKind::Double:
        return value.isDouble();
    case PropertyKind::Text:
        return value.isString() || value.isDouble();
    case PropertyKind::Point:
        return value.toArray().size() == 2;
    case PropertyKind::Elevation:
    case PropertyKind::Curve:
    case PropertyKind::Polygon:
        return value.isString();
    }
    return false;
}

void expectKnown(const QJsonObject &properties, qint64 type, bool isDrawObj, const QString &place)
{
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        const PropertyEntry *entry = catalogue().find(type, it.key(), isDrawObj);
        ASSERT_NE(entry, nullptr) << qPrintable(place + it.key()) << " of type " << type;
        EXPECT_TRUE(it->isNull() || fits(*it, *entry)) << qPrintable(place + it.key()) << " of type " << type;
    }
}

/** Draw objects of an element, and their children, which are of the type of their unit. */
void expectDrawObjsKnown(const QJsonArray &drawObjs, qint64 type, const QJsonArray &units, const QString &place)
{
    for (const QJsonValue &value : drawObjs) {
        const QJsonObject drawObj = value.toObject();
        const qint64 ownType = drawObj.value(QStringLiteral("type")).toInt(static_cast<int>(type));
        expectKnown(drawObj.value(QStringLiteral("properties")).toObject(), ownType, true, place);
        for (const QJsonValue &child : drawObj.value(QStringLiteral("children")).toArray()) {
            const int unit = child.toObject().value(QStringLiteral("unit")).toInt();
            const int unitType = units.at(unit).toObject().value(QStringLiteral("type")).toInt();
            expectKnown(child.toObject().value(QStringLiteral("properties")).toObject(), unitType, true, place);
        }
    }
}

int expectElementsKnown(const QJsonArray &elements, const QString &place)
{
    for (const QJsonValue &value : elements) {
        const QJsonObject element = value.toObject();
        const qint64 type = element.value(QStringLiteral("type")).toInt();
        const QJsonArray units = element.value(QStringLiteral("units")).toArray();
        const QString name = place + element.value(QStringLiteral("name")).toString() + QLatin1Char('.');
        EXPECT_TRUE(catalogue().isKnownType(type)) << qPrintable(name);
        expectKnown(element.value(QStringLiteral("properties")).toObject(), type, false, name);
        expectDrawObjsKnown(element.value(QStringLiteral("drawObjects")).toArray(), type, units, name);
        expectElementsKnown(units, name);
    }
    return elements.size();
}

const std::map<PropertyKind, const char *> kSchemaForms{
    {PropertyKind::Integer, "integerProperty"}, {PropertyKind::Double, "doubleProperty"},
    {PropertyKind::Text, "textProperty"},       {PropertyKind::Elevation, "elevationProperty"},
    {PropertyKind::Point, "pointProperty"},     {PropertyKind::Curve, "curveProperty"},
    {PropertyKind::Polygon, "polygonProperty"},
};

/** Form of a property in the schema: whole numbers that are ids stand there as keys. */
QString schemaForm(const PropertyEntry &entry)
{
    const bool isId = entry.kind == PropertyKind::Integer && entry.namesDrawObjs();
    return QStringLiteral("#/$defs/") + QLatin1String(isId ? "keyProperty" : kSchemaForms.at(entry.kind));
}

std::map<QString, QString> catalogueForms()
{
    std::map<QString, QString> forms;
    for (const qint64 type : catalogue().types()) {
        for (const PropertyEntry &entry : catalogue().entries(type)) {
            forms[entry.name] = schemaForm(entry);
            if (!entry.alias.isEmpty()) {
                forms[entry.alias] = schemaForm(entry);
            }
        }
    }
    return forms;
}

} // namespace

class BuildingPropertiesTest : public testing::TestWithParam<const char *>
{};

TEST_P(BuildingPropertiesTest, everyPropertyIsKnownWithAFittingKind)
{
    const QJsonObject building = readObject(dataPath("buildings/") + QLatin1String(GetParam()));
    int elements = 0;
    for (const QJsonValue &region : building.value(QStringLiteral("regions")).toArray()) {
        for (const QJsonValue &floor : region.toObject().value(QStringLiteral("floors")).toArray()) {
            const QString place = floor.toObject().value(QStringLiteral("name")).toString() + QLatin1Char('/');
            elements += expectElementsKnown(floor.toObject().value(QStringLiteral("elements")).toArray(), place);
        }
    }
    EXPECT_GT(elements, 20);
}

INSTANTIATE_TEST_SUITE_P(Samples, BuildingPropertiesTest,
                         testing::Values("duplex-apartment.json", "masonry-block.json", "precast-hall.json",
                                         "made-building.json"));

TEST(ExchangeSchemaTest, propertiesHaveTheNamesAndKindsOfTheCatalogue)
{
    const QJsonObject schema = readObject(dataPath("../../schemas/hbx-project.schema.json"));
    const QJsonObject definitions = schema.value(QStringLiteral("$defs")).toObject();
    const QJsonObject properties = definitions.value(QStringLiteral("properties")).toObject();
    std::map<QString, QString> forms;
    const QJsonObject named = properties.value(QStringLiteral("properties")).toObject();
    for (auto it = named.begin(); it != named.end(); ++it) {
        forms[it.key()] = it->toObject().value(QStringLiteral("$ref")).toString();
    }
    EXPECT_EQ(forms, catalogueForms());
}

TEST(ExchangeSchemaTest, elementTypesAreThoseOfTheCatalogue)
{
    const QJsonObject schema = readObject(dataPath("../../schemas/hbx-project.schema.json"));
    const QJsonObject definitions = schema.value(QStringLiteral("$defs")).toObject();
    std::vector<qint64> types;
    for (const QJsonValue &type : definitions.value(QStringLiteral("elementType")).toObject().value("enum").toArray()) {
        types.push_back(type.toInt());
    }
    EXPECT_EQ(types, catalogue().types());
}
