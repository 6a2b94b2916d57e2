#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/NamedRecords.h"
#include "drawing/ORVCADDrawingElementMapping.h"

#include <QJsonValue>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

/** Which element types each drawing shows, asked both ways. Looking up a drawing takes the same time in a short list and
 *  in a long one.
 *
 *  The set owns its records and deletes them. A record that is taken out is not deleted: it is given up, to whoever
 *  holds it. A copy of the set holds the very same records, so only one of the two may be destroyed while its list still
 *  has them. Format: docs/formats/drawing-set.md. */
class ORVCADMODELDATA_EXPORT ORVCADDrawingElementMappings
{
public:
    ORVCADDrawingElementMappings() = default;
    ~ORVCADDrawingElementMappings();
    ORVCADDrawingElementMappings(const ORVCADDrawingElementMappings &) = default;
    ORVCADDrawingElementMappings &operator=(const ORVCADDrawingElementMappings &) = default; ///< as with a copy

    /** Adds the type to the drawing's record, which is made if there is none. Nothing for an empty name or type -1. */
    void addMapping(const QString &drawing, int type);
    /** The same for each type. */
    void addMapping(const QString &drawing, const QSet<int> &types);
    /** Appends a record and takes it over; null is ignored. */
    void addMapping(ORVCADDrawingElementMapping *mapping);

    /** The list itself. */
    QList<ORVCADDrawingElementMapping *> &getDrawingElementMappings() { return m_mappings.list(); }
    /** First record of exactly that drawing name, else null. */
    ORVCADDrawingElementMapping *getDrawingElementMapping(const QString &drawing) const;
    /** Drawing names of all records that hold the type, in list order. */
    QStringList getMatchDrawings(int type) const;
    /** The types of the drawing's first record; empty for an empty or unknown name. */
    QSet<int> getMatchElementType(const QString &drawing) const;

    /** Takes the first record of that name out; nothing for an empty name. */
    void removeMapping(const QString &drawing);
    /** Takes the type out of the drawing's first record, which stays even if it is empty then. Nothing for an empty or
     *  unknown name or type -1. */
    void removeMapping(const QString &drawing, int type);
    /** The same for each type. */
    void removeMapping(const QString &drawing, const QSet<int> &types);

    /** Array of the records; a null one is left out. */
    QJsonValue toJson() const;
    /** A new set, which belongs to the caller, and is never null: empty for what is no array. A record that lacks a key is
     *  left out. */
    static ORVCADDrawingElementMappings *fromJson(const QJsonValue &json);

private:
    using Mappings = drawing::NamedRecords<ORVCADDrawingElementMapping, &ORVCADDrawingElementMapping::getDrawingName>;

    Mappings m_mappings;
};
