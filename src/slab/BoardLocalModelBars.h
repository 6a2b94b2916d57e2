#pragma once

#include "ORVCADModelDataExport.h"
#include "slab/BoardLocalModelElements.h"

#include <vector>

// The bars of the slab model. Bar texts, stretch and hook lengths are as the host's properties hold them.

// NOLINTBEGIN(performance-noexcept-move-constructor): handlers of events may throw

/** Bars of an area, which is their outline.
 *  Properties: "方位" is direction, "钢筋规格" barInfo, "钢筋排数" rowNumber. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::AbstractForcedBar : public SectionObject
{
public:
    AbstractForcedBar(AbstractForcedBar &&other);
    ~AbstractForcedBar() override;

    Shape shape() const override;

    vks::CVec2<double> direction; ///< in which the bars run
    QString barInfo;
    qint32 rowNumber = 0; ///< place in the group of bars that lie in the same slabs, from 0
    qint32 leftHookLength = 0;
    qint32 rightHookLength = 0;
    bool refPointValid = false;
    vks::CVec2<double> refPoint; ///< where the label refers to; counts only if refPointValid

protected:
    AbstractForcedBar(Types kind, cv::Object_AI *parent);

private:
    void bindProperties() override;
};

/** Working bars of one slab. Meant: their shape is the box of the outline, and the slab does not widen it. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::ForcedBar final : public AbstractForcedBar
{
public:
    explicit ForcedBar(cv::Object_AI *parent = nullptr);
    ForcedBar(ForcedBar &&other);
    ~ForcedBar() override;

    Shape shape() const override;

    qint32 forcedType = 0;                   ///< the host's "Position"
    vks::CRefPtr<vks::CPolygon> supportPoly; ///< outline of the slab
};

/** Working bars across several slabs. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::StraddleForcedBar final : public AbstractForcedBar
{
public:
    explicit StraddleForcedBar(cv::Object_AI *parent = nullptr);
    StraddleForcedBar(StraddleForcedBar &&other);
    ~StraddleForcedBar() override;

    std::vector<vks::CRefPtr<vks::CPolygon>> supportPolys; ///< outlines of the slabs
    qint32 labelPosition = 2;
    double leftStretchLength = 0.0;
    double rightStretchLength = 0.0;
    QString distributeBarInfo;
    QString saddleBarlineCount;
};

/** Top bars of a slab, over a support.
 *  Properties: "钢筋规格" is barInfo. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::NegativeForcedBar final : public LineObject
{
public:
    explicit NegativeForcedBar(cv::Object_AI *parent = nullptr);
    NegativeForcedBar(NegativeForcedBar &&other);
    ~NegativeForcedBar() override;

    Shape shape() const override;

    QString barInfo;
    QString distributeBarInfo;
    QString saddleBarlineCount;
    qint32 labelPosition = 2;
    double leftStretchLength = 0.0;
    double rightStretchLength = 0.0;
    qint32 leftHookLength = 0;
    qint32 rightHookLength = 0;
    qint32 rowNumber = 0; ///< place in the group of bars on the same line, from 0
    bool refPointValid = false;
    vks::CVec2<double> refPoint; ///< where the label refers to; counts only if refPointValid

private:
    void bindProperties() override;
};

/** Working bars of one raft. Meant: their shape is the box of the outline, and the raft does not widen it. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::RaftMainForcedBar final : public AbstractForcedBar
{
public:
    explicit RaftMainForcedBar(cv::Object_AI *parent = nullptr);
    RaftMainForcedBar(RaftMainForcedBar &&other);
    ~RaftMainForcedBar() override;

    Shape shape() const override;

    qint32 forcedType = 0;                   ///< the host's "Position"
    vks::CRefPtr<vks::CPolygon> supportPoly; ///< outline of the raft
};

/** Working bars across several rafts. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::RaftMainStraddleForcedBar final : public AbstractForcedBar
{
public:
    explicit RaftMainStraddleForcedBar(cv::Object_AI *parent = nullptr);
    RaftMainStraddleForcedBar(RaftMainStraddleForcedBar &&other);
    ~RaftMainStraddleForcedBar() override;

    qint32 labelPosition = 2;
    double leftStretchLength = 0.0;
    double rightStretchLength = 0.0;
};

/** Top bars of a raft.
 *  Properties: "钢筋规格" is barInfo. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar final : public LineObject
{
public:
    explicit RaftNegativeForcedBar(cv::Object_AI *parent = nullptr);
    RaftNegativeForcedBar(RaftNegativeForcedBar &&other);
    ~RaftNegativeForcedBar() override;

    Shape shape() const override;

    QString barInfo;
    qint32 labelPosition = 2;
    double leftStretchLength = 0.0;
    double rightStretchLength = 0.0;
    qint32 leftHookLength = 0;
    qint32 rightHookLength = 0;
    qint32 rowNumber = 0; ///< place in the group of bars on the same line, from 0
    bool refPointValid = false;
    vks::CVec2<double> refPoint; ///< where the label refers to; counts only if refPointValid

private:
    void bindProperties() override;
};

// NOLINTEND(performance-noexcept-move-constructor)
