#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/IWLRBeamSpan.h"
#include "platform/services/TBeamHaunchingBarInfo.h"
#include "platform/services/TWLRCustomHoopBars.h"
#include "platform/services/WLRBeamSpans.h"

#include <QJsonObject>

#include <array>
#include <memory>
#include <vector>

namespace hbx::embedded {

/** One span as the host keeps it, an object with the keys of the beam span record. A value that is missing or of another
 *  kind is 0 or empty. The modes mean nothing here. */
class ORVCADPLATFORM_EXPORT HBXBeamSpan final : public IWLRBeamSpan
{
public:
    explicit HBXBeamSpan(const QJsonObject &span);

    int spanIndex() const override;
    double startElev() const override;
    double endElev() const override;
    double spanLength(int mode) const override;
    int measure(int number, int mode) const override;
    QString section() const override;
    double axisOffset() const override;
    const TBarTypeObj *bar(Bar which) const override;
    int hoopBarLimbCount() const override;
    QString secBeamWidth() const override;
    QString hangBarAnchor() const override;
    QString denseLength() const override;
    QString haunchingLength() const override;
    QString haunchingHeight() const override;
    const TBeamHaunchingBarInfo *haunchingBarInfo(int) const override { return &m_haunchingBars; }
    const IWLRCustomHoopBars *customHoopBars() const override { return &m_hoopBars; }

private:
    QJsonObject m_span;
    std::array<TBarTypeObj, kBarCount> m_bars;
    TBeamHaunchingBarInfo m_haunchingBars;
    TWLRCustomHoopBars m_hoopBars;
};

class ORVCADPLATFORM_EXPORT HBXBeamSpans final : public WLRBeamSpans
{
public:
    /** Null when there are no spans. */
    static std::unique_ptr<WLRBeamSpans> make(const std::vector<QJsonObject> &spans);

    int count() const override { return static_cast<int>(m_spans.size()); }
    IWLRBeamSpan *span(int position) override;

private:
    std::vector<HBXBeamSpan> m_spans;
};

} // namespace hbx::embedded
