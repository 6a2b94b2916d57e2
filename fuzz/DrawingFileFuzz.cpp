// Drawing files: one that is accepted is written and accepted again, with as many lines and texts.

#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"
#include "support/FuzzFile.h"
#include "support/QtJsonLeaks.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::QtJsonLeaks leaks(fuzz::bytesOf(data, size));
    const fuzz::FuzzFile file(QStringLiteral("fuzzed.cadi2"), fuzz::bytesOf(data, size));
    const std::unique_ptr<HBXCADIOperator> reader(HBXCADFileHelper::getInstance()->createCADIOperator());
    const std::unique_ptr<dwgx::DWGXModel> model(dwgx::DWGXModel::createObject());
    if (!reader->read(file.path(), model.get())) {
        fuzz::require(!reader->lastErrorReason().isEmpty(), "what is refused has a reason");
        return 0;
    }
    const QString copy = file.beside(QStringLiteral("copy.cadi2"));
    fuzz::require(reader->write(copy, model.get(), QString(), QString()), "what was read can be written");
    const std::unique_ptr<dwgx::DWGXModel> again(dwgx::DWGXModel::createObject());
    fuzz::require(reader->read(copy, again.get()), "what was written can be read");
    fuzz::require(again->lineCount() == model->lineCount() && again->textCount() == model->textCount(),
                  "nothing is lost");
    return 0;
}
