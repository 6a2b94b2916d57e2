#include "cli/DrawingFiles.h"

#include "cli/Command.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"

namespace orvcad {

namespace {

std::unique_ptr<HBXCADIOperator> newOperator()
{
    return std::unique_ptr<HBXCADIOperator>(HBXCADFileHelper::getInstance()->createCADIOperator());
}

[[noreturn]] void fail(const QString &path, const HBXCADIOperator &fileOperator)
{
    throw CommandFailure(kBadInput, path, fileOperator.lastErrorPlace(), fileOperator.lastErrorReason());
}

} // namespace

std::unique_ptr<dwgx::DWGXModel> readDrawing(const QString &path)
{
    std::unique_ptr<dwgx::DWGXModel> drawing(dwgx::DWGXModel::createObject());
    const auto fileOperator = newOperator();
    if (!fileOperator->read(path, drawing.get()))
        fail(path, *fileOperator);
    return drawing;
}

void writeDrawing(const QString &path, const dwgx::DWGXModel &drawing)
{
    const auto fileOperator = newOperator();
    if (!fileOperator->write(path, &drawing, QString(), QString()))
        fail(path, *fileOperator);
}

} // namespace orvcad
