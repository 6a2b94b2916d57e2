#include "support/RecordingHost.h"

#include "support/RecordingProperties.h"
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
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXSection.h"
#include "platform/host/IHBXSectionHolder.h"
#include "platform/host/IHBXService.h"

namespace {

using State = RecordingHost::State;

// The real objects are asked, so that a line costs no calls of the wrappers.

QString nameOf(IHBXFloor *named)
{
    IHBXFloor *floor = Recording<IHBXFloor>::realOf(named);
    QString code;
    return floor ? "floor " + floor->code(code) : "null";
}

QString nameOf(IHBXElement *named)
{
    IHBXElement *element = Recording<IHBXElement>::realOf(named);
    QString name;
    return element ? "element " + element->name(name) : "null";
}

QString nameOf(IHBXElementDrawObj *named)
{
    IHBXElementDrawObj *object = Recording<IHBXElementDrawObj>::realOf(named);
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

class RecordingFloor : public Recording<IHBXFloor>
{
public:
    using Recording::Recording;
    int id() const override { return asked("id").id(); }
    QString &code(QString &out) const override { return asked("code").code(out); }
    QString name() const override { return asked("name").name(); }
    double bottomElev() const override { return asked("bottomElev").bottomElev(); }
    double height() const override { return asked("height").height(); }
    int standardFloorCount() const override { return asked("standardFloorCount").standardFloorCount(); }
    double topElev() const override { return asked("topElev").topElev(); }
    bool flag() const override { return !givesFalse("flag") && m_real.flag(); }
    void drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool on) override
    {
        called("drawObjsOfTypes", listed(types), on);
        m_real.drawObjsOfTypes(out, types, on);
        wrapAll(m_state, out);
    }
    IHBXRegion *region() const override { return wrap(m_state, asked("region").region()); }
    QString remark() const override { return asked("remark").remark(); }
    IHBXElementDrawObj *findDrawObj(qint64 id, const QSet<qint64> &types) override
    {
        return givesNull("findDrawObj") ? nullptr : wrap(m_state, m_real.findDrawObj(id, types));
    }
};

class RecordingFloors : public Recording<IHBXFloors>
{
public:
    using Recording::Recording;
    IHBXFloor *find(const QString &floorName) override
    {
        if (calledForNull("findFloor", quoted(floorName)))
            return nullptr;
        return wrap(m_state, m_real.find(floorName));
    }
    IHBXFloor *findByCode(const QString &code) override
    {
        if (calledForNull("findByCode", quoted(code)))
            return nullptr;
        return wrap(m_state, m_real.findByCode(code));
    }
    int count() const override { return asked("count").count(); }
    IHBXFloor *at(int position) override { return wrap(m_state, asked("at").at(position)); }
};

class RecordingRegion : public Recording<IHBXRegion>
{
public:
    using Recording::Recording;
    qint64 id() const override { return asked("id").id(); }
    QString name() const override { return asked("name").name(); }
    IHBXFloors *floors() override { return m_state.wrapped<RecordingFloors>(asked("floors").floors()); }
};

class RecordingRegions : public Recording<IHBXRegions>
{
public:
    using Recording::Recording;
    IHBXRegion *find(const QString &regionName) override
    {
        if (calledForNull("findRegion", quoted(regionName)))
            return nullptr;
        return wrap(m_state, m_real.find(regionName));
    }
    int count() const override { return asked("count").count(); }
    IHBXRegion *at(int position) override { return wrap(m_state, asked("at").at(position)); }
};

/** What elements and draw objects have in common. */
template <typename Interface> class RecordingObject : public Recording<Interface>
{
public:
    using Recording<Interface>::Recording;
    int objectKind() const override { return this->asked("objectKind").objectKind(); }
    qint64 id() const override { return this->asked("id").id(); }
    qint64 type() const override { return this->asked("type").type(); }
    qint64 subType() const override { return this->asked("subType").subType(); }
    IHBXRegion *region() const override
    {
        return this->givesNull("region") ? nullptr : wrap(this->m_state, this->m_real.region());
    }
    IHBXFloor *floor() const override
    {
        return this->givesNull("floor") ? nullptr : wrap(this->m_state, this->m_real.floor());
    }
    IHBXProperties *properties() override
    {
        return this->givesNull("properties") ? nullptr : wrap(this->m_state, this->m_real.properties());
    }
};

class RecordingElement : public RecordingObject<IHBXElement>
{
public:
    using RecordingObject::RecordingObject;
    int orderNumber() const override { return asked("orderNumber").orderNumber(); }
    QString &name(QString &out) const override { return asked("name").name(out); }
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
    int drawObjCount() const override { return asked("drawObjCount").drawObjCount(); }
    void drawObjs(QList<IHBXElementDrawObj *> &out, int mode) override
    {
        asked("drawObjs").drawObjs(out, mode);
        wrapAll(m_state, out);
    }
    IHBXElement *parent() const override { return givesNull("parent") ? nullptr : wrap(m_state, m_real.parent()); }
};

class RecordingElements : public Recording<IHBXElements>
{
public:
    using Recording::Recording;
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXElement *parent, IHBXFloor *floor, int mode,
                               const QString &name, int flag) override
    {
        if (calledForNull("createElement", type, subType, nameOf(parent), nameOf(floor), mode, quoted(name), flag))
            return nullptr;
        return wrap(m_state, m_real.createElement(type, subType, RecordingElement::realOf(parent),
                                                  RecordingFloor::realOf(floor), mode, name, flag));
    }
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name) override
    {
        if (calledForNull("createElement", type, subType, nameOf(floor), quoted(name)))
            return nullptr;
        return wrap(m_state, m_real.createElement(type, subType, RecordingFloor::realOf(floor), name));
    }
    IHBXElement *elementById(qint64 id) override
    {
        return givesNull("elementById") ? nullptr : wrap(m_state, m_real.elementById(id));
    }
    IHBXElement *findElement(const QString &name, int floorId, qint64 type, bool on, int flag) override
    {
        if (calledForNull("findElement", quoted(name), floorId, type, on, flag))
            return nullptr;
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
    int count() const override { return asked("count").count(); }
    IHBXElement *at(int position) override { return wrap(m_state, asked("at").at(position)); }
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
    int layer() const override { return asked("layer").layer(); }
    int state() const override { return asked("state").state(); }
};

