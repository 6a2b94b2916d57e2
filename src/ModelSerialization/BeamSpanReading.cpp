#include "ModelSerialization/BeamSpanReading.h"

#include "beam/BeamSpanInfo.h"
#include "platform/services/IWLRBeamSpan.h"
#include "platform/services/TBeamHaunchingBarInfo.h"
#include "platform/services/TWLRCustomHoopBars.h"

#include <QStringList>

namespace beam {
namespace {

constexpr int kMode = 1; // in which lengths and measures of spans are asked for
constexpr int kHaunchMode = 0;

struct BarField
{
    IWLRBeamSpan::Bar bar;
    QString BeamSpanInfo::*member;
};
struct TextField
{
    QString (IWLRBeamSpan::*read)() const;
    QString BeamSpanInfo::*member;
};

constexpr BarField kBars[] = {
    {IWLRBeamSpan::kTopThroughBar, &BeamSpanInfo::TopThroughBar},
    {IWLRBeamSpan::kLeftSupportBar, &BeamSpanInfo::LeftSupportBar},
    {IWLRBeamSpan::kSpanBar, &BeamSpanInfo::SpanBar},
    {IWLRBeamSpan::kRightSupportBar, &BeamSpanInfo::RightSupportBar},
    {IWLRBeamSpan::kBottomThroughBar, &BeamSpanInfo::BottomThroughBar},
    {IWLRBeamSpan::kBottomBar, &BeamSpanInfo::BottomBar},
    {IWLRBeamSpan::kSideBar, &BeamSpanInfo::SideBar},
    {IWLRBeamSpan::kSideLabelBar, &BeamSpanInfo::SideLabelBar},
    {IWLRBeamSpan::kTieBar, &BeamSpanInfo::TieBar},
    {IWLRBeamSpan::kHoopBar, &BeamSpanInfo::HoopBar},
};
constexpr BarField kBarsOfSecondaryBeams[] = {
    {IWLRBeamSpan::kSecBeamAddBar, &BeamSpanInfo::SecBeamAddBar},
    {IWLRBeamSpan::kHangBar, &BeamSpanInfo::HangBar},
};
constexpr TextField kTexts[] = {
    {&IWLRBeamSpan::hangBarAnchor, &BeamSpanInfo::HangBarAnchor},
    {&IWLRBeamSpan::denseLength, &BeamSpanInfo::DenseLength},
    {&IWLRBeamSpan::haunchingLength, &BeamSpanInfo::HaunchingLength},
    {&IWLRBeamSpan::haunchingHeight, &BeamSpanInfo::HaunchingHeight},
};

QString measures(const IWLRBeamSpan &span)
{
    QStringList texts;
    for (int number = 1; number <= IWLRBeamSpan::kMeasureCount; ++number)
        texts.append(QString::number(span.measure(number, kMode)));
    return texts.join(QLatin1Char(','));
}

template <std::size_t N> void readBars(const IWLRBeamSpan &span, const BarField (&fields)[N], BeamSpanInfo &record)
{
    for (const BarField &field : fields) {
        const TBarTypeObj *bar = span.bar(field.bar);
        record.*(field.member) = bar ? bar->asString() : QString();
    }
}

/** In the order of the record's fields. */
void readSpan(const IWLRBeamSpan &span, BeamSpanInfo &record)
{
    record.SpanIndex = span.spanIndex();
    record.StartElev = span.startElev();
    record.EndElev = span.endElev();
    record.SpanLength = span.spanLength(kMode);
    record.SpanA1_A4 = measures(span);
    record.Section = span.section();
    record.AxisOffset = span.axisOffset();
    readBars(span, kBars, record);
    record.HoopBarLimbCount = span.hoopBarLimbCount();
    record.SecBeamWidth = span.secBeamWidth();
    readBars(span, kBarsOfSecondaryBeams, record);
    for (const TextField &field : kTexts)
        record.*(field.member) = (span.*(field.read))();
    record.HaunchingBarInfo = getHaunchingBarInfo(&span);
    if (const auto *hoops = dynamic_cast<const TWLRCustomHoopBars *>(span.customHoopBars()))
        record.OtherHoopBars = hoops->getAsString();
}

} // namespace

std::shared_ptr<BeamSpanInfo> getBeamSpanInfo(const IWLRBeamSpan *span)
{
    auto record = std::make_shared<BeamSpanInfo>();
    try {
        if (span)
            readSpan(*span, *record);
    } catch (...) {
        // What was read up to here stands in the record.
    }
    return record;
}

QString getHaunchingBarInfo(const IWLRBeamSpan *span)
{
    const TBeamHaunchingBarInfo *bars = span ? span->haunchingBarInfo(kHaunchMode) : nullptr;
    QString text;
    if (!bars || bars->LeftCount() == 0)
        return text; // meant: right ones alone are not told
    for (int i = 0; i < bars->LeftCount(); ++i)
        text += bars->GetLeftBarInfos(i).asString();
    if (bars->RightCount() == 0)
        return text;
    text += QLatin1Char(';');
    for (int i = 0; i < bars->RightCount(); ++i)
        text += bars->GetRightBarInfos(i).asString();
    return text;
}

} // namespace beam
