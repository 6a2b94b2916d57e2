#include "cli/HtmlStyle.h"

#include "cli/PlanStyle.h"

#include <QString>
#include <QStringList>

#include <algorithm>

namespace orvcad {

namespace {

constexpr double kLinePixels = 6.0; // of a screen for 1 mm of paper: the thinnest line is seen well
constexpr double kDashPixels = 4.0;
constexpr int kLightEnough = 0xA8; // brightness that stands out against a dark ground

/** A colour as light as it has to be on a dark ground. */
QString lightened(const QString &colour)
{
    if (colour == QLatin1String("#fff"))
        return QStringLiteral("var(--paper)");
    const int rgb = colour.mid(1).toInt(nullptr, 16);
    const int parts[] = {rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF};
    const int brightness = (299 * parts[0] + 587 * parts[1] + 114 * parts[2]) / 1000;
    const double whiteness = std::max(0.0, static_cast<double>(kLightEnough - brightness) / (255 - brightness));
    int light = 0;
    for (const int part : parts)
        light = light << 8 | static_cast<int>(part + (255 - part) * whiteness);
    return QStringLiteral("#%1").arg(light, 6, 16, QLatin1Char('0'));
}

QString dashPixels(const QString &dashes)
{
    QStringList pixels;
    for (const QString &part : dashes.split(' ', Qt::SkipEmptyParts))
        pixels.append(QString::number(part.toDouble() * kDashPixels));
    return pixels.isEmpty() ? QStringLiteral("none") : pixels.join(' ');
}

} // namespace

QByteArray typeStyle(const QList<qint64> &types)
{
    QString light;
    QString dark;
    for (const qint64 type : types) {
        const PlanLine line = planLine(type);
        light +=
            QStringLiteral(".type-%1{--c:%2;--b:%3}\n.floor .type-%1 path{stroke-width:%4px;stroke-dasharray:%5}\n")
                .arg(type)
                .arg(line.colour, planFillColour(type))
                .arg(line.width * kLinePixels)
                .arg(dashPixels(line.dashes));
        dark += QStringLiteral(".type-%1{--c:%2;--b:%3}\n"
                               ".floor .type-%1 path,.floor .type-%1 circle{stroke:var(--c)}\n"
                               ".floor .type-%1 path:not([fill=none],[fill='#fff']){fill:var(--c)}\n")
                    .arg(type)
                    .arg(lightened(line.colour), lightened(planFillColour(type)));
    }
    // Paper is light whatever the screen is.
    return (light + "@media screen and (prefers-color-scheme:dark){\n" + dark + "}\n").toUtf8();
}

} // namespace orvcad
