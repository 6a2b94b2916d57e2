#include "cli/SvgPage.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"

#include <QStringList>

#include <cmath>

namespace orvcad {

namespace {

constexpr int kDecimals = 3;         // of a paper millimetre
constexpr double kCapitalPart = 0.7; // height of a capital letter in parts of the font size

QString number(double value)
{
    QString text = QString::number(value, 'f', kDecimals);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

/** Text for XML: marked up, and without the characters that XML has no way to write. */
QString xmlText(const QString &text)
{
    QString allowed;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        const bool isPair = letter.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const bool isControl = letter < QLatin1Char(' ') && letter != QLatin1Char('\t') && letter != QLatin1Char('\n');
        if (isPair)
            allowed += QString(letter) + text[++i];
        else if (!letter.isSurrogate() && !isControl && letter.unicode() < 0xFFFE)
            allowed += letter;
    }
    return allowed.toHtmlEscaped();
}

QString tag(const QString &name, const QString &attributes)
{
    return QStringLiteral("<%1 %2/>\n").arg(name, attributes.trimmed());
}

} // namespace

SvgPage::SvgPage(double width, double height) : m_width(width), m_height(height) {}

void SvgPage::setPlan(const vks::CVec2<double> &origin, const vks::CVec2<double> &onPaper, double scale)
{
    m_origin = origin;
    m_onPaper = onPaper;
    m_scale = scale;
}

vks::CVec2<double> SvgPage::toPaper(const vks::CVec2<double> &world) const
{
    const vks::CVec2<double> move = (world - m_origin) / m_scale;
    return {m_onPaper.x + move.x, m_onPaper.y - move.y};
}

void SvgPage::beginGroup(const QString &cssClass, const QString &attributes)
{
    m_body += QStringLiteral("<g class=\"%1\" %2>\n").arg(cssClass, attributes);
}

void SvgPage::endGroup() { m_body += QStringLiteral("</g>\n"); }

QString SvgPage::pointText(const vks::CVec2<double> &paper) const { return number(paper.x) + ' ' + number(paper.y); }

QString SvgPage::segmentOf(const vks::CCurve2d &curve) const
{
    const auto *arc = dynamic_cast<const vks::CArc2d *>(&curve);
    if (!arc || arc->IsFlat())
        return " L" + pointText(toPaper(curve.EndPoint()));
    const QString radius = number(arc->Radius() / m_scale);
    // Paper runs downwards, so a counter-clockwise arc of the plan has sweep flag 0.
    const int sweep = arc->SweepAngle() > 0 ? 0 : 1;
    const auto arcTo = [&](const vks::CVec2<double> &end, bool large) {
        return QStringLiteral(" A%1 %1 0 %2 %3 ").arg(radius).arg(large ? 1 : 0).arg(sweep) + pointText(toPaper(end));
    };
    if (curve.IsClosed()) // SVG has no arc back to its own start
        return arcTo(curve.MidPoint(), false) + arcTo(curve.EndPoint(), false);
    return arcTo(curve.EndPoint(), std::fabs(arc->SweepAngle()) > vks::kPi);
}

QString SvgPage::pathOf(const vks::CCoedgeList &loop) const
{
    if (loop.CurveCount() == 0)
        return {};
    QString path = 'M' + pointText(toPaper(loop.GetCurve(0)->StartPoint()));
    for (const auto &curve : loop.Curves())
        path += segmentOf(*curve);
    return path + " Z";
}

void SvgPage::addPolygon(const vks::CPolygon &polygon, const QString &attributes)
{
    QStringList paths;
    for (int i = 0; i < polygon.LoopCount(); ++i)
        paths.append(pathOf(*polygon.GetLoop(i)));
    m_body += tag(QStringLiteral("path"),
                  QStringLiteral("d=\"%1\" fill-rule=\"evenodd\" %2").arg(paths.join(' '), attributes));
}

void SvgPage::addCurve(const vks::CCurve2d &curve, const QString &attributes)
{
    if (curve.IsEmpty())
        return;
    m_body +=
        tag(QStringLiteral("path"), QStringLiteral("d=\"M%1%2\" fill=\"none\" %3")
                                        .arg(pointText(toPaper(curve.StartPoint())), segmentOf(curve), attributes));
}

void SvgPage::addRectangle(double x, double y, double width, double height, const QString &attributes)
{
    m_body += tag(QStringLiteral("rect"), QStringLiteral("x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" %5")
                                              .arg(number(x), number(y), number(width), number(height), attributes));
}

void SvgPage::addCircle(const vks::CVec2<double> &centre, double radius, const QString &attributes)
{
    m_body += tag(QStringLiteral("circle"), QStringLiteral("cx=\"%1\" cy=\"%2\" r=\"%3\" %4")
                                                .arg(number(centre.x), number(centre.y), number(radius), attributes));
}

void SvgPage::addLine(const vks::CVec2<double> &from, const vks::CVec2<double> &to, const QString &attributes)
{
    m_body += tag(QStringLiteral("path"),
                  QStringLiteral("d=\"M%1 L%2\" fill=\"none\" %3").arg(pointText(from), pointText(to), attributes));
}

void SvgPage::addText(const vks::CVec2<double> &point, double size, const QString &text, const QString &attributes,
                      double angle)
{
    QString turn;
    if (angle != 0.0)
        turn = QStringLiteral(" transform=\"rotate(%1 %2)\"").arg(number(-angle * 180.0 / vks::kPi), pointText(point));
    m_body += QStringLiteral("<text x=\"%1\" y=\"%2\" font-size=\"%3\" %4%5>%6</text>\n")
                  .arg(number(point.x), number(point.y), number(size / kCapitalPart), attributes, turn, xmlText(text));
}

QByteArray SvgPage::document(const QString &title, const QByteArray &style) const
{
    const QString size =
        QStringLiteral("width=\"%1mm\" height=\"%2mm\" viewBox=\"0 0 %1 %2\"").arg(number(m_width), number(m_height));
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" " + size.toUtf8() +
           ">\n<title>" + xmlText(title).toUtf8() + "</title>\n<style>" + style + "</style>\n" + m_body.toUtf8() +
           "</svg>\n";
}

} // namespace orvcad
