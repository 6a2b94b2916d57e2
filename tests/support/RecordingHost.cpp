#include "support/RecordingHost.h"

#include "support/RecordingShapes.h"
#include "support/RecordingState.h"

#include "platform/host/IHBXCheck.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXProperty.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

namespace {

using State = RecordingHost::State;

QString quoted(const QString &text) { return '"' + text + '"'; }

QString quoted(const std::wstring &text) { return quoted(QString::fromStdWString(text)); }

QString nameOf(IHBXFloor *floor)
{
    QString code;
    return floor ? "floor " + floor->code(code) : "null";
}

QString nameOf(IHBXElement *element)
{
    QString name;
    return element ? "element " + element->name(name) : "null";
}

QString nameOf(IHBXElementDrawObj *object)
{
    QString name;
    return object ? "object of " + object->element()->name(name) : "null";
}

QString listed(const QSet<qint64> &numbers)
{
    QStringList texts;
    QList<qint64> sorted = numbers.values();
    std::sort(sorted.begin(), sorted.end());
    for (qint64 number : qAsConst(sorted))
        texts.append(QString::number(number));
    return "{" + texts.join(", ") + "}";
}

class RecordingFloor;
class RecordingElement;
class RecordingDrawObj;
IHBXRegion *wrap(State &state, IHBXRegion *real);
IHBXFloor *wrap(State &state, IHBXFloor *real);
IHBXElement *wrap(State &state, IHBXElement *real);
IHBXElementDrawObj *wrap(State &state, IHBXElementDrawObj *real);
IHBXProperties *wrap(State &state, IHBXProperties *real);

template <typename Object> QList<Object *> &wrapAll(State &state, QList<Object *> &objects)
{
    for (Object *&object : objects)
        object = wrap(state, object);
    return objects;
}

/** Made for each asking, as the real one is. */
class RecordingProperty : public Recording<IHBXProperty>
{
public:
    RecordingProperty(State &state, std::shared_ptr<IHBXProperty> real) : Recording(state, *real), m_kept(real) {}
    bool hasValue() const override { return m_real.hasValue(); }
    int intValue() const override { return m_real.intValue(); }
    void revert() override
    {
        called("property.revert");
        m_real.revert();
    }
    void setInt(int value, bool flag) override
    {
        called("property.setInt", value, flag);
        m_real.setInt(value, flag);
    }
    void setString(const QString &value, bool flag) override
    {
        called("property.setString", quoted(value), flag);
        m_real.setString(value, flag);
    }

private:
    std::shared_ptr<IHBXProperty> m_kept;
};

class RecordingProperties : public Recording<IHBXProperties>
{
public:
    using Recording::Recording;
    bool hasProperty(const std::wstring &name) const override { return m_real.hasProperty(name); }
    std::shared_ptr<IHBXProperty> &property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name) override
    {
        called("property", quoted(name));
        if (m_real.property(out, name))
            out = std::make_shared<RecordingProperty>(m_state, out);
        return out;
    }
    bool isNull(const std::wstring &name) const override { return m_real.isNull(name); }
    int asInt(const QString &key) const override { return m_real.asInt(key); }
    int asInt(const std::wstring &name) const override { return m_real.asInt(name); }
    double asDouble(const QString &key) const override { return m_real.asDouble(key); }
    double asDouble(const std::wstring &name) const override { return m_real.asDouble(name); }
    QString &asString(QString &out, const QString &key) const override { return m_real.asString(out, key); }
    QString &asString(QString &out, const std::wstring &name) const override { return m_real.asString(out, name); }
    vks::CVec2<double> &asPoint(vks::CVec2<double> &out, const std::wstring &name) const override
    {
        return m_real.asPoint(out, name);
    }
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const QString &key) const override
    {
        return m_real.asCurve(out, key);
    }
    vks::CRefPtr<vks::CCurve2d> &asCurve(vks::CRefPtr<vks::CCurve2d> &out, const std::wstring &name) const override
    {
        return m_real.asCurve(out, name);
    }
    vks::CRefPtr<vks::CPolygon> &asPolygon(vks::CRefPtr<vks::CPolygon> &out, const std::wstring &name) const override
    {
        return m_real.asPolygon(out, name);
    }
    void setInt(const std::wstring &name, int value, bool flag) override
    {
        called("setInt", quoted(name), value, flag);
        m_real.setInt(name, value, flag);
    }
    void setDouble(const std::wstring &name, double value, bool flag) override
    {
        called("setDouble", quoted(name), value, flag);
        m_real.setDouble(name, value, flag);
    }
    void setString(const std::wstring &name, const QString &value, bool flag) override
    {
        called("setString", quoted(name), quoted(value), flag);
        m_real.setString(name, value, flag);
    }
    void setPoint(const std::wstring &name, const vks::CVec2<double> *value, bool flag) override
    {
        called("setPoint", quoted(name), textOf(value), flag);
        m_real.setPoint(name, value, flag);
    }
    void setCurve(const std::wstring &name, const vks::CCurve2d *value, bool flag) override
    {
        called("setCurve", quoted(name), textOf(value), flag);
        m_real.setCurve(name, value, flag);
    }
    void setPolygon(const std::wstring &name, const vks::CPolygon *value, bool flag) override
    {
        called("setPolygon", quoted(name), textOf(value), flag);
        m_real.setPolygon(name, value, flag);
    }
};

