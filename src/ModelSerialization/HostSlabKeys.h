#pragma once

#include "ModelSerialization/SlabHostKeys.h"

#include <QSet>
#include <QString>
#include <QtGlobal>

/** Names and numbers that the way out of the host asks for, in the form that it asks in. */
namespace slabhost {

/** Each set of types that is asked for at once. */
namespace types {
inline const QSet<qint64> rafts = {type::raft};
inline const QSet<qint64> boards = {type::slab};
inline const QSet<qint64> boardHoles = {type::hole};
inline const QSet<qint64> raftBars = {type::raftBar};
inline const QSet<qint64> raftNegativeBars = {type::raftNegativeBar};
inline const QSet<qint64> bars = {type::bar};
inline const QSet<qint64> negativeBars = {type::negativeBar};
inline const QSet<qint64> columns = {25, 26};
inline const QSet<qint64> beams = {15, 17, 18, 47};
inline const QSet<qint64> walls = {0, 1, 202};
constexpr int axisNets = 74; // asked of the model, which takes one number
} // namespace types

namespace key {
inline const QString barInfo = QString::fromStdWString(property::barInfo);
inline const QString bottomElev = QString::fromStdWString(property::bottomElev);
inline const QString curveData = QString::fromStdWString(property::curveData);
inline const QString distributedBar = QString::fromStdWString(property::distributedBar);
inline const QString endPtTopElev = QStringLiteral("EndPtTopElev");
inline const QString includeSupport = QString::fromStdWString(property::includeSupport);
inline const QString labelPosition = QString::fromStdWString(property::labelPosition);
inline const QString leftHook = QString::fromStdWString(property::leftHook);
inline const QString leftLabel = QString::fromStdWString(property::leftLabel);
inline const QString longSpanReinforcedBar = QStringLiteral("LongSpanReinforcedBar");
inline const QString obliqueReinforcedBar = QStringLiteral("ObliqueReinforcedBar");
inline const QString position = QString::fromStdWString(property::position);
inline const QString reinforcementInfo = QString::fromStdWString(property::reinforcementInfo);
inline const QString remark = QStringLiteral("Remark");
inline const QString rightHook = QString::fromStdWString(property::rightHook);
inline const QString rightLabel = QString::fromStdWString(property::rightLabel);
inline const QString saddleBarLineCount = QString::fromStdWString(property::saddleBarLineCount);
inline const QString shortSpanReinforcedBar = QStringLiteral("ShortSpanReinforcedBar");
inline const QString startPtTopElev = QStringLiteral("StartPtTopElev");
inline const QString topElev = QString::fromStdWString(property::topElev);
inline const QString type = QString::fromStdWString(property::type);
} // namespace key

} // namespace slabhost
