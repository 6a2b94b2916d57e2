#include "platform/services/TBeamHaunchingBarInfo.h"

namespace {

BarTypeObjList entryOf(const QString &text)
{
    return text.isEmpty() ? BarTypeObjList() : BarTypeObjList{TBarTypeObj(text)};
}

TBarTypeObj at(const BarTypeObjList &bars, int position)
{
    const bool isThere = position >= 0 && position < static_cast<int>(bars.size());
    return isThere ? bars[static_cast<std::size_t>(position)] : TBarTypeObj();
}

} // namespace

TBeamHaunchingBarInfo::TBeamHaunchingBarInfo(BarTypeObjList left, BarTypeObjList right)
    : m_left(std::move(left)), m_right(std::move(right))
{}

TBeamHaunchingBarInfo::TBeamHaunchingBarInfo(const QString &text)
    : m_left(entryOf(text.section(QLatin1Char(';'), 0, 0))), m_right(entryOf(text.section(QLatin1Char(';'), 1)))
{}

TBarTypeObj TBeamHaunchingBarInfo::GetLeftBarInfos(int position) const { return at(m_left, position); }

TBarTypeObj TBeamHaunchingBarInfo::GetRightBarInfos(int position) const { return at(m_right, position); }