class RecordingFloor : public Recording<IHBXFloor>
{
public:
    using Recording::Recording;
    int id() const override { return m_real.id(); }
    QString &code(QString &out) const override { return m_real.code(out); }
    QString name() const override { return m_real.name(); }
    double bottomElev() const override { return m_real.bottomElev(); }
    double height() const override { return m_real.height(); }
    int standardFloorCount() const override { return m_real.standardFloorCount(); }
    double topElev() const override { return m_real.topElev(); }
    bool flag() const override { return m_real.flag(); }
    void drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool on) override
    {
        called("drawObjsOfTypes", listed(types), on);
        m_real.drawObjsOfTypes(out, types, on);
        wrapAll(m_state, out);
    }
    IHBXRegion *region() const override { return wrap(m_state, m_real.region()); }
    QString remark() const override { return m_real.remark(); }
    IHBXElementDrawObj *findDrawObj(qint64 id, const QSet<qint64> &types) override
    {
        return wrap(m_state, m_real.findDrawObj(id, types));
    }
};

class RecordingFloors : public Recording<IHBXFloors>
{
public:
    using Recording::Recording;
    IHBXFloor *find(const QString &floorName) override
    {
        called("findFloor", quoted(floorName));
        return wrap(m_state, m_real.find(floorName));
    }
    IHBXFloor *findByCode(const QString &code) override
    {
        called("findByCode", quoted(code));
        return wrap(m_state, m_real.findByCode(code));
    }
    int count() const override { return m_real.count(); }
    IHBXFloor *at(int position) override { return wrap(m_state, m_real.at(position)); }
};

class RecordingRegion : public Recording<IHBXRegion>
{
public:
    using Recording::Recording;
    qint64 id() const override { return m_real.id(); }
    QString name() const override { return m_real.name(); }
    IHBXFloors *floors() override { return m_state.wrapped<RecordingFloors>(m_real.floors()); }
};

class RecordingRegions : public Recording<IHBXRegions>
{
public:
    using Recording::Recording;
    IHBXRegion *find(const QString &regionName) override
    {
        called("findRegion", quoted(regionName));
        return wrap(m_state, m_real.find(regionName));
    }
    int count() const override { return m_real.count(); }
    IHBXRegion *at(int position) override { return wrap(m_state, m_real.at(position)); }
};

/** What elements and draw objects have in common. */
template <typename Interface> class RecordingObject : public Recording<Interface>
{
public:
    using Recording<Interface>::Recording;
    int objectKind() const override { return this->m_real.objectKind(); }
    qint64 id() const override { return this->m_real.id(); }
    qint64 type() const override { return this->m_real.type(); }
    qint64 subType() const override { return this->m_real.subType(); }
    IHBXRegion *region() const override { return wrap(this->m_state, this->m_real.region()); }
    IHBXFloor *floor() const override { return wrap(this->m_state, this->m_real.floor()); }
    IHBXProperties *properties() override { return wrap(this->m_state, this->m_real.properties()); }
};

class RecordingElement : public RecordingObject<IHBXElement>
{
public:
    using RecordingObject::RecordingObject;
    int orderNumber() const override { return m_real.orderNumber(); }
    QString &name(QString &out) const override { return m_real.name(out); }
    void setName(const QString &name) override
    {
        called("setName", quoted(name));
        m_real.setName(name);
    }
    void remove() override
    {
        called("removeElement", nameOf(&m_real));
        m_real.remove();
    }
    int drawObjCount() const override { return m_real.drawObjCount(); }
    void drawObjs(QList<IHBXElementDrawObj *> &out, int mode) override
    {
        m_real.drawObjs(out, mode);
        wrapAll(m_state, out);
    }
    IHBXElement *parent() const override { return wrap(m_state, m_real.parent()); }
};

