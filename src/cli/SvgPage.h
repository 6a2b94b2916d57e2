#pragma once

#include "platform/geometry/CPolygon.h"

#include <QByteArray>
#include <QString>

namespace orvcad {

/** An SVG page in millimetres of paper, onto which plan geometry is laid at a scale. */
class SvgPage
{
public:
    /** @param width, height  of the page, mm */
    SvgPage(double width, double height);

    /** Where the plan lies: world point origin (mm) comes to paper point (x, y), 1 mm of paper for scale mm of plan; north
     *  is up. */
    void setPlan(const vks::CVec2<double> &origin, const vks::CVec2<double> &onPaper, double scale);
    vks::CVec2<double> toPaper(const vks::CVec2<double> &world) const;

    /** Everything up to endGroup stands in one group with that class. */
    void beginGroup(const QString &cssClass, const QString &attributes = QString());
    void endGroup();

    /** An area or a line of the plan; attributes are SVG text such as fill="none". */
    void addPolygon(const vks::CPolygon &polygon, const QString &attributes);
    void addCurve(const vks::CCurve2d &curve, const QString &attributes);
    /** Shapes in paper coordinates, mm. */
    void addRectangle(double x, double y, double width, double height, const QString &attributes);
    void addCircle(const vks::CVec2<double> &centre, double radius, const QString &attributes);
    void addLine(const vks::CVec2<double> &from, const vks::CVec2<double> &to, const QString &attributes);
    /** One line of text, its baseline at a paper point; size is the height of a capital letter, mm, angle counter-clockwise,
     *  rad. */
    void addText(const vks::CVec2<double> &point, double size, const QString &text,
                 const QString &attributes = QString(), double angle = 0.0);

    /** What stands on the page so far, without the document around it. */
    QByteArray body() const { return m_body.toUtf8(); }
    /** The finished document. */
    QByteArray document(const QString &title, const QByteArray &style) const;

private:
    QString pathOf(const vks::CCoedgeList &loop) const;
    QString segmentOf(const vks::CCurve2d &curve) const;
    QString pointText(const vks::CVec2<double> &paper) const;

    double m_width;
    double m_height;
    vks::CVec2<double> m_origin;
    vks::CVec2<double> m_onPaper;
    double m_scale = 100.0;
    QString m_body;
};

} // namespace orvcad
