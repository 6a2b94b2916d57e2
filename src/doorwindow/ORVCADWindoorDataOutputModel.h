#pragma once

#include "ORVCADModelDataExport.h"
#include "doorwindow/ORVCADWinDoorEdoStruct.h"
#include "doorwindow/ORVCADWinDoorElementStruct.h"

#include <QJsonObject>
#include <QString>

#include <vector>

/** Recognised or existing doors and windows with their places; its JSON is what jsonDoorWin2HBX reads. */
struct ORVCADMODELDATA_EXPORT ORVCADWindoorDataOutputModel
{
    /** Puts one array into the object under the key: all elements, then all placed objects, since a reader needs the
     *  element to exist when its object arrives. Null does nothing. */
    void saveToJson(const QString &key, QJsonObject *json) const;

    std::vector<ORVCADWinDoorElementStruct> elements; ///< written first
    std::vector<ORVCADWinDoorEdoStruct> edos;         ///< placed objects, written behind all elements
};
