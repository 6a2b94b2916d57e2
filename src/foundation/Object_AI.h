#pragma once

#include "ORVCADModelDataExport.h"
#include "foundation/Any.h"
#include "foundation/PropertyObject.h"

#include <QString>

#include <vector>

namespace cv {
class Object_AI;
class Log_AI;
} // namespace cv

// Compiled once, in Object_AI.cpp.
extern template class ORVCADMODELDATA_EXPORT gp::TreeNode<cv::Object_AI *, 0>;
extern template class ORVCADMODELDATA_EXPORT gp::Object_AI<cv::Object_AI *, QString, Any>;

/** The object system as the slab model has it. */
namespace cv {

/** Third layer of the object system: an object that keeps a diary. Base of the classes of the slab model.
 *
 *  Whenever a step of recognition decides something, it makes a log under the object concerned:
 *
 *      slab->log("thickness", "no text near the outline", 0.4)->setValue("assumed", 120);
 *
 *  Logs are children like others. They may be raised to the parent, and end by being saved or cleared. An object may not
 *  die with a log anywhere under it: that ends the process, so that no decision is lost unseen. */
class ORVCADMODELDATA_EXPORT Object_AI : public gp::Object_AI<Object_AI *, QString, Any>
{
public:
    /** With a parent the object becomes its last child and belongs to it; without one it belongs to the caller. */
    explicit Object_AI(Object_AI *parent = nullptr);
    /** The same with a name, by which findChild finds it. */
    explicit Object_AI(const QString &name, Object_AI *parent = nullptr);
    /** The same with a name in UTF-8. */
    Object_AI(const char *name, Object_AI *parent);
    /** Copies name and properties into a root without methods and callback; a bound property stays bound to the same. */
    Object_AI(const Object_AI &other);
    /** Takes name, properties, children and place of the other. */
    Object_AI(Object_AI &&other); // NOLINT(*-noexcept-move-*,*-exception-escape): handlers may throw
    /** Copies name and properties. */
    Object_AI &operator=(const Object_AI &other);
    /** Deletes the present children, takes name, children and place of the other and exchanges the properties. */
    Object_AI &operator=(Object_AI &&other); // NOLINT(*-noexcept-move-*,*-exception-escape): likewise
    /** Ends the process with "There are no saved logs" where a log stands under the object. */
    ~Object_AI() override; // NOLINT(bugprone-exception-escape): meant

    /** A new log, the last child of this object, which owns it.
     *  @param type             kind of decision
     *  @param descript         the decision in words
     *  @param confidenceLevel  how sure it is */
    Log_AI *log(const QString &type, const QString &descript, double confidenceLevel);
    /** Deletes all logs of the subtree. */
    void clearLog();
    /** Moves all logs of the subtree to the end of the parent's children; nothing for a root. */
    void raiseLog();
    /** Writes all logs of the subtree to a file of their own, of an empty array if there are none, and deletes them. */
    virtual void saveLog();

protected:
    /** Writes the given logs, each named once, in order to one new file and deletes them, which happens first and
     *  whatever becomes of the file. The file is one JSON array of Log_AI::toJson; its name is a new QUuid, its folder
     *  is fixed and made if need be. A failure is a qWarning. */
    void output(const std::vector<Log_AI *> &logs);
};

} // namespace cv