class RecordingElements : public Recording<IHBXElements>
{
public:
    using Recording::Recording;
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXElement *parent, IHBXFloor *floor, int mode,
                               const QString &name, int flag) override
    {
        called("createElement", type, subType, nameOf(parent), nameOf(floor), mode, quoted(name), flag);
        return wrap(m_state, m_real.createElement(type, subType, RecordingElement::realOf(parent),
                                                  RecordingFloor::realOf(floor), mode, name, flag));
    }
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name) override
    {
        called("createElement", type, subType, nameOf(floor), quoted(name));
        return wrap(m_state, m_real.createElement(type, subType, RecordingFloor::realOf(floor), name));
    }
    IHBXElement *elementById(qint64 id) override { return wrap(m_state, m_real.elementById(id)); }
    IHBXElement *findElement(const QString &name, int floorId, qint64 type, bool on, int flag) override
    {
        called("findElement", quoted(name), floorId, type, on, flag);
        return wrap(m_state, m_real.findElement(name, floorId, type, on, flag));
    }
    void queryElements(QList<IHBXElement *> &out, const QSet<qint64> &floorIds, const QSet<qint64> &elementTypes,
                       bool on) override
    {
        called("queryElements", listed(floorIds), listed(elementTypes), on);
        m_real.queryElements(out, floorIds, elementTypes, on);
        wrapAll(m_state, out);
    }
    void queryElementsOnFloor(QList<IHBXElement *> &out, qint64 floorId, qint64 type, bool on) override
    {
        called("queryElementsOnFloor", floorId, type, on);
        m_real.queryElementsOnFloor(out, floorId, type, on);
        wrapAll(m_state, out);
    }
    QString &uniqueName(QString &out, qint64 floorId, qint64 type, const QString &name) override
    {
        called("uniqueName", floorId, type, quoted(name));
        return m_real.uniqueName(out, floorId, type, name);
    }
    int count() const override { return m_real.count(); }
    IHBXElement *at(int position) override { return wrap(m_state, m_real.at(position)); }
};

class RecordingStatus : public Recording<IHBXDrawObjStatus>
{
public:
    using Recording::Recording;
    void setLayer(int layer) override
    {
        called("setLayer", layer);
        m_real.setLayer(layer);
    }
    void setState(int state) override
    {
        called("setState", state);
        m_real.setState(state);
    }
    int layer() const override { return m_real.layer(); }
    int state() const override { return m_real.state(); }
};

class RecordingDrawObj : public RecordingObject<IHBXElementDrawObj>
{
public:
    using RecordingObject::RecordingObject;
    IHBXElementDrawObj *cloneDrawObj(int mode, int flag, int depth) override
    {
        called("cloneDrawObj", mode, flag, depth);
        return wrap(m_state, m_real.cloneDrawObj(mode, flag, depth));
    }
    void remove() override
    {
        called("removeDrawObj", nameOf(&m_real));
        m_real.remove();
    }
    IHBXElement *element() const override { return wrap(m_state, m_real.element()); }
    IHBXShape *shape() override { return recordingShape(m_state, m_real.shape()); }
    IHBXDrawObjStatus *status() override { return m_state.wrapped<RecordingStatus>(m_real.status()); }
    int childCount() const override { return m_real.childCount(); }
    IHBXElementDrawObj *child(int index) const override { return wrap(m_state, m_real.child(index)); }
    void attachTo(IHBXElementDrawObj *parent) override
    {
        called("attachTo", nameOf(parent));
        m_real.attachTo(realOf(parent));
    }
    IHBXSectionHolder *sectionHolder() override { return m_real.sectionHolder(); }
    IHBXElementDrawObj *chainHead() override { return wrap(m_state, m_real.chainHead()); }
    IHBXElementDrawObj *nextInChain() override { return wrap(m_state, m_real.nextInChain()); }
    void linkNext(IHBXElementDrawObj *next) override
    {
        called("linkNext", nameOf(next));
        m_real.linkNext(realOf(next));
    }
    IHBXElementDrawObj *parent() const override { return wrap(m_state, m_real.parent()); }
};