class RecordingSection : public Recording<IHBXSection>
{
public:
    using Recording::Recording;
    qint64 number() const override { return asked("number").number(); }
    int kind() const override { return asked("kind").kind(); }
};

class RecordingSectionHolder : public Recording<IHBXSectionHolder>
{
public:
    using Recording::Recording;
    IHBXSection *section() override
    {
        return givesNull("section") ? nullptr : m_state.wrapped<RecordingSection>(m_real.section());
    }
};

class RecordingDrawObj : public RecordingObject<IHBXElementDrawObj>
{
public:
    using RecordingObject::RecordingObject;
    IHBXElementDrawObj *cloneDrawObj(int mode, int flag, int depth) override
    {
        if (calledForNull("cloneDrawObj", mode, flag, depth))
            return nullptr;
        return wrap(m_state, m_real.cloneDrawObj(mode, flag, depth));
    }
    void remove() override
    {
        called("removeDrawObj", nameOf(&m_real));
        m_real.remove();
    }
    IHBXElement *element() const override { return wrap(m_state, asked("element").element()); }
    IHBXShape *shape() override { return givesNull("shape") ? nullptr : recordingShape(m_state, m_real.shape()); }
    IHBXDrawObjStatus *status() override { return m_state.wrapped<RecordingStatus>(asked("status").status()); }
    int childCount() const override { return asked("childCount").childCount(); }
    IHBXElementDrawObj *child(int index) const override
    {
        return givesNull("child") ? nullptr : wrap(m_state, m_real.child(index));
    }
    void attachTo(IHBXElementDrawObj *parent) override
    {
        called("attachTo", nameOf(parent));
        m_real.attachTo(realOf(parent));
    }
    IHBXSectionHolder *sectionHolder() override
    {
        return givesNull("sectionHolder") ? nullptr : m_state.wrapped<RecordingSectionHolder>(m_real.sectionHolder());
    }
    IHBXElementDrawObj *chainHead() override
    {
        return givesNull("chainHead") ? nullptr : wrap(m_state, m_real.chainHead());
    }
    IHBXElementDrawObj *nextInChain() override
    {
        return givesNull("nextInChain") ? nullptr : wrap(m_state, m_real.nextInChain());
    }
    void linkNext(IHBXElementDrawObj *next) override
    {
        called("linkNext", nameOf(next));
        m_real.linkNext(realOf(next));
    }
    IHBXElementDrawObj *parent() const override
    {
        return givesNull("parent") ? nullptr : wrap(m_state, m_real.parent());
    }
};

