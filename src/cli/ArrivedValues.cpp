#include "cli/ArrivedValues.h"

#include "cli/Message.h"
#include "cli/ShownValue.h"
#include "encoding/GeometryFields.h"
#include "platform/services/HbxRelation.h"

#include <algorithm>
#include <cmath>

namespace orvcad {

namespace {

using encoding::KernelText;

constexpr double kSameNumber = 1e-6; // m or mm: an elevation travels as a text of six digits
constexpr double kSameShare = 1e-9;  // of a large number
constexpr double kSamePlace = 0.01;  // mm, as fine as outlines are compared

bool isSameNumber(double a, double b)
{
    return std::fabs(a - b) <= std::max(kSameNumber, kSameShare * std::max(std::fabs(a), std::fabs(b)));
}

bool isSamePoint(const vks::CVec2<double> &a, const vks::CVec2<double> &b)
{
    return std::fabs(a.x - b.x) <= kSamePlace && std::fabs(a.y - b.y) <= kSamePlace;
}

bool isSameCurve(const QString &sent, const QString &arrived)
{
    const auto one = KernelText::curve(sent);
    const auto other = one ? KernelText::curve(arrived) : nullptr;
    if (!other || std::fabs(one->Length() - other->Length()) > kSamePlace)
        return false;
    const bool isForth =
        isSamePoint(one->StartPoint(), other->StartPoint()) && isSamePoint(one->EndPoint(), other->EndPoint());
    return isForth ||
           (isSamePoint(one->StartPoint(), other->EndPoint()) && isSamePoint(one->EndPoint(), other->StartPoint()));
}

bool isSameOutline(const QString &sent, const QString &arrived)
{
    constexpr int same = 7;
    const auto one = KernelText::polygon(sent);
    const auto other = one ? KernelText::polygon(arrived) : nullptr;
    return other && hbx::polyPolyPosition(one, other, kSamePlace) == same;
}

bool isSameText(const QString &sent, const QString &arrived)
{
    return sent.isEmpty() || sent.trimmed().compare(arrived.trimmed(), Qt::CaseInsensitive) == 0 ||
           isSameCurve(sent, arrived) || isSameOutline(sent, arrived);
}

} // namespace

bool isSameValue(const QJsonValue &sent, const QJsonValue &arrived)
{
    if (sent.isDouble() && arrived.isDouble())
        return isSameNumber(sent.toDouble(), arrived.toDouble());
    return sent.isString() && arrived.isString() ? isSameText(sent.toString(), arrived.toString()) : sent == arrived;
}

void leaveOutChanged(const QJsonObject &sent, const QJsonObject &arrived, const QStringList &keys, const QString &place,
                     const QString &name, std::vector<LeftOut> &leftOut)
{
    for (const QString &key : keys)
        if (sent.contains(key) && !isSameValue(sent[key], arrived[key]))
            leftOut.push_back({place + u'.' + key, name,
                               Message::tr("%1 was sent, and %2 is what the host has")
                                   .arg(shownValue(sent[key]), shownValue(arrived[key])),
                               false});
}

} // namespace orvcad
