#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>
#include <QStringView>

#include <list>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace encoding {

/** How one type of field becomes the value of an item and is read from one:
 *    static void append(QString &record, const T &value);
 *    static T read(QStringView value);
 *  A missing item reads as the empty value does. Bad text is told by nothing: numbers read as 0, geometry as null, (0, 0)
 *  or no points. A further type is one more specialisation. */
template <typename T, typename = void> struct ItemText;

/** Decimal. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<int>
{
    static void append(QString &record, const int &value);
    static int read(QStringView value);
};

/** Decimal. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<qint64>
{
    static void append(QString &record, const qint64 &value);
    static qint64 read(QStringView value);
};

/** Six significant digits. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<double>
{
    static void append(QString &record, const double &value);
    static double read(QStringView value);
};

/** As it is; nothing is escaped. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<std::wstring>
{
    static void append(QString &record, const std::wstring &value);
    static std::wstring read(QStringView value);
};

/** The same; UTF-8. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<std::string>
{
    static void append(QString &record, const std::string &value);
    static std::string read(QStringView value);
};

/** Point text, mm. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<vks::CVec2<double>>
{
    static void append(QString &record, const vks::CVec2<double> &value);
    static vks::CVec2<double> read(QStringView value);
};

/** Text of a list of points, mm. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<std::vector<vks::CVec2<double>>>
{
    static void append(QString &record, const std::vector<vks::CVec2<double>> &value);
    static std::vector<vks::CVec2<double>> read(QStringView value);
};

/** Line, Circle or Arc text, mm; empty for null. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<vks::CRefPtr<vks::CCurve2d>>
{
    static void append(QString &record, const vks::CRefPtr<vks::CCurve2d> &value);
    static vks::CRefPtr<vks::CCurve2d> read(QStringView value);
};

/** Polygon text in any form, mm; empty for null. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<vks::CRefPtr<vks::CPolygon>>
{
    static void append(QString &record, const vks::CRefPtr<vks::CPolygon> &value);
    static vks::CRefPtr<vks::CPolygon> read(QStringView value);
};

/** Commas between the numbers. Meant: the empty value is one empty number, so that an empty set reads back as 0. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<std::set<int>>
{
    static void append(QString &record, const std::set<int> &value);
    static std::set<int> read(QStringView value);
};

/** A comma behind each number and a "/" behind each segment. Meant: that "/" ends the item, so only the first segment
 *  reads back, with a 0 for the empty piece behind its last comma. */
template <> struct ORVCADMODELDATA_EXPORT ItemText<std::list<std::vector<int>>>
{
    static void append(QString &record, const std::list<std::vector<int>> &value);
    static std::list<std::vector<int>> read(QStringView value);
};

/** The decimal number of an enumeration. */
template <typename T> struct ItemText<T, std::enable_if_t<std::is_enum_v<T>>>
{
    static void append(QString &record, T value) { ItemText<int>::append(record, static_cast<int>(value)); }
    static T read(QStringView value) { return static_cast<T>(ItemText<int>::read(value)); }
};

} // namespace encoding
