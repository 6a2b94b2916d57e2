#pragma once

#include "ORVCADModelDataExport.h"

#include <QLatin1String>
#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <algorithm>

/** Flat records: one text of items, "key:value/key/key:value". docs/formats/wall-documents.md tells the form in full.
 *
 *  An item with a value is key, colon, value; one without is the key alone. Each item ends in "/", and the record's very
 *  last "/" is cut off before it goes anywhere. Nothing is escaped: a value is cut at its first "/" and ":". */
namespace encoding {

constexpr char16_t kItemEnd = u'/';
constexpr char16_t kValueStart = u':';

/** One item, as views into its record. */
struct FlatItem
{
    QStringView key;
    QStringView value;
};

/** Key and value of one item. What follows a second colon is dropped; a missing value is empty. */
inline FlatItem splitItem(QStringView item)
{
    const auto colon = item.indexOf(kValueStart);
    if (colon < 0)
        return {item, {}};
    const QStringView value = item.mid(colon + 1);
    const auto third = value.indexOf(kValueStart);
    return {item.left(colon), third < 0 ? value : value.left(third)}; // meant: a third piece is lost
}

/** Takes away the record's last character if it is "/". */
ORVCADMODELDATA_EXPORT void cutLastSeparator(QString &record);

/** Puts a record together item by item. */
class ORVCADMODELDATA_EXPORT FlatRecordText
{
public:
    void add(QStringView key, QStringView value);
    /** The record without a "/" at its end; empty without items, and never null. */
    QString text() const;

private:
    static constexpr int kUsualSize = 256;        // characters
    QVarLengthArray<char16_t, kUsualSize> m_text; // of plain numbers: characters would be copied one by one
};

/** Calls visit(key, value) for each item in order. The empty record has one item: empty key, empty value. */
template <typename Visit> void forEachItem(QStringView record, Visit &&visit)
{
    for (const QChar *start = record.begin();;) {
        const QChar *const end = std::find(start, record.end(), QChar(kItemEnd));
        const FlatItem item = splitItem(QStringView(start, end));
        visit(item.key, item.value);
        if (end == record.end())
            return;
        start = end + 1;
    }
}

/** The items of a record by key, as views into it. */
class ORVCADMODELDATA_EXPORT FlatItems
{
public:
    explicit FlatItems(QStringView record);
    /** Of several items of one key the last one counts; empty for a key that the record lacks. */
    QStringView value(QLatin1String key) const;

private:
    static constexpr int kUsualCount = 16;
    QVarLengthArray<FlatItem, kUsualCount> m_items;
};

} // namespace encoding
