#pragma once

#include "ORVCADModelDataExport.h"

#include <QLatin1String>
#include <QString>
#include <QStringView>

#include <vector>

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
ORVCADMODELDATA_EXPORT FlatItem splitItem(QStringView item);

/** Appends an item and the "/" behind it. */
ORVCADMODELDATA_EXPORT void appendItem(QString &record, QStringView key, QStringView value);

/** Takes away the record's last character if it is "/". */
ORVCADMODELDATA_EXPORT void cutLastSeparator(QString &record);

/** Calls visit(key, value) for each item in order. The empty record has one item: empty key, empty value. */
template <typename Visit> void forEachItem(QStringView record, Visit &&visit)
{
    for (;;) {
        const auto end = record.indexOf(kItemEnd);
        const FlatItem item = splitItem(end < 0 ? record : record.left(end));
        visit(item.key, item.value);
        if (end < 0)
            return;
        record = record.mid(end + 1);
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
    std::vector<FlatItem> m_items;
};

} // namespace encoding
