#include "encoding/FlatItemText.h"

#include "encoding/FlatRecord.h"
#include "encoding/GeometryInfo.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/NumberText.h"
#include "encoding/PointText.h"

namespace encoding {

namespace {

constexpr char16_t kNumberEnd = u',';

/** Calls take(number) for each piece between commas; the empty text has one piece. */
template <typename Take> void readNumbers(QStringView text, Take &&take)
{
    for (;;) {
        const auto end = text.indexOf(kNumberEnd);
        take(readInt(end < 0 ? text : text.left(end)));
        if (end < 0)
            return;
        text = text.mid(end + 1);
    }
}

} // namespace

void ItemText<int>::append(QString &record, const int &value) { appendInteger(record, value); }
int ItemText<int>::read(QStringView value) { return readInt(value); }

void ItemText<qint64>::append(QString &record, const qint64 &value) { appendInteger(record, value); }
qint64 ItemText<qint64>::read(QStringView value) { return readLongLong(value); }

void ItemText<double>::append(QString &record, const double &value) { appendNumber(record, value); }
double ItemText<double>::read(QStringView value) { return readNumber(value, nullptr); }

void ItemText<std::wstring>::append(QString &record, const std::wstring &value)
{
    record.append(QString::fromStdWString(value));
}
std::wstring ItemText<std::wstring>::read(QStringView value) { return value.toString().toStdWString(); }

void ItemText<std::string>::append(QString &record, const std::string &value)
{
    record.append(QString::fromStdString(value));
}
std::string ItemText<std::string>::read(QStringView value) { return value.toString().toStdString(); }

void ItemText<vks::CVec2<double>>::append(QString &record, const vks::CVec2<double> &value)
{
    appendPoint(record, value);
}
vks::CVec2<double> ItemText<vks::CVec2<double>>::read(QStringView value) { return pointOf(value); }

void ItemText<std::vector<vks::CVec2<double>>>::append(QString &record, const std::vector<vks::CVec2<double>> &value)
{
    appendPoints(record, value);
}
std::vector<vks::CVec2<double>> ItemText<std::vector<vks::CVec2<double>>>::read(QStringView value)
{
    std::vector<vks::CVec2<double>> points;
    readPoints(value, points);
    return points;
}

void ItemText<vks::CRefPtr<vks::CCurve2d>>::append(QString &record, const vks::CRefPtr<vks::CCurve2d> &value)
{
    record.append(getCurveInfo(value.get()));
}
vks::CRefPtr<vks::CCurve2d> ItemText<vks::CRefPtr<vks::CCurve2d>>::read(QStringView value)
{
    return GeometryTextReader::curveOf(value);
}

void ItemText<vks::CRefPtr<vks::CPolygon>>::append(QString &record, const vks::CRefPtr<vks::CPolygon> &value)
{
    record.append(getPolyInfo(value.get()));
}
vks::CRefPtr<vks::CPolygon> ItemText<vks::CRefPtr<vks::CPolygon>>::read(QStringView value)
{
    return GeometryTextReader::polygonOf(value.toString());
}

void ItemText<std::set<int>>::append(QString &record, const std::set<int> &value)
{
    for (const int number : value) {
        appendInteger(record, number);
        record.append(kNumberEnd);
    }
    if (!value.empty())
        record.chop(1);
}
std::set<int> ItemText<std::set<int>>::read(QStringView value)
{
    std::set<int> numbers;
    readNumbers(value, [&numbers](int number) { numbers.insert(number); });
    return numbers;
}

void ItemText<std::list<std::vector<int>>>::append(QString &record, const std::list<std::vector<int>> &value)
{
    for (const std::vector<int> &segment : value) {
        for (const int number : segment) {
            appendInteger(record, number);
            record.append(kNumberEnd);
        }
        record.append(kItemEnd);
    }
}
std::list<std::vector<int>> ItemText<std::list<std::vector<int>>>::read(QStringView value)
{
    // An item's value holds no "/", so it is one segment, whatever was written.
    std::list<std::vector<int>> segments(1);
    readNumbers(value, [&segments](int number) { segments.back().push_back(number); });
    return segments;
}

} // namespace encoding
