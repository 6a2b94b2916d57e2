#pragma once

#include <QSet>
#include <QString>
#include <QtGlobal>

/** Names and numbers that the way out of the host asks for, in the form that it asks in. */
namespace slabhost {

/** Each set of types that is asked for at once. */
namespace types {
inline const QSet<qint64> rafts = {48};
inline const QSet<qint64> boards = {19};
inline const QSet<qint64> boardHoles = {24};
inline const QSet<qint64> raftBars = {49};
inline const QSet<qint64> raftNegativeBars = {50};
inline const QSet<qint64> bars = {22};
inline const QSet<qint64> negativeBars = {23};
inline const QSet<qint64> columns = {25, 26};
inline const QSet<qint64> beams = {15, 17, 18, 47};
inline const QSet<qint64> walls = {0, 1, 202};
constexpr int axisNets = 74; // asked of the model, which takes one number
} // namespace types

namespace key {
inline const QString barInfo = QStringLiteral("BarInfo");
inline const QString bottomElev = QStringLiteral("BottomElev");
inline const QString curveData = QStringLiteral("CurveData");
inline const QString distributedBar = QStringLiteral("DistributedBar");
inline const QString endPtTopElev = QStringLiteral("EndPtTopElev");
inline const QString includeSupport = QStringLiteral("IncludeSupport");
inline const QString labelPosition = QStringLiteral("LabelPosition");
inline const QString leftHook = QStringLiteral("LeftHook");
inline const QString leftLabel = QStringLiteral("LeftLabel");
inline const QString longSpanReinforcedBar = QStringLiteral("LongSpanReinforcedBar");
inline const QString obliqueReinforcedBar = QStringLiteral("ObliqueReinforcedBar");
inline const QString position = QStringLiteral("Position");
inline const QString reinforcementInfo = QStringLiteral("ReinforcementInfo");
inline const QString remark = QStringLiteral("Remark");
inline const QString rightHook = QStringLiteral("RightHook");
inline const QString rightLabel = QStringLiteral("RightLabel");
inline const QString saddleBarLineCount = QStringLiteral("SaddleBarLineCount");
inline const QString shortSpanReinforcedBar = QStringLiteral("ShortSpanReinforcedBar");
inline const QString startPtTopElev = QStringLiteral("StartPtTopElev");
inline const QString topElev = QStringLiteral("TopElev");
inline const QString type = QStringLiteral("Type");
} // namespace key

} // namespace slabhost
