#pragma once

#include "geometry/KernelShapes.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXSection.h"
#include "platform/host/IHBXSectionHolder.h"

#include <QMap>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

/** A host made of plain values: what the reading of seats asks for, in states that a real host does not come to. */
namespace seathost {

using Curve = vks::CRefPtr<vks::CCurve2d>;
using Polygon = vks::CRefPtr<vks::CPolygon>;

using shapes::rectangle;

/** Properties that are there are those that have a value; each question is written down. */
class Properties : public IHBXProperties
{
public:
    QMap<QString, QVariant> values;
    QMap<QString, Polygon> polygons;
    QString failing; ///< the property whose reading throws
    mutable QStringList asked;

    bool hasProperty(const std::wstring &name) const override
    {
        const QString key = note("has", name);
        return values.contains(key) || polygons.contains(key);
    }
    int asInt(const std::wstring &name) const override { return values.value(note("int", name)).toInt(); }
    double asDouble(const std::wstring &name) const override { return values.value(note("double", name)).toDouble(); }
    QString &asString(QString &out, const std::wstring &name) const override
    {
        return out = values.value(note("text", name)).toString();
    }
    Polygon &asPolygon(Polygon &out, const std::wstring &name) const override
    {
        return out = polygons.value(note("polygon", name));
    }

    std::shared_ptr<IHBXProperty> &property(std::shared_ptr<IHBXProperty> &out, const std::wstring &) override
    {
        return out;
    }
    bool isNull(const std::wstring &) const override { return true; }
    int asInt(const QString &) const override { return 0; }
    double asDouble(const QString &) const override { return 0.0; }
    QString &asString(QString &out, const QString &) const override { return out; }
    vks::CVec2<double> &asPoint(vks::CVec2<double> &out, const std::wstring &) const override { return out; }
    Curve &asCurve(Curve &out, const QString &) const override { return out; }
    Curve &asCurve(Curve &out, const std::wstring &) const override { return out; }
    void setInt(const std::wstring &, int, bool) override {}
    void setDouble(const std::wstring &, double, bool) override {}
    void setString(const std::wstring &, const QString &, bool) override {}
    void setPoint(const std::wstring &, const vks::CVec2<double> *, bool) override {}
    void setCurve(const std::wstring &, const vks::CCurve2d *, bool) override {}
    void setPolygon(const std::wstring &, const vks::CPolygon *, bool) override {}

private:
    QString note(const char *how, const std::wstring &name) const
    {
        QString key = QString::fromStdWString(name);
        asked.append(QLatin1String(how) + QLatin1Char(' ') + key);
        if (!failing.isEmpty() && key == failing)
            throw HBXModelException(QStringLiteral("cannot be read"));
        return key;
    }
};

class Region : public IHBXRegion
{
public:
    qint64 id() const override { return 1; }
    QString name() const override { return QStringLiteral("House"); }
    IHBXFloors *floors() override { return nullptr; }
};

class Floor : public IHBXFloor
{
public:
    int id() const override { return 2; }
    QString &code(QString &out) const override { return out = QStringLiteral("1"); }
    QString name() const override { return QStringLiteral("Level 1"); }
    double bottomElev() const override { return 0.0; }
    double height() const override { return 3.0; }
    int standardFloorCount() const override { return 1; }
    double topElev() const override { return 3.0; }
    bool flag() const override { return false; }
    void drawObjsOfTypes(QList<IHBXElementDrawObj *> &, const QSet<qint64> &, bool) override {}
    IHBXRegion *region() const override { return nullptr; }
    QString remark() const override { return {}; }
};

class Element : public IHBXElement
{
public:
    qint64 number = 0;
    int order = 0;
    QString label = QStringLiteral("E1");
    Properties own;
    Region *inRegion = nullptr;
    Floor *onFloor = nullptr;

    int objectKind() const override { return kElement; }
    qint64 id() const override { return 3; }
    qint64 type() const override { return number; }
    qint64 subType() const override { return 0; }
    IHBXRegion *region() const override { return inRegion; }
    IHBXFloor *floor() const override { return onFloor; }
    IHBXProperties *properties() override { return &own; }
    int orderNumber() const override { return order; }
    QString &name(QString &out) const override { return out = label; }
    void setName(const QString &) override {}
    void remove() override {}
    int drawObjCount() const override { return 1; }
    void drawObjs(QList<IHBXElementDrawObj *> &, int) override {}
    IHBXElement *parent() const override { return nullptr; }
};

/** A shape of any interface; kindNumber is what it says of itself. */
template <typename Interface> class Shape : public Interface
{
public:
    int kindNumber = 0;
    vks::CCoord3<double> frame;
    vks::CBox2<double> plan;
    Polygon outline;

    int kind() const override { return kindNumber; }
    vks::CCoord3<double> &coordinates(vks::CCoord3<double> &out, bool) const override { return out = frame; }
    vks::CBox2<double> &box(vks::CBox2<double> &out, bool) const override { return out = plan; }
    Polygon &worldPoly(Polygon &out, bool) const override { return out = outline; }
    void setCoordinates(const vks::CCoord3<double> &) override {}
};

class FaceSolid : public Shape<IHBXFaceSolidShape>
{
public:
    void setPolygon(const vks::CPolygon *) override {}
    double height() const override { return 0.0; }
    Polygon &polygon(Polygon &out, bool) const override { return out = outline; }
};

class PointSolid : public Shape<IHBXCustomPointSolidShape>
{
public:
    double turn = 0.0;
    bool mirrored = false;

