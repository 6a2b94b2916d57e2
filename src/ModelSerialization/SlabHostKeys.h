#pragma once

#include <QSet>
#include <QString>
#include <QtGlobal>

#include <string>

/** Names and numbers that slabs, rafts, holes and their bars have in the host. */
namespace slabhost {

namespace type {
constexpr qint64 forceWall = 0;
constexpr qint64 partitionWall = 1;
constexpr qint64 beam = 15;
constexpr qint64 linkBeam = 17;
constexpr qint64 tieBeam = 18;
constexpr qint64 slab = 19;
constexpr qint64 bar = 22;
constexpr qint64 negativeBar = 23;
constexpr qint64 hole = 24;
constexpr qint64 column = 25;
constexpr qint64 tieColumn = 26;
constexpr qint64 foundationBeam = 47;
constexpr qint64 raft = 48;
constexpr qint64 raftBar = 49;
constexpr qint64 raftNegativeBar = 50;
constexpr qint64 axisGrid = 74;
constexpr qint64 retainingWall = 202;
} // namespace type

/** Types that are asked for at once. */
namespace types {
inline const QSet<qint64> rafts = {type::raft};
inline const QSet<qint64> boards = {type::slab};
inline const QSet<qint64> boardHoles = {type::hole};
inline const QSet<qint64> raftBars = {type::raftBar};
inline const QSet<qint64> raftNegativeBars = {type::raftNegativeBar};
inline const QSet<qint64> bars = {type::bar};
inline const QSet<qint64> negativeBars = {type::negativeBar};
inline const QSet<qint64> columns = {type::column, type::tieColumn};
inline const QSet<qint64> beams = {type::beam, type::linkBeam, type::tieBeam, type::foundationBeam};
inline const QSet<qint64> walls = {type::forceWall, type::partitionWall, type::retainingWall};
} // namespace types

namespace subtype {
constexpr qint64 slab = 13;
constexpr qint64 raft = 67;
constexpr qint64 rectangularHole = 153;
constexpr qint64 roundHole = 154;
constexpr qint64 otherHole = 167;
constexpr qint64 bar = 171;
constexpr qint64 negativeBar = 173;
constexpr qint64 raftNegativeBar = 177;
constexpr qint64 raftBar = 190;
} // namespace subtype

namespace property {
inline const std::wstring barInfo = L"BarInfo";
inline const std::wstring bottomElev = L"BottomElev";
inline const std::wstring catalog = L"Catalog";
inline const std::wstring curveData = L"CurveData";
inline const std::wstring dependSlabId = L"DependSlabID";
inline const std::wstring distributedBar = L"DistributedBar";
inline const std::wstring endPtTopElev = L"EndPtTopElev";
inline const std::wstring includeSupport = L"IncludeSupport";
inline const std::wstring insertPt = L"InsertPt";
inline const std::wstring isRadiate = L"IsRadiate";
inline const std::wstring labelPosition = L"LabelPosition";
inline const std::wstring leftHook = L"LeftHook";
inline const std::wstring leftLabel = L"LeftLabel";
inline const std::wstring length = L"Length";
inline const std::wstring longSpanReinforcedBar = L"LongSpanReinforcedBar";
inline const std::wstring obliqueReinforcedBar = L"ObliqueReinforcedBar";
inline const std::wstring position = L"Position";
inline const std::wstring radius = L"Radius";
inline const std::wstring referenceCurve = L"ReferenceCurve";
inline const std::wstring reinforcementInfo = L"ReinforcementInfo";
inline const std::wstring remark = L"Remark";
inline const std::wstring rightHook = L"RightHook";
inline const std::wstring rightLabel = L"RightLabel";
inline const std::wstring saddleBarLineCount = L"SaddleBarLineCount";
inline const std::wstring sectionInfo = L"SectionInfo";
inline const std::wstring sectionPoly = L"SectionPoly";
inline const std::wstring sectionTypeId = L"SectionTypeID";
inline const std::wstring shortSpanReinforcedBar = L"ShortSpanReinforcedBar";
inline const std::wstring startPtTopElev = L"StartPtTopElev";
inline const std::wstring thickness = L"Thickness";
inline const std::wstring topElev = L"TopElev";
inline const std::wstring type = L"Type";
inline const std::wstring width = L"Width";
} // namespace property

/** Properties in the form in which the way out of the host asks for them. */
namespace key {
inline const QString barInfo = QString::fromStdWString(property::barInfo);
inline const QString bottomElev = QString::fromStdWString(property::bottomElev);
inline const QString curveData = QString::fromStdWString(property::curveData);
inline const QString distributedBar = QString::fromStdWString(property::distributedBar);
inline const QString endPtTopElev = QString::fromStdWString(property::endPtTopElev);
inline const QString includeSupport = QString::fromStdWString(property::includeSupport);
inline const QString labelPosition = QString::fromStdWString(property::labelPosition);
inline const QString leftHook = QString::fromStdWString(property::leftHook);
inline const QString leftLabel = QString::fromStdWString(property::leftLabel);
inline const QString longSpanReinforcedBar = QString::fromStdWString(property::longSpanReinforcedBar);
inline const QString obliqueReinforcedBar = QString::fromStdWString(property::obliqueReinforcedBar);
inline const QString position = QString::fromStdWString(property::position);
inline const QString reinforcementInfo = QString::fromStdWString(property::reinforcementInfo);
inline const QString remark = QString::fromStdWString(property::remark);
inline const QString rightHook = QString::fromStdWString(property::rightHook);
inline const QString rightLabel = QString::fromStdWString(property::rightLabel);
inline const QString saddleBarLineCount = QString::fromStdWString(property::saddleBarLineCount);
inline const QString shortSpanReinforcedBar = QString::fromStdWString(property::shortSpanReinforcedBar);
inline const QString startPtTopElev = QString::fromStdWString(property::startPtTopElev);
inline const QString topElev = QString::fromStdWString(property::topElev);
inline const QString type = QString::fromStdWString(property::type);
} // namespace key

} // namespace slabhost
