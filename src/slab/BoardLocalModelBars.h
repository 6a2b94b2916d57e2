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
    AbstractForcedBar(AbstractForcedBar &&other); ///< takes fields, children and place of the other
    ~AbstractForcedBar() override;

    Shape shape() const override;

    vks::CVec2<double> direction; ///< in which the bars run
    QString barInfo;              ///< bar text, such as C8@200
    qint32 rowNumber = 0;         ///< place in the group of bars that lie in the same slabs, from 0
    qint32 leftHookLength = 0;    ///< hook at the left end, mm
    qint32 rightHookLength = 0;   ///< hook at the right end, mm
    bool refPointValid = false;   ///< whether the label refers to a point
    vks::CVec2<double> refPoint;  ///< where the label refers to; counts only if refPointValid

protected:
    AbstractForcedBar(Types kind, cv::Object_AI *parent); ///< called by the classes of each kind

private:
    void bindProperties() override;
};

/** Working bars of one slab. Meant: their shape is the box of the outline, and the slab does not widen it. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::ForcedBar final : public AbstractForcedBar
{
public:
    explicit ForcedBar(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    ForcedBar(ForcedBar &&other);                        ///< takes fields, children and place of the other
    ~ForcedBar() override;

    Shape shape() const override;

    qint32 forcedType = 0;                   ///< the host's "Position"
    vks::CRefPtr<vks::CPolygon> supportPoly; ///< outline of the slab
};

/** Working bars across several slabs. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::StraddleForcedBar final : public AbstractForcedBar
{
public:
    explicit StraddleForcedBar(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    StraddleForcedBar(StraddleForcedBar &&other);                ///< takes fields, children and place of the other
    ~StraddleForcedBar() override;

    std::vector<vks::CRefPtr<vks::CPolygon>> supportPolys; ///< outlines of the slabs
    qint32 labelPosition = 2;                              ///< where the label stands; text without it reads 0
    double leftStretchLength = 0.0;                        ///< stretch to the left, mm: the host's "LeftLabel"
    double rightStretchLength = 0.0;                       ///< stretch to the right, mm: the host's "RightLabel"
    QString distributeBarInfo;                             ///< bar text of the distribution bars
    QString saddleBarlineCount;                            ///< number of distribution bars
};

/** Top bars of a slab, over a support.
 *  Properties: "钢筋规格" is barInfo. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::NegativeForcedBar final : public LineObject
{
public:
    explicit NegativeForcedBar(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    NegativeForcedBar(NegativeForcedBar &&other);                ///< takes fields, children and place of the other
    ~NegativeForcedBar() override;

    Shape shape() const override;

    QString barInfo;                 ///< bar text, such as C8@200
    QString distributeBarInfo;       ///< bar text of the distribution bars
    QString saddleBarlineCount;      ///< number of distribution bars
    qint32 labelPosition = 2;        ///< where the label stands; text without it reads 0
    double leftStretchLength = 0.0;  ///< stretch to the left, mm: the host's "LeftLabel"
    double rightStretchLength = 0.0; ///< stretch to the right, mm: the host's "RightLabel"
    qint32 leftHookLength = 0;       ///< hook at the left end, mm
    qint32 rightHookLength = 0;      ///< hook at the right end, mm
    qint32 rowNumber = 0;            ///< place in the group of bars on the same line, from 0
    bool refPointValid = false;      ///< whether the label refers to a point
    vks::CVec2<double> refPoint;     ///< where the label refers to; counts only if refPointValid

private:
    void bindProperties() override;
};

/** Working bars of one raft. Meant: their shape is the box of the outline, and the raft does not widen it. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::RaftMainForcedBar final : public AbstractForcedBar
{
public:
    explicit RaftMainForcedBar(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    RaftMainForcedBar(RaftMainForcedBar &&other);                ///< takes fields, children and place of the other
    ~RaftMainForcedBar() override;

    Shape shape() const override;

    qint32 forcedType = 0;                   ///< the host's "Position"
    vks::CRefPtr<vks::CPolygon> supportPoly; ///< outline of the raft
};

/** Working bars across several rafts. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::RaftMainStraddleForcedBar final : public AbstractForcedBar
{
public:
    explicit RaftMainStraddleForcedBar(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    RaftMainStraddleForcedBar(RaftMainStraddleForcedBar &&other); ///< takes fields, children and place of the other
    ~RaftMainStraddleForcedBar() override;

    qint32 labelPosition = 2;        ///< where the label stands; text without it reads 0
    double leftStretchLength = 0.0;  ///< stretch to the left, mm: the host's "LeftLabel"
    double rightStretchLength = 0.0; ///< stretch to the right, mm: the host's "RightLabel"
};

/** Top bars of a raft.
 *  Properties: "钢筋规格" is barInfo. */
class ORVCADMODELDATA_EXPORT ORVCADBoardLocalModel_Sample::RaftNegativeForcedBar final : public LineObject
{
public:
    explicit RaftNegativeForcedBar(cv::Object_AI *parent = nullptr); ///< owned by the parent, if there is one
    RaftNegativeForcedBar(RaftNegativeForcedBar &&other);            ///< takes fields, children and place of the other
    ~RaftNegativeForcedBar() override;

    Shape shape() const override;

    QString barInfo;                 ///< bar text, such as C8@200
    qint32 labelPosition = 2;        ///< where the label stands; text without it reads 0
    double leftStretchLength = 0.0;  ///< stretch to the left, mm: the host's "LeftLabel"
    double rightStretchLength = 0.0; ///< stretch to the right, mm: the host's "RightLabel"
    qint32 leftHookLength = 0;       ///< hook at the left end, mm
    qint32 rightHookLength = 0;      ///< hook at the right end, mm
    qint32 rowNumber = 0;            ///< place in the group of bars on the same line, from 0
    bool refPointValid = false;      ///< whether the label refers to a point
    vks::CVec2<double> refPoint;     ///< where the label refers to; counts only if refPointValid

private:
    void bindProperties() override;
};

// NOLINTEND(performance-noexcept-move-constructor)
