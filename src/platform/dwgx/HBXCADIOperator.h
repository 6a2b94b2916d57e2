#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

namespace dwgx {
class DWGXModel;
}

/** Reads and writes drawing files. Made by HBXCADFileHelper, deleted by whoever asked for it. */
class ORVCADPLATFORM_EXPORT HBXCADIOperator
{
public:
    virtual ~HBXCADIOperator();

    /** Replaces the content of the model by that of a file and sets its file path. Extension data of the file goes into
     *  the data that is attached to the model, or is attached when there is none. False, and the model as it was, for a
     *  null model and for a file that is missing, unreadable, too large, or breaks any rule of the format. */
    virtual bool read(const QString &path, dwgx::DWGXModel *model) = 0;
    /** Writes the model whole; an existing file is replaced only once the new one is complete. False for a null model and
     *  when the file cannot be written.
     *  @param title, remark  texts for the head of the file; an empty one leaves the model's own */
    virtual bool write(const QString &path, const dwgx::DWGXModel *model, const QString &title,
                       const QString &remark) = 0;

    /** Why the last read or write gave false, for people, and where in the file (such as `layers[0].lines[3].curve`;
     *  empty for the file as a whole). Both are empty after a success. */
    virtual QString lastErrorReason() const = 0;
    /** The place of the fault; see lastErrorReason. */
    virtual QString lastErrorPlace() const = 0;
};
