#include "cli/GeometryFormats.h"

#include "cli/Message.h"
#include "cli/NearestName.h"
#include "encoding/GeometryFields.h"
#include "encoding/GeometryTextReader.h"
#include "platform/embedded/ExchangeGeometry.h"

namespace orvcad {

namespace {

/** The refusal of the word that well-known text begins with; empty for one that is known. */
QString whyNotWord(const QString &text, const QStringList &known)
{
    const QString word = text.section(QLatin1Char('('), 0, 0).trimmed();
    if (known.contains(word))
        return {};
    const QString meant = nearestName(word.toUpper(), known);
    return meant.isEmpty() ? Message::tr("does not begin with %1").arg(known.join(Message::tr(" or ")))
                           : Message::tr("begins with \"%1\": %2 is meant").arg(word.left(20), meant);
}

QString whyNotCurve(const QString &text)
{
    GeometryTextReader::Curve curve;
    return GeometryTextReader::reconstructCurve(text, curve) ? QString()
                                                             : Message::tr("is no text of a curve in the short form");
}

QString whyNotOutlineText(const QString &text)
{
    GeometryTextReader::Polygon polygon;
    if (GeometryTextReader::reconstructPoly(text, polygon))
        return {};
    return polygon ? Message::tr("is an outline that crosses itself or has no area")
                   : Message::tr("is no text of an outline in the short form");
}

QString whyNotKernelCurve(const QString &text)
{
    QString reason = whyNotWord(text, {"LINESTRING", "CIRCULARSTRING"});
    if (!reason.isEmpty())
        return reason;
    return encoding::KernelText::curve(text) ? QString() : Message::tr("is no well-known text of a line or an arc");
}

QString whyNotKernelOutline(const QString &text)
{
    if (text == QLatin1String("POLYGON EMPTY"))
        return {};
    QString reason = whyNotWord(text, {"POLYGON", "CURVEPOLYGON"});
    if (!reason.isEmpty())
        return reason;
    try {
        hbx::embedded::polygonFromJson(text, dwgx::JsonPlace());
        return {};
    } catch (const dwgx::JsonRefusal &refusal) {
        return refusal.reason;
    }
}

struct Format
{
    const char *name;
    QString (*whyNot)(const QString &text);
};
constexpr Format kFormats[] = {{"curve", whyNotCurve},
                               {"outline", whyNotOutlineText},
                               {"wkt-curve", whyNotKernelCurve},
                               {"wkt-outline", whyNotKernelOutline}};

} // namespace

QString whyNotFormat(const QString &format, const QString &text)
{
    for (const Format &known : kFormats)
        if (format == QLatin1String(known.name))
            return text.isEmpty() ? QString() : known.whyNot(text);
    return {};
}

} // namespace orvcad
