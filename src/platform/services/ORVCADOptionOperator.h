#pragma once

#include "ORVCADPlatformExport.h"

#include <QMap>
#include <QString>
#include <QStringList>

class IHBXModel;

/** The identify options of a building. Of a name that stands twice in a group the first row counts. */
class ORVCADPLATFORM_EXPORT ORVCADOptionOperator
{
public:
    /** Null is allowed: there are no options then. The model must outlive the operator. */
    explicit ORVCADOptionOperator(IHBXModel *model) : m_model(model) {}

    /** Adds the options of a group, name to value; those that are in the map already stay. */
    void getOption(const QString &group, QMap<QString, QString> &options) const;

    /** The parts of an option of the beam group (ptnBeamSetting), which commas, semicolons and enumeration commas separate,
     *  each narrow or wide. Blanks around a part are left out; empty parts are given, as empty texts. An option that is
     *  missing or empty gives one empty part. */
    QStringList asStringArray(const QString &name) const;

private:
    IHBXModel *m_model;
};
