#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CBox2.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"
#include "slab/AxisGrid_Sample.h"
#include "slab/BoardLocalModel.h"

#include <QString>
#include <QUuid>
#include <QtGlobal>

#include <functional>
#include <memory>

// The elements of the slab model: what all have in common, supports, slabs with their holes, rafts, axis nets. Bars
// stand in BoardLocalModelBars.h.
//
// Elements are made by the model, or with a parent told, which owns them then; without one they belong to the caller.
// A moved element takes name, fields, properties, children and place of the other, and its properties are those of its
// own fields.

// NOLINTBEGIN(performance-noexcept-move-constructor): handlers of events may throw

/** What every element has.
 *
 *  Properties: "名称" is name. As all bound properties here, it converts what is written as Any::to does; a number for
 *  an integer loses its fraction, and is 0 where it does not fit into 32 bits. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Object : public cv::Object_AI
{
public:
    /** Kinds of elements, each one bit: searches take an OR of them. */
    enum Types : int {
        BeamKind = 1,
        WallKind = 2,
        BoardKind = 4,
        BoardHoleKind = 8,
        ForcedBarKind = 16,
        StraddleForcedBarKind = 32,
        NegativeForcedBarKind = 64,
        ColumnKind = 128,
        AxisNetKind = 256,
        RaftKind = 512,
        RaftMainForcedBarKind = 1024,
        RaftMainStraddleForcedBarKind = 2048,
        RaftNegativeForcedBarKind = 4096,
        AllKinds = 8191
    };
    class Shape;

    /** Takes name, fields, children and place; the properties are bound to the own fields. */
    Object(Object &&other);
    ~Object() override;

    /** Where the element lies. The result reads the geometry anew at each question and lives no longer than the element.
     *  The last of the virtual operations. */
    virtual Shape shape() const = 0;

    /** The kind: as the element was made, unless text that it was read from told another one. */
    Types type() const { return m_type; }

    qint64 elementId = -1; ///< id of the host element; -1 without one
    QString name;          ///< of the element in the host
    QString stateDescript; ///< the host's remark
    QUuid recongnizedID;   ///< identity in the local model, kept in text; null where none was given

protected:
    /** Of that kind; owned by the parent, if there is one. */
    Object(Types kind, cv::Object_AI *parent);

    /** Binds all properties of the element, those of its bases first; called when one is asked for. */
    virtual void bindProperties();

private:
    friend ORVCADBoardLocalModelPersistenceService_Sample; // overwrites the kind of columns
    friend ORVCADBoardLocalModelTestAccess;

    using PropertyObject = gp::Object_AI<cv::Object_AI *, QString, Any>;

    void bindPropertiesLater();

    Types m_type;
};

/** The box of an element, worked out when asked. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Object::Shape
{
public:
    using BoxFunction = std::function<vks::CBox2<double>()>; ///< gives the box as it is then, mm

    /** Neither the owner nor what the function reads is owned; both live longer. */
    Shape(const Object *owner, BoxFunction boxFunction);

    /** The element that the box is of. */
    const Object *owner() const { return m_owner; }
    /** As told; may be empty. */
    const BoxFunction &boxFunction() const { return m_box; }
    /** Calls the function; std::bad_function_call for an empty one. */
    vks::CBox2<double> box() const { return m_box(); }

private:
    const Object *m_owner;
    BoxFunction m_box;
};

