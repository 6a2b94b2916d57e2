#pragma once

#include "ModelSerialization/PropertyText.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <QStringList>

#include <vector>

/** What tests ask of the rows of property tables. */
namespace propertyrows {

inline const QStringList kOffsets{"AxisOffset 2 true", "AxisOffset_JZBZ 2 true"};
inline const QStringList kSizes{"SectionWidth 1 true", "SectionHeight 1 true"};

/** Name, kind and flag of each row. */
inline QStringList rowsOf(const std::vector<PropertyText> &texts)
{
    QStringList rows;
    for (const PropertyText &text : texts)
        rows.append(QString("%1 %2 %3")
                        .arg(QString::fromStdWString(text.name))
                        .arg(static_cast<int>(text.type))
                        .arg(text.flag ? "true" : "false"));
    return rows;
}

/** Whether the embedded host has a property for a type. */
inline bool isKnown(qint64 type, const std::wstring &name)
{
    return hbx::embedded::HBXPropertyCatalogue::instance().find(type, std::wstring_view(name), true) != nullptr;
}

} // namespace propertyrows
