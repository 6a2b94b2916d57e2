#pragma once

#include "embedded/ExchangeDocuments.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

// Places in the small building.
#define FLOOR "regions[0].floors[0]"
#define ELEMENT(index) FLOOR ".elements[" #index "]"
#define OBJECT(index) ELEMENT(index) ".drawObjects[0]"

/** Documents that break a rule, and what is read of those that do not. */
namespace exchangetest {

/** "read", or what is told of a document that is refused. */
inline std::string refusalOf(const QByteArray &json)
{
    hbx::embedded::ProjectError error;
    return hbx::embedded::HBXExchangeReader::read(json, "house.json", error) ? "read" : error.text().toStdString();
}

/** A draw object of the first element of a name. */
inline const hbx::embedded::DrawObjRecord &drawObjOf(const hbx::embedded::ProjectRecord &project,
                                                     const QString &elementName, int position = 0)
{
    static const hbx::embedded::DrawObjRecord none;
    for (const auto &element : project.elements)
        for (const hbx::embedded::DrawObjRecord &drawObj : project.drawObjs)
            if (element.name == elementName && drawObj.elementId == element.id && position-- == 0)
                return drawObj;
    ADD_FAILURE() << "no object of " << elementName.toStdString();
    return none;
}

inline hbx::embedded::PropertyValue valueOf(const hbx::embedded::PropertyRecords &properties, const QString &name)
{
    for (const auto &[each, value] : properties)
        if (each == name)
            return value;
    return {};
}

struct Refusal
{
    const char *place; ///< what is changed in the small building
    const char *value; ///< JSON text; empty: taken out
    const char *told;  ///< place and reason
};

inline void PrintTo(const Refusal &refusal, std::ostream *out) { *out << refusal.place << " = " << refusal.value; }

/** A document with one thing wrong in it, which is told with its place. */
class RefusedDocumentTest : public ::testing::TestWithParam<Refusal>
{
protected:
    static void expectRefused()
    {
        const QByteArray json = smallBuildingWith(GetParam().place, GetParam().value);
        EXPECT_EQ(refusalOf(json), std::string("house.json: ") + GetParam().told);
    }
};

} // namespace exchangetest
