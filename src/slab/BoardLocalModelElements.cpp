#include "slab/BoardLocalModelElements.h"

#include "slab/BoardLocalModelProperties.h"

#include <utility>

namespace {

/** The box of a geometry that an element holds, as it is when asked. */
template <typename Geometry>
ORVCADBoardLocalModel_Sample::Object::Shape::BoxFunction boxOf(const vks::CRefPtr<Geometry> &geometry)
{
    return [&geometry] { return geometry ? geometry->Box() : vks::CBox2<double>(); };
}

} // namespace

ORVCADBoardLocalModel_Sample::Object::Object(Types kind, cv::Object_AI *parent) : cv::Object_AI(parent), m_type(kind)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Object::Object(Object &&other)
    : cv::Object_AI(std::move(other)), elementId(other.elementId), name(std::move(other.name)),
      stateDescript(std::move(other.stateDescript)), recongnizedID(other.recongnizedID), m_type(other.m_type)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Object::~Object() = default;

void ORVCADBoardLocalModel_Sample::Object::bindProperties() { slab::bindProperty(*this, slab::property::name(), name); }

ORVCADBoardLocalModel_Sample::Object::Shape::Shape(const Object *owner, BoxFunction boxFunction)
    : m_owner(owner), m_box(std::move(boxFunction))
{}

ORVCADBoardLocalModel_Sample::LineObject::LineObject(Types kind, cv::Object_AI *parent) : Object(kind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::LineObject::LineObject(LineObject &&other)
    : Object(std::move(other)), line(std::move(other.line)), startTopElev(other.startTopElev),
      endTopElev(other.endTopElev)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::LineObject::~LineObject() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::LineObject::shape() const
{
    return {this, boxOf(line)};
}

void ORVCADBoardLocalModel_Sample::LineObject::bindProperties()
{
    slab::bindProperty(*this, slab::property::startTopElev(), startTopElev);
    slab::bindProperty(*this, slab::property::endTopElev(), endTopElev);
}

ORVCADBoardLocalModel_Sample::SectionObject::SectionObject(Types kind, cv::Object_AI *parent) : Object(kind, parent) {}
ORVCADBoardLocalModel_Sample::SectionObject::SectionObject(SectionObject &&other) = default;
ORVCADBoardLocalModel_Sample::SectionObject::~SectionObject() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::SectionObject::shape() const
{
    return {this, boxOf(surface)};
}

// ---- Supports

ORVCADBoardLocalModel_Sample::Support::Support(Types kind, cv::Object_AI *parent) : LineObject(kind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Support::Support(Support &&other)
    : LineObject(std::move(other)), width(other.width), distanceToLeft(other.distanceToLeft),
      supportType(other.supportType)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Support::~Support() = default;

void ORVCADBoardLocalModel_Sample::Support::bindProperties()
{
    slab::bindProperty(*this, slab::property::supportWidth(), width);
    // Meant: the second takes the place of the first, so that width has no property.
    slab::bindProperty(*this, slab::property::supportWidth(), distanceToLeft);
}

ORVCADBoardLocalModel_Sample::Beam::Beam(cv::Object_AI *parent) : Support(BeamKind, parent) {}
ORVCADBoardLocalModel_Sample::Beam::Beam(Beam &&other) = default;
ORVCADBoardLocalModel_Sample::Beam::~Beam() = default;

ORVCADBoardLocalModel_Sample::Wall::Wall(cv::Object_AI *parent) : Support(WallKind, parent) {}
ORVCADBoardLocalModel_Sample::Wall::Wall(Wall &&other) = default;
ORVCADBoardLocalModel_Sample::Wall::~Wall() = default;

ORVCADBoardLocalModel_Sample::Column::Column(cv::Object_AI *parent) : SectionObject(ColumnKind, parent) {}
ORVCADBoardLocalModel_Sample::Column::Column(Column &&other) = default;
ORVCADBoardLocalModel_Sample::Column::~Column() = default;

// ---- Slabs, holes and rafts

ORVCADBoardLocalModel_Sample::Board::Board(cv::Object_AI *parent) : SectionObject(BoardKind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Board::Board(Board &&other)
    : SectionObject(std::move(other)), thickness(other.thickness), elev(other.elev), boardType(other.boardType)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Board::~Board() = default;

void ORVCADBoardLocalModel_Sample::Board::bindProperties()
{
    slab::bindProperty(*this, slab::property::thickness(), thickness);
    slab::bindProperty(*this, slab::property::topElev(), elev);
    slab::bindProperty(*this, slab::property::boardType(), boardType);
}

ORVCADBoardLocalModel_Sample::BoardHole::BoardHole(cv::Object_AI *parent) : SectionObject(BoardHoleKind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::BoardHole::BoardHole(BoardHole &&other)
    : SectionObject(std::move(other)), barInfo(std::move(other.barInfo)),
      shortSpanReinforceBar(std::move(other.shortSpanReinforceBar)),
      longSpanReinforceBar(std::move(other.longSpanReinforceBar)),
      obliqueReinforceBar(std::move(other.obliqueReinforceBar))
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::BoardHole::~BoardHole() = default;

void ORVCADBoardLocalModel_Sample::BoardHole::bindProperties()
{
    slab::bindProperty(*this, slab::property::edgeBars(), barInfo);
}

ORVCADBoardLocalModel_Sample::Raft::Raft(cv::Object_AI *parent) : SectionObject(RaftKind, parent) { bindProperties(); }
ORVCADBoardLocalModel_Sample::Raft::Raft(Raft &&other)
    : SectionObject(std::move(other)), thickness(other.thickness), topElev(other.topElev), bottomElev(other.bottomElev)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::Raft::~Raft() = default;

void ORVCADBoardLocalModel_Sample::Raft::bindProperties()
{
    slab::bindProperty(*this, slab::property::thickness(), thickness);
    slab::bindProperty(*this, slab::property::topElev(), topElev);
}

// ---- Axes

ORVCADBoardLocalModel_Sample::AxisNet::AxisNet(cv::Object_AI *parent) : Object(AxisNetKind, parent) {}
ORVCADBoardLocalModel_Sample::AxisNet::AxisNet(AxisNet &&other) = default;
ORVCADBoardLocalModel_Sample::AxisNet::~AxisNet() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::AxisNet::shape() const
{
    return {this, boxOf(surface)};
}
