#include "encoding/PointText.h"

#include "encoding/NumberText.h"

#include <algorithm>

namespace encoding {

namespace {

using Point = vks::CVec2<double>;

/** The text of a list without what follows its last semicolon, if that is blank. */
QStringView withoutBlankEnd(QStringView text)
{
    const auto semicolon = text.lastIndexOf(u';');
    return text.mid(semicolon + 1).trimmed().isEmpty() ? text.left(semicolon + 1) : text;
}

/** False at the first bad item; the points before it are appended then. */
bool readItems(QStringView text, std::vector<Point> &points)
{
    while (!text.isEmpty()) {
        const auto end = text.indexOf(u';');
        Point point;
        if (!readPoint(end < 0 ? text : text.left(end), point))
            return false;
        points.push_back(point);
        text = end < 0 ? QStringView() : text.mid(end + 1);
    }
    return true;
}

} // namespace

void appendPoint(QString &text, const Point &point)
{
    appendNumber(text, point.x);
    text.append(u',');
    appendNumber(text, point.y);
}

QString pointText(const Point &point)
{
    QString text;
    appendPoint(text, point);
    return text;
}

void appendPoints(QString &text, const std::vector<Point> &points)
{
    for (const Point &point : points) {
        appendPoint(text, point);
        text.append(u';');
    }
}

bool readPoint(QStringView text, Point &point)
{
    const QChar *const comma = std::find(text.begin(), text.end(), u',');
    if (comma == text.end())
        return false;
    bool xIsNumber = false;
    bool yIsNumber = false; // not with a second comma either
    const Point read(readNumber(QStringView(text.begin(), comma), &xIsNumber),
                     readNumber(QStringView(comma + 1, text.end()), &yIsNumber));
    if (!xIsNumber || !yIsNumber)
        return false;
    point = read;
    return true;
}

Point pointOf(QStringView text)
{
    Point point;
    readPoint(text, point);
    return point;
}

bool readPoints(QStringView text, std::vector<Point> &points)
{
    if (!readItems(withoutBlankEnd(text), points))
        points.clear();
    return !points.empty();
}

} // namespace encoding