/** An element with a centre curve. Its shape is the box of the curve, which is empty without one.
 *  Properties: "起点顶标高" is startTopElev, "终点顶标高" endTopElev. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::LineObject : public Object
{
public:
    LineObject(LineObject &&other); ///< takes fields, children and place of the other
    ~LineObject() override;

    Shape shape() const override;

    vks::CRefPtr<vks::CCurve2d> line; ///< centre curve
    double startTopElev = 0.0;        ///< as the host gives it; 0 for walls and bars, which never set it
    double endTopElev = 0.0;          ///< likewise

protected:
    LineObject(Types kind, cv::Object_AI *parent); ///< called by the classes of each kind

    void bindProperties() override;
};

/** An element with an outline. Its shape is the box of the outline, which is empty without one. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::SectionObject : public Object
{
public:
    SectionObject(SectionObject &&other); ///< takes fields, children and place of the other
    ~SectionObject() override;

    Shape shape() const override;

    vks::CRefPtr<vks::CPolygon> surface; ///< outline

protected:
    SectionObject(Types kind, cv::Object_AI *parent); ///< called by the classes of each kind
};

// ---- Supports

/** A support along a curve.
 *  Properties: "支座宽度" is distanceToLeft, and width has none. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Support : public LineObject
{
public:
    Support(Support &&other); ///< takes fields, children and place of the other
    ~Support() override;

    double width = 0.0;          ///< of the whole section, mm
    double distanceToLeft = 0.0; ///< from the curve to the left side of the section, mm
    qint32 supportType = 0;      ///< only text reads and writes it

protected:
    Support(Types kind, cv::Object_AI *parent); ///< called by the classes of each kind

private:
    void bindProperties() override;
};

/** Its elevations are startTopElev and endTopElev. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Beam final : public Support
{
public:
    explicit Beam(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    Beam(Beam &&other);                             ///< takes fields, children and place of the other
    ~Beam() override;
};

/** Its elevations are wallStartTopElev and wallEndTopElev, which text does not keep. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Wall final : public Support
{
public:
    explicit Wall(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    Wall(Wall &&other);                             ///< takes fields, children and place of the other
    ~Wall() override;

    double wallStartTopElev = 0.0; ///< as the host gives it
    double wallEndTopElev = 0.0;   ///< likewise
};

/** Text that it is read from sets its kind to the number there, whatever that is (docs/formats/slab-model.md). */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Column final : public SectionObject
{
public:
    explicit Column(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    Column(Column &&other);                           ///< takes fields, children and place of the other
    ~Column() override;

    double topElev = 0.0; ///< as the host gives it
};

// ---- Slabs, holes and rafts

/** A slab.
 *  Properties: "厚度" is thickness, "顶标高" elev, "类型" boardType. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Board final : public SectionObject
{
public:
    /** The host's kinds of slabs. The model only stores the number, so any may come. */
    enum Types : int {};

    explicit Board(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    Board(Board &&other);                            ///< takes fields, children and place of the other
    ~Board() override;

    double thickness = 0.0;    ///< mm
    double elev = 0.0;         ///< of its top, m
    Types boardType = Types(); ///< written to text and never read

private:
    void bindProperties() override;
};

/** A hole in a slab, with the bars at its edge.
 *  Properties: "板边加筋" is barInfo. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::BoardHole final : public SectionObject
{
public:
    explicit BoardHole(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    BoardHole(BoardHole &&other);                        ///< takes fields, children and place of the other
    ~BoardHole() override;

    QString barInfo;               ///< bar text of the edge; the host tells none
    QString shortSpanReinforceBar; ///< bar text of those along the short span
    QString longSpanReinforceBar;  ///< bar text of those along the long span
    QString obliqueReinforceBar;   ///< bar text of the oblique ones

private:
    void bindProperties() override;
};

/** A raft foundation.
 *  Properties: "厚度" is thickness, "顶标高" topElev. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::Raft final : public SectionObject
{
public:
    explicit Raft(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    Raft(Raft &&other);                             ///< takes fields, children and place of the other
    ~Raft() override;

    double thickness = 0.0;  ///< mm
    double topElev = 0.0;    ///< m
    double bottomElev = 0.0; ///< m

private:
    void bindProperties() override;
};

// ---- Axes

/** An axis net. Its shape is the box of its outline. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::AxisNet final : public Object
{
public:
    explicit AxisNet(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    AxisNet(AxisNet &&other);                          ///< takes fields, children and place of the other
    ~AxisNet() override;

    Shape shape() const override;

    vks::CRefPtr<vks::CPolygon> surface;       ///< outline
    std::shared_ptr<AxisGrid_Sample> axisGrid; ///< null until the net is read
};

// NOLINTEND(performance-noexcept-move-constructor)
