#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QSet>
#include <QString>

/** Which element types a drawing shows. A record keeps its drawing name for life. */
class ORVCADMODELDATA_EXPORT ORVCADDrawingElementMapping
{
public:
    /** A drawing that shows nothing yet. */
    explicit ORVCADDrawingElementMapping(const QString &drawingName) : m_drawingName(drawingName) {}
    ORVCADDrawingElementMapping(const ORVCADDrawingElementMapping &) = default;
    ORVCADDrawingElementMapping &operator=(const ORVCADDrawingElementMapping &) = delete;
    ~ORVCADDrawingElementMapping() = default;

    /** By which the record is found. */
    const QString &getDrawingName() const { return m_drawingName; }
    /** The set itself: numbers of the host's element types. */
    QSet<int> &getElementTypes() { return m_elementTypes; }
    /** The same, to be read. */
    const QSet<int> &getElementTypes() const { return m_elementTypes; }
    /** A type that is there already changes nothing. */
    void addElementType(int type) { m_elementTypes.insert(type); }
    /** A type that is not there changes nothing. */
    void removeElementType(int type) { m_elementTypes.remove(type); }

    /** Drawing name and the names of the types, in the order of the set, which is none. */
    QJsonObject toJson() const;
    /** A new record, which belongs to the caller; null when "DrawingName" or "ElementTypes" is missing. A name that no
     *  type has reads as type -1. */
    static ORVCADDrawingElementMapping *fromJson(const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    QString m_drawingName;
    QSet<int> m_elementTypes;
};
