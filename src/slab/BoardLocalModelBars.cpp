#include "slab/BoardLocalModelBars.h"

#include "slab/BoardLocalModelProperties.h"

#include <utility>

ORVCADBoardLocalModel_Sample::AbstractForcedBar::AbstractForcedBar(Types kind, cv::Object_AI *parent)
    : SectionObject(kind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::AbstractForcedBar::AbstractForcedBar(AbstractForcedBar &&other)
    : SectionObject(std::move(other)), direction(other.direction), barInfo(std::move(other.barInfo)),
      rowNumber(other.rowNumber), leftHookLength(other.leftHookLength), rightHookLength(other.rightHookLength),
      refPointValid(other.refPointValid), refPoint(other.refPoint)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::AbstractForcedBar::~AbstractForcedBar() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::AbstractForcedBar::shape() const
{
    return SectionObject::shape();
}

void ORVCADBoardLocalModel_Sample::AbstractForcedBar::bindProperties()
{
    slab::bindProperty(*this, slab::property::direction(), direction);
    slab::bindProperty(*this, slab::property::barInfo(), barInfo);
    slab::bindProperty(*this, slab::property::rowNumber(), rowNumber);
}

ORVCADBoardLocalModel_Sample::ForcedBar::ForcedBar(cv::Object_AI *parent) : AbstractForcedBar(ForcedBarKind, parent) {}
ORVCADBoardLocalModel_Sample::ForcedBar::ForcedBar(ForcedBar &&other) = default;
ORVCADBoardLocalModel_Sample::ForcedBar::~ForcedBar() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::ForcedBar::shape() const
{
    return AbstractForcedBar::shape();
}

ORVCADBoardLocalModel_Sample::StraddleForcedBar::StraddleForcedBar(cv::Object_AI *parent)
    : AbstractForcedBar(StraddleForcedBarKind, parent)
{}
ORVCADBoardLocalModel_Sample::StraddleForcedBar::StraddleForcedBar(StraddleForcedBar &&other) = default;
ORVCADBoardLocalModel_Sample::StraddleForcedBar::~StraddleForcedBar() = default;

ORVCADBoardLocalModel_Sample::NegativeForcedBar::NegativeForcedBar(cv::Object_AI *parent)
    : LineObject(NegativeForcedBarKind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::NegativeForcedBar::NegativeForcedBar(NegativeForcedBar &&other)
    : LineObject(std::move(other)), barInfo(std::move(other.barInfo)),
      distributeBarInfo(std::move(other.distributeBarInfo)), saddleBarlineCount(std::move(other.saddleBarlineCount)),
      labelPosition(other.labelPosition), leftStretchLength(other.leftStretchLength),
      rightStretchLength(other.rightStretchLength), leftHookLength(other.leftHookLength),
      rightHookLength(other.rightHookLength), rowNumber(other.rowNumber), refPointValid(other.refPointValid),
      refPoint(other.refPoint)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::NegativeForcedBar::~NegativeForcedBar() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::NegativeForcedBar::shape() const
{
    return LineObject::shape();
}

void ORVCADBoardLocalModel_Sample::NegativeForcedBar::bindProperties()
{
    slab::bindProperty(*this, slab::property::barInfo(), barInfo);
}

ORVCADBoardLocalModel_Sample::RaftMainForcedBar::RaftMainForcedBar(cv::Object_AI *parent)
    : AbstractForcedBar(RaftMainForcedBarKind, parent)
{}
ORVCADBoardLocalModel_Sample::RaftMainForcedBar::RaftMainForcedBar(RaftMainForcedBar &&other) = default;
ORVCADBoardLocalModel_Sample::RaftMainForcedBar::~RaftMainForcedBar() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::RaftMainForcedBar::shape() const
{
    return AbstractForcedBar::shape();
}

ORVCADBoardLocalModel_Sample::RaftMainStraddleForcedBar::RaftMainStraddleForcedBar(cv::Object_AI *parent)
    : AbstractForcedBar(RaftMainStraddleForcedBarKind, parent)
{}
ORVCADBoardLocalModel_Sample::RaftMainStraddleForcedBar::RaftMainStraddleForcedBar(RaftMainStraddleForcedBar &&other) =
    default;
ORVCADBoardLocalModel_Sample::RaftMainStraddleForcedBar::~RaftMainStraddleForcedBar() = default;

ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar::RaftNegativeForcedBar(cv::Object_AI *parent)
    : LineObject(RaftNegativeForcedBarKind, parent)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar::RaftNegativeForcedBar(RaftNegativeForcedBar &&other)
    : LineObject(std::move(other)), barInfo(std::move(other.barInfo)), labelPosition(other.labelPosition),
      leftStretchLength(other.leftStretchLength), rightStretchLength(other.rightStretchLength),
      leftHookLength(other.leftHookLength), rightHookLength(other.rightHookLength), rowNumber(other.rowNumber),
      refPointValid(other.refPointValid), refPoint(other.refPoint)
{
    bindProperties();
}
ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar::~RaftNegativeForcedBar() = default;

ORVCADBoardLocalModel_Sample::Object::Shape ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar::shape() const
{
    return LineObject::shape();
}

void ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar::bindProperties()
{
    slab::bindProperty(*this, slab::property::barInfo(), barInfo);
}
