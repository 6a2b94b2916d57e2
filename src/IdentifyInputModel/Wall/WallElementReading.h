#pragma once

#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXProperties.h"

#include <QString>

#include <string>

/** What every reading of wall elements does alike. */
namespace wall {

inline std::wstring textOf(const IHBXProperties &properties, const std::wstring &name)
{
    QString text;
    return properties.asString(text, name).toStdWString();
}

template <typename Named> std::wstring nameOf(const Named *named)
{
    QString name;
    return named ? named->name(name).toStdWString() : std::wstring();
}

/** Id, name and type numbers. */
template <typename Record> void readHead(const IHBXElement &element, Record &record)
{
    record.edoId = element.id();
    record.entName = nameOf(&element);
    record.elementType = static_cast<int>(element.type());
    record.elementSubType = static_cast<int>(element.subType());
}

} // namespace wall
