#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CBox3.h"

#include <QJsonValue>
#include <QString>

/** A box as the text that stands for it in JSON: "Box3d=[(x y z),(x y z)]", the minimum point first. */
class ORVCADMODELDATA_EXPORT BeamBoxText
{
public:
    /** Each number has twenty decimals, in every locale; infinity is "inf". */
    static QString write(const vks::CBox3<double> &box);
    /** The empty box for any other text. Numbers may have any form that QString reads, and any white space in front. */
    static vks::CBox3<double> read(const QString &text);

    /** As a kind of value in the table of a record. */
    static QJsonValue toValue(const vks::CBox3<double> &box) { return write(box); }
    /** The same; a text that is no box gives the empty box, whatever the record held. */
    static vks::CBox3<double> fromValue(const QJsonValue &json, const vks::CBox3<double> & /*present*/)
    {
        return read(json.toString());
    }
};
