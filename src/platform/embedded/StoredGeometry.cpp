#include "platform/embedded/StoredGeometry.h"

#include "platform/embedded/HBXPropertyValue.h"

#include <QByteArrayList>

namespace hbx::embedded {

bool isSound(const vks::CPolygon &outline) { return outline.IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr); }

std::optional<vks::CVec2<double>> storedPoint(std::string_view text)
{
    const QByteArrayList terms = QByteArray(text.data(), static_cast<int>(text.size())).split(' ');
    if (terms.size() != 2)
        return std::nullopt;
    bool isX = false;
    bool isY = false;
    const vks::CVec2<double> point(terms[0].toDouble(&isX), terms[1].toDouble(&isY));
    return isX && isY && point.IsFinite() ? std::optional(point) : std::nullopt;
}

std::string pointText(const vks::CVec2<double> &point)
{
    return textOf(point.x).toStdString() + ' ' + textOf(point.y).toStdString();
}

} // namespace hbx::embedded
