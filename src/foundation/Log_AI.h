#pragma once

#include "ORVCADModelDataExport.h"
#include "foundation/Object_AI.h"

#include <QJsonObject>
#include <QString>
#include <QVariant>

#include <memory>

namespace cv {

/** One decision, made by Object_AI::log and owned by the tree. Where it stands is all the state it has. */
class ORVCADMODELDATA_EXPORT Log_AI final : public Object_AI
{
public:
    ~Log_AI() override;

    /** Sets a detail, replacing one of that name. @return this log, so that calls chain */
    Log_AI *setValue(const QString &key, const QVariant &value);
    /** The identity it got when it was made, as QUuid::toString writes it. */
    QString getLogId() const;
    /** "id", "type", "descript" and "confidenceLevel", and each detail as text. A detail of one of these names takes the
     *  place of it here. */
    QJsonObject toJson() const;

private:
    friend class Object_AI;
    struct Record;

    Log_AI(const QString &type, const QString &descript, double confidenceLevel, Object_AI *parent);

    /** Whether there is a log in any tree: without one, none has to be searched for them. */
    static bool anyExists();

    std::unique_ptr<Record> m_record;
};

} // namespace cv
