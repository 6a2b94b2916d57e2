#include "foundation/DataObject.h"

namespace cv {

DataObject::DataObject(Object_AI *parent) : Object_AI(parent) {}
DataObject::DataObject(const QString &name, Object_AI *parent) : Object_AI(name, parent) {}
DataObject::~DataObject() = default;

DataObject *DataObject::findDataObject(const QString &name) const
{
    const auto matches = [&name](gp::Object_AI<Object_AI *, QString, Any> *object) {
        return object->objectName() == name && dynamic_cast<DataObject *>(object) != nullptr;
    };
    return dynamic_cast<DataObject *>(Object_AI::findChild_if(matches, FindWholeSubtree));
}

} // namespace cv
