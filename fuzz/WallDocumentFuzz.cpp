// Wall documents of both kinds and both forms, loaded and saved.

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "support/FuzzInput.h"
#include "support/QtJsonLeaks.h"

#include <string>

namespace {

template <typename Model> void loadAndSave(Model model, const std::wstring &text)
{
    model.loadFromJson(text);
    model.loadFromXml(text);
    std::wstring written;
    model.saveToJson(written);
    model.saveToXml(written);
}

template <typename Model> void loadReply(const std::wstring &text)
{
    Model model;
    model.loadFromJson(text);
    model.loadFromXml(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString document = fuzz::textOf(data, size);
    const fuzz::QtJsonLeaks leaks(document.toUtf8());
    const std::wstring text = document.toStdWString();
    loadAndSave(ORVCADWallBrickDataInputModel(EORVCADIdentifyType()), text);
    loadAndSave(ORVCADWallForceDataInputModel(EORVCADIdentifyType()), text);
    loadReply<ORVCADWallBrickDataOutputModel>(text);
    loadReply<ORVCADWallForceDataOutputModel>(text);
    return 0;
}