    vks::CVec2<double> &insertPoint(vks::CVec2<double> &out) const override { return out; }
    void setInsertPoint(const vks::CVec2<double> *) override {}
    double angle() const override { return turn; }
    bool mirror() const override { return mirrored; }
    Polygon &polygon(Polygon &out, bool) const override { return out = outline; }
    void setAngle(double) override {}
    void setMirror(bool) override {}
};

class LineSolid : public Shape<IHBXCustomLineSolidShape>
{
public:
    LineSolid() { kindNumber = kLine; }
    Curve own = new vks::CLine2d({0, 0}, {1000, 0});
    Curve local = new vks::CLine2d({0, 0}, {2000, 0});
    Curve world = new vks::CLine2d({0, 0}, {3000, 0});

    Curve &curve(Curve &out, bool) const override { return out = own; }
    void setLine(const vks::CCurve2d *) override {}
    Curve &localLine(Curve &out, bool) const override { return out = local; }
    Curve &worldLine(Curve &out, bool) const override { return out = world; }
    double width(bool) const override { return 200.0; }
    double distanceToLeft() const override { return 100.0; }
};

class PlanLine : public Shape<IHBXLineShape2D>
{
public:
    PlanLine() { kindNumber = kPlanLine; }
    Curve own = new vks::CLine2d({0, 0}, {4000, 0});

    Curve &curve(Curve &out) const override { return out = own; }
    void setLine(const vks::CCurve2d *) override {}
};

class Section : public IHBXSection, public IHBXSectionHolder
{
public:
    qint64 sectionNumber = 124;
    int sectionKind = 8;
    bool isSet = true;

    qint64 number() const override { return sectionNumber; }
    int kind() const override { return sectionKind; }
    IHBXSection *section() override { return isSet ? this : nullptr; }
};

class DrawObj : public IHBXElementDrawObj
{
public:
    qint64 number = 0;
    qint64 subNumber = 0;
    qint64 ownId = 77;
    Element *of = nullptr;
    IHBXShape *placed = nullptr;
    Section *withSection = nullptr;
    Properties own;
    std::vector<DrawObj *> children;

    int objectKind() const override { return kDrawObj; }
    qint64 id() const override { return ownId; }
    qint64 type() const override { return number; }
    qint64 subType() const override { return subNumber; }
    IHBXRegion *region() const override { return nullptr; }
    IHBXFloor *floor() const override { return nullptr; }
    IHBXProperties *properties() override { return &own; }
    IHBXElementDrawObj *cloneDrawObj(int, int, int) override { return nullptr; }
    void remove() override {}
    IHBXElement *element() const override { return of; }
    IHBXShape *shape() override { return placed; }
    IHBXDrawObjStatus *status() override { return nullptr; }
    int childCount() const override { return static_cast<int>(children.size()); }
    IHBXElementDrawObj *child(int index) const override { return children[static_cast<std::size_t>(index)]; }
    void attachTo(IHBXElementDrawObj *) override {}
    IHBXSectionHolder *sectionHolder() override { return withSection; }
    IHBXElementDrawObj *chainHead() override { return nullptr; }
    IHBXElementDrawObj *nextInChain() override { return nullptr; }
    void linkNext(IHBXElementDrawObj *) override {}
    IHBXElementDrawObj *parent() const override { return nullptr; }
};

/** A model of some draw objects, null ones among them, which are given for their type; null ones for every type. */
class Model : public IHBXModel, public IHBXDrawObjs
{
public:
    QList<DrawObj *> objects;

    IHBXDrawObjs *drawObjects() override { return this; }
    void queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &, const QSet<qint64> &types, bool) override
    {
        for (DrawObj *object : qAsConst(objects))
            if (!object || types.contains(object->number))
                out.append(object);
    }

    vks::CDatabase *database() override { return nullptr; }
    IHBXRegions *regions() override { return nullptr; }
    IHBXElements *elements() override { return nullptr; }
    IHBXCheck *checker() override { return nullptr; }
    void beginBatch(const std::string &, bool) override {}
    void endBatch(const std::string &) override {}
    void refresh(int) override {}
    IHBXElementDrawObj *createDrawObj(IHBXFloor *, IHBXElement *, bool) override { return nullptr; }
    void addDrawObj(IHBXElementDrawObj *) override {}
    IHBXElementDrawObj *drawObjById(qint64) override { return nullptr; }
    void queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &, int, int, int, bool) override {}
    int count() const override { return objects.size(); }
    IHBXElementDrawObj *at(int position) override { return objects.value(position); }
};

} // namespace seathost
