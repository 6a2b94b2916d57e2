#include "platform/embedded/HBXBeamSpans.h"

#include "platform/embedded/HBXSpanKeys.h"

namespace hbx::embedded {
namespace {

/** By the numbers of IWLRBeamSpan::Bar. */
constexpr QLatin1String kBarKeys[IWLRBeamSpan::kBarCount] = {
    spankey::topThroughBar,    spankey::leftSupportBar, spankey::spanBar,       spankey::rightSupportBar,
    spankey::bottomThroughBar, spankey::bottomBar,      spankey::sideBar,       spankey::sideLabelBar,
    spankey::tieBar,           spankey::hoopBar,        spankey::secBeamAddBar, spankey::hangBar,
};

} // namespace

HBXBeamSpan::HBXBeamSpan(const QJsonObject &span)
    : m_span(span), m_haunchingBars(span.value(spankey::haunchingBarInfo).toString()),
      m_hoopBars(span.value(spankey::otherHoopBars).toString())
{
    for (std::size_t i = 0; i < m_bars.size(); ++i)
        m_bars[i] = TBarTypeObj(span.value(kBarKeys[i]).toString());
}

int HBXBeamSpan::spanIndex() const { return m_span.value(spankey::spanIndex).toInt(); }

double HBXBeamSpan::startElev() const { return m_span.value(spankey::startElev).toDouble(); }

double HBXBeamSpan::endElev() const { return m_span.value(spankey::endElev).toDouble(); }

double HBXBeamSpan::spanLength(int) const { return m_span.value(spankey::spanLength).toDouble(); }

int HBXBeamSpan::measure(int number, int) const
{
    if (number < 1 || number > kMeasureCount)
        return 0;
    return m_span.value(spankey::measures).toString().section(QLatin1Char(','), number - 1, number - 1).toInt();
}

QString HBXBeamSpan::section() const { return m_span.value(spankey::section).toString(); }

double HBXBeamSpan::axisOffset() const { return m_span.value(spankey::axisOffset).toDouble(); }

const TBarTypeObj *HBXBeamSpan::bar(Bar which) const
{
    const auto place = static_cast<std::size_t>(which);
    return place < m_bars.size() ? &m_bars[place] : nullptr;
}

int HBXBeamSpan::hoopBarLimbCount() const { return m_span.value(spankey::hoopBarLimbCount).toInt(); }

QString HBXBeamSpan::secBeamWidth() const { return m_span.value(spankey::secBeamWidth).toString(); }

QString HBXBeamSpan::hangBarAnchor() const { return m_span.value(spankey::hangBarAnchor).toString(); }

QString HBXBeamSpan::denseLength() const { return m_span.value(spankey::denseLength).toString(); }

QString HBXBeamSpan::haunchingLength() const { return m_span.value(spankey::haunchingLength).toString(); }

QString HBXBeamSpan::haunchingHeight() const { return m_span.value(spankey::haunchingHeight).toString(); }

std::unique_ptr<WLRBeamSpans> HBXBeamSpans::make(const std::vector<QJsonObject> &spans)
{
    if (spans.empty())
        return nullptr;
    auto set = std::make_unique<HBXBeamSpans>();
    for (const QJsonObject &span : spans)
        set->m_spans.emplace_back(span);
    return set;
}

IWLRBeamSpan *HBXBeamSpans::span(int position)
{
    return position >= 0 && position < count() ? &m_spans[static_cast<std::size_t>(position)] : nullptr;
}

} // namespace hbx::embedded