class RecordingDrawObjs : public Recording<IHBXDrawObjs>
{
public:
    using Recording::Recording;
    IHBXElementDrawObj *createDrawObj(IHBXFloor *floor, IHBXElement *element, bool on) override
    {
        called("createDrawObj", nameOf(floor), nameOf(element), on);
        return wrap(m_state,
                    m_real.createDrawObj(RecordingFloor::realOf(floor), RecordingElement::realOf(element), on));
    }
    void addDrawObj(IHBXElementDrawObj *drawObj) override
    {
        called("addDrawObj", nameOf(drawObj));
        m_real.addDrawObj(RecordingDrawObj::realOf(drawObj));
    }
    IHBXElementDrawObj *drawObjById(qint64 id) override { return wrap(m_state, m_real.drawObjById(id)); }
    void queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &floorIds, const QSet<qint64> &elementTypes,
                       bool on) override
    {
        called("queryDrawObjs", listed(floorIds), listed(elementTypes), on);
        m_real.queryDrawObjs(out, floorIds, elementTypes, on);
        wrapAll(m_state, out);
    }
    void queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &out, int floorId, int elementType, int subType,
                              bool on) override
    {
        called("queryDrawObjsOfFloor", floorId, elementType, subType, on);
        m_real.queryDrawObjsOfFloor(out, floorId, elementType, subType, on);
        wrapAll(m_state, out);
    }
    void queryDrawObjsInBox(QList<IHBXElementDrawObj *> &out, int floorId, int elementType,
                            const vks::CBox2<double> &box, double tolerance) override
    {
        called("queryDrawObjsInBox", floorId, elementType, textOf(&box.minPt), textOf(&box.maxPt), tolerance);
        m_real.queryDrawObjsInBox(out, floorId, elementType, box, tolerance);
        wrapAll(m_state, out);
    }
    int count() const override { return m_real.count(); }
    IHBXElementDrawObj *at(int position) override { return wrap(m_state, m_real.at(position)); }
};

class RecordingCheck : public Recording<IHBXCheck>
{
public:
    using Recording::Recording;
    bool checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error, std::map<qint64, QString> &collisions) override
    {
        called("checkDrawObj", nameOf(drawObj));
        return m_real.checkDrawObj(RecordingDrawObj::realOf(drawObj), error, collisions);
    }
};

class RecordingCurState : public Recording<IHBXCurState>
{
public:
    using Recording::Recording;
    IHBXRegion *region() override { return wrap(m_state, m_real.region()); }
    IHBXFloor *floor() override { return wrap(m_state, m_real.floor()); }
    int currentLayer(int kind) override { return m_real.currentLayer(kind); }
    int layer() override { return m_real.layer(); }
};

class RecordingModel : public Recording<IHBXModel>
{
public:
    using Recording::Recording;
    vks::CDatabase *database() override { return m_real.database(); }
    IHBXRegions *regions() override { return m_state.wrapped<RecordingRegions>(m_real.regions()); }
    IHBXElements *elements() override { return m_state.wrapped<RecordingElements>(m_real.elements()); }
    IHBXDrawObjs *drawObjects() override { return m_state.wrapped<RecordingDrawObjs>(m_real.drawObjects()); }
    IHBXCheck *checker() override { return m_state.wrapped<RecordingCheck>(m_real.checker()); }
    void beginBatch(const std::string &key, bool on) override
    {
        called("beginBatch", quoted(QString::fromStdString(key)), on);
        m_real.beginBatch(key, on);
    }
    void endBatch(const std::string &key) override
    {
        called("endBatch", quoted(QString::fromStdString(key)));
        m_real.endBatch(key);
    }
    void refresh(int mode) override
    {
        called("refresh", mode);
        m_real.refresh(mode);
    }
};

class RecordingService : public Recording<IHBXService>
{
public:
    using Recording::Recording;
    IHBXModel *model() override { return m_state.wrapped<RecordingModel>(m_real.model()); }
    IHBXCurState *curState() override { return m_state.wrapped<RecordingCurState>(m_real.curState()); }
    qint64 unnamedSetting() override { return m_real.unnamedSetting(); }
};

IHBXRegion *wrap(State &state, IHBXRegion *real) { return state.wrapped<RecordingRegion>(real); }
IHBXFloor *wrap(State &state, IHBXFloor *real) { return state.wrapped<RecordingFloor>(real); }
IHBXElement *wrap(State &state, IHBXElement *real) { return state.wrapped<RecordingElement>(real); }
IHBXElementDrawObj *wrap(State &state, IHBXElementDrawObj *real) { return state.wrapped<RecordingDrawObj>(real); }
IHBXProperties *wrap(State &state, IHBXProperties *real) { return state.wrapped<RecordingProperties>(real); }

} // namespace

RecordingHost::RecordingHost(IHBXService &host) : m_state(std::make_unique<State>())
{
    m_state->service = std::make_unique<RecordingService>(*m_state, host);
}

RecordingHost::~RecordingHost() = default;

IHBXService *RecordingHost::service() const { return m_state->service.get(); }

const QStringList &RecordingHost::calls() const { return m_state->calls; }

void RecordingHost::beforeCall(std::function<void(const QString &)> hook) { m_state->beforeCall = std::move(hook); }