class RecordingDrawObjs : public Recording<IHBXDrawObjs>
{
public:
    using Recording::Recording;
    IHBXElementDrawObj *createDrawObj(IHBXFloor *floor, IHBXElement *element, bool on) override
    {
        if (calledForNull("createDrawObj", nameOf(floor), nameOf(element), on))
            return nullptr;
        return wrap(m_state,
                    m_real.createDrawObj(RecordingFloor::realOf(floor), RecordingElement::realOf(element), on));
    }
    void addDrawObj(IHBXElementDrawObj *drawObj) override
    {
        called("addDrawObj", nameOf(drawObj));
        m_real.addDrawObj(RecordingDrawObj::realOf(drawObj));
    }
    IHBXElementDrawObj *drawObjById(qint64 id) override
    {
        return givesNull("drawObjById") ? nullptr : wrap(m_state, m_real.drawObjById(id));
    }
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
    int count() const override { return asked("count").count(); }
    IHBXElementDrawObj *at(int position) override { return wrap(m_state, asked("at").at(position)); }
};

class RecordingCheck : public Recording<IHBXCheck>
{
public:
    using Recording::Recording;
    bool checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error, std::map<qint64, QString> &collisions) override
    {
        if (calledForFalse("checkDrawObj", nameOf(drawObj)))
            return false;
        return m_real.checkDrawObj(RecordingDrawObj::realOf(drawObj), error, collisions);
    }
};

class RecordingCurState : public Recording<IHBXCurState>
{
public:
    using Recording::Recording;
    IHBXRegion *region() override { return givesNull("region") ? nullptr : wrap(m_state, m_real.region()); }
    IHBXFloor *floor() override { return givesNull("floor") ? nullptr : wrap(m_state, m_real.floor()); }
    int currentLayer(int kind) override { return asked("currentLayer").currentLayer(kind); }
    int layer() override { return asked("layer").layer(); }
};

class RecordingModel : public Recording<IHBXModel>
{
public:
    using Recording::Recording;
    vks::CDatabase *database() override { return givesNull("database") ? nullptr : m_real.database(); }
    IHBXRegions *regions() override { return m_state.wrapped<RecordingRegions>(asked("regions").regions()); }
    IHBXElements *elements() override { return m_state.wrapped<RecordingElements>(asked("elements").elements()); }
    IHBXDrawObjs *drawObjects() override
    {
        return m_state.wrapped<RecordingDrawObjs>(asked("drawObjects").drawObjects());
    }
    IHBXCheck *checker() override { return m_state.wrapped<RecordingCheck>(asked("checker").checker()); }
    void beginBatch(const std::string &key, bool on) override
    {
        called("beginBatch", quoted(QString::fromStdString(key)), on);
        m_real.beginBatch(key, on);
        m_state.opened(key);
    }
    void endBatch(const std::string &key) override
    {
        m_state.closing(key);
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
    IHBXModel *model() override { return m_state.wrapped<RecordingModel>(asked("model").model()); }
    IHBXCurState *curState() override { return m_state.wrapped<RecordingCurState>(asked("curState").curState()); }
    qint64 unnamedSetting() override { return asked("unnamedSetting").unnamedSetting(); }
};

IHBXRegion *wrap(State &state, IHBXRegion *real) { return state.wrapped<RecordingRegion>(real); }
IHBXFloor *wrap(State &state, IHBXFloor *real) { return state.wrapped<RecordingFloor>(real); }
IHBXElement *wrap(State &state, IHBXElement *real) { return state.wrapped<RecordingElement>(real); }
IHBXElementDrawObj *wrap(State &state, IHBXElementDrawObj *real) { return state.wrapped<RecordingDrawObj>(real); }
IHBXProperties *wrap(State &state, IHBXProperties *real) { return recordingProperties(state, real); }

} // namespace

RecordingHost::RecordingHost(IHBXService &host) : m_state(std::make_unique<State>())
{
    m_state->service = std::make_unique<RecordingService>(*m_state, host);
}

RecordingHost::~RecordingHost() = default;

IHBXService *RecordingHost::service() const { return m_state->service.get(); }

const QStringList &RecordingHost::calls() const { return m_state->calls; }

void RecordingHost::keepCalls(bool keep) { m_state->keepsCalls = keep; }

void RecordingHost::answerInstead(Interception interception) { m_state->interception = std::move(interception); }

const std::vector<std::string> &RecordingHost::openBrackets() const { return m_state->openBrackets; }

bool RecordingHost::bracketsNest() const { return m_state->bracketsNest; }

void RecordingHost::beforeCall(std::function<void(const QString &)> hook) { m_state->beforeCall = std::move(hook); }
