#include "slab/BoardLocalModelElements.h"

#include "slab/BoardLocalModelProperties.h"

#include <utility>

namespace {

using Model = ORVCADBoardLocalModel_Sample;

/** The box of a geometry that an element holds, as it is when asked. */
template <typename Geometry> Model::Object::Shape::BoxFunction boxOf(const vks::CRefPtr<Geometry> &geometry)
{
    return [&geometry] { return geometry ? geometry->Box() : vks::CBox2<double>(); };
}

} // namespace

// NOLINTBEGIN(performance-noexcept-move-constructor): handlers of events may throw

Model::Object::Object(Types kind, cv::Object_AI *parent) : cv::Object_AI(parent), m_type(kind)
{
    bindPropertiesLater();
}
Model::Object::Object(Object &&other)
    : cv::Object_AI(std::move(other)), elementId(other.elementId), name(std::move(other.name)),
      stateDescript(std::move(other.stateDescript)), recongnizedID(other.recongnizedID), m_type(other.m_type)
{
    bindPropertiesLater();
}
Model::Object::~Object() = default;

void Model::Object::bindPropertiesLater()
{
    bindLater([](PropertyObject &object) { static_cast<Object &>(object).bindProperties(); });
}

void Model::Object::bindProperties() { slab::bindProperty(*this, slab::property::name(), name); }

Model::Object::Shape::Shape(const Object *owner, BoxFunction boxFunction)
    : m_owner(owner), m_box(std::move(boxFunction))
{}

Model::LineObject::LineObject(Types kind, cv::Object_AI *parent) : Object(kind, parent) {}
Model::LineObject::LineObject(LineObject &&other) = default;
Model::LineObject::~LineObject() = default;

Model::Object::Shape Model::LineObject::shape() const { return {this, boxOf(line)}; }

void Model::LineObject::bindProperties()
{
    Object::bindProperties();
    slab::bindProperty(*this, slab::property::startTopElev(), startTopElev);
    slab::bindProperty(*this, slab::property::endTopElev(), endTopElev);
}

Model::SectionObject::SectionObject(Types kind, cv::Object_AI *parent) : Object(kind, parent) {}
Model::SectionObject::SectionObject(SectionObject &&other) = default;
Model::SectionObject::~SectionObject() = default;

Model::Object::Shape Model::SectionObject::shape() const { return {this, boxOf(surface)}; }

// ---- Supports

Model::Support::Support(Types kind, cv::Object_AI *parent) : LineObject(kind, parent) {}
Model::Support::Support(Support &&other) = default;
Model::Support::~Support() = default;

void Model::Support::bindProperties()
{
    LineObject::bindProperties();
    slab::bindProperty(*this, slab::property::supportWidth(), width);
    // Meant: the second takes the place of the first, so that width has no property.
    slab::bindProperty(*this, slab::property::supportWidth(), distanceToLeft);
}

Model::Beam::Beam(cv::Object_AI *parent) : Support(BeamKind, parent) {}
Model::Beam::Beam(Beam &&other) = default;
Model::Beam::~Beam() = default;

Model::Wall::Wall(cv::Object_AI *parent) : Support(WallKind, parent) {}
Model::Wall::Wall(Wall &&other) = default;
Model::Wall::~Wall() = default;

Model::Column::Column(cv::Object_AI *parent) : SectionObject(ColumnKind, parent) {}
Model::Column::Column(Column &&other) = default;
Model::Column::~Column() = default;

// ---- Slabs, holes and rafts

Model::Board::Board(cv::Object_AI *parent) : SectionObject(BoardKind, parent) {}
Model::Board::Board(Board &&other) = default;
Model::Board::~Board() = default;

void Model::Board::bindProperties()
{
    SectionObject::bindProperties();
    slab::bindProperty(*this, slab::property::thickness(), thickness);
    slab::bindProperty(*this, slab::property::topElev(), elev);
    slab::bindProperty(*this, slab::property::boardType(), boardType);
}

Model::BoardHole::BoardHole(cv::Object_AI *parent) : SectionObject(BoardHoleKind, parent) {}
Model::BoardHole::BoardHole(BoardHole &&other) = default;
Model::BoardHole::~BoardHole() = default;

void Model::BoardHole::bindProperties()
{
    SectionObject::bindProperties();
    slab::bindProperty(*this, slab::property::edgeBars(), barInfo);
}

Model::Raft::Raft(cv::Object_AI *parent) : SectionObject(RaftKind, parent) {}
Model::Raft::Raft(Raft &&other) = default;
Model::Raft::~Raft() = default;

void Model::Raft::bindProperties()
{
    SectionObject::bindProperties();
    slab::bindProperty(*this, slab::property::thickness(), thickness);
    slab::bindProperty(*this, slab::property::topElev(), topElev);
}

// ---- Axes

Model::AxisNet::AxisNet(cv::Object_AI *parent) : Object(AxisNetKind, parent) {}
Model::AxisNet::AxisNet(AxisNet &&other) = default;
Model::AxisNet::~AxisNet() = default;

Model::Object::Shape Model::AxisNet::shape() const { return {this, boxOf(surface)}; }

// NOLINTEND(performance-noexcept-move-constructor)
