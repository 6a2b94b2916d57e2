#include "slab/BoardLocalModelBars.h"

#include "slab/BoardLocalModelProperties.h"

namespace {

using Model = ORVCADBoardLocalModel_Sample;

} // namespace

// NOLINTBEGIN(performance-noexcept-move-constructor): handlers of events may throw

Model::AbstractForcedBar::AbstractForcedBar(Types kind, cv::Object_AI *parent) : SectionObject(kind, parent) {}
Model::AbstractForcedBar::AbstractForcedBar(AbstractForcedBar &&other) = default;
Model::AbstractForcedBar::~AbstractForcedBar() = default;

Model::Object::Shape Model::AbstractForcedBar::shape() const { return SectionObject::shape(); }

void Model::AbstractForcedBar::bindProperties()
{
    SectionObject::bindProperties();
    slab::bindProperty(*this, slab::property::direction(), direction);
    slab::bindProperty(*this, slab::property::barInfo(), barInfo);
    slab::bindProperty(*this, slab::property::rowNumber(), rowNumber);
}

Model::ForcedBar::ForcedBar(cv::Object_AI *parent) : AbstractForcedBar(ForcedBarKind, parent) {}
Model::ForcedBar::ForcedBar(ForcedBar &&other) = default;
Model::ForcedBar::~ForcedBar() = default;

Model::Object::Shape Model::ForcedBar::shape() const { return AbstractForcedBar::shape(); }

Model::StraddleForcedBar::StraddleForcedBar(cv::Object_AI *parent) : AbstractForcedBar(StraddleForcedBarKind, parent) {}
Model::StraddleForcedBar::StraddleForcedBar(StraddleForcedBar &&other) = default;
Model::StraddleForcedBar::~StraddleForcedBar() = default;

Model::NegativeForcedBar::NegativeForcedBar(cv::Object_AI *parent) : LineObject(NegativeForcedBarKind, parent) {}
Model::NegativeForcedBar::NegativeForcedBar(NegativeForcedBar &&other) = default;
Model::NegativeForcedBar::~NegativeForcedBar() = default;

Model::Object::Shape Model::NegativeForcedBar::shape() const { return LineObject::shape(); }

void Model::NegativeForcedBar::bindProperties()
{
    LineObject::bindProperties();
    slab::bindProperty(*this, slab::property::barInfo(), barInfo);
}

Model::RaftMainForcedBar::RaftMainForcedBar(cv::Object_AI *parent) : AbstractForcedBar(RaftMainForcedBarKind, parent) {}
Model::RaftMainForcedBar::RaftMainForcedBar(RaftMainForcedBar &&other) = default;
Model::RaftMainForcedBar::~RaftMainForcedBar() = default;

Model::Object::Shape Model::RaftMainForcedBar::shape() const { return AbstractForcedBar::shape(); }

Model::RaftMainStraddleForcedBar::RaftMainStraddleForcedBar(cv::Object_AI *parent)
    : AbstractForcedBar(RaftMainStraddleForcedBarKind, parent)
{}
Model::RaftMainStraddleForcedBar::RaftMainStraddleForcedBar(RaftMainStraddleForcedBar &&other) = default;
Model::RaftMainStraddleForcedBar::~RaftMainStraddleForcedBar() = default;

Model::RaftNegativeForcedBar::RaftNegativeForcedBar(cv::Object_AI *parent)
    : LineObject(RaftNegativeForcedBarKind, parent)
{}
Model::RaftNegativeForcedBar::RaftNegativeForcedBar(RaftNegativeForcedBar &&other) = default;
Model::RaftNegativeForcedBar::~RaftNegativeForcedBar() = default;

Model::Object::Shape Model::RaftNegativeForcedBar::shape() const { return LineObject::shape(); }

void Model::RaftNegativeForcedBar::bindProperties()
{
    LineObject::bindProperties();
    slab::bindProperty(*this, slab::property::barInfo(), barInfo);
}

// NOLINTEND(performance-noexcept-move-constructor)
